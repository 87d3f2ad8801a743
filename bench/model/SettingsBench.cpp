// Loading and saving the settings, beside what the markup layer alone needs for the same file.

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "bench/model/SampleSettings.h"
#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/TextEncoding.h"
#include "markup/text/TextFile.h"

namespace brennet::bench {
namespace {

constexpr std::uint32_t kSaveTime = 1700000000;

[[noreturn]] void fail(const char* what) {
  std::fprintf(stderr, "cannot %s\n", what);
  std::abort();
}

// A folder that is there as long as the program runs.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string name = std::filesystem::temp_directory_path() / "brennet-bench-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) fail("make a scratch folder");
    path_ = name;
    setenv("HOME", name.c_str(), 1);
  }
  ~ScratchFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// The document that saving the sample gives.
std::u16string savedText() {
  MarkupDocument document;
  if (!sampleConfig().saveTo(document, kSaveTime)) fail("build the settings document");
  return document.doc();
}

}  // namespace

const std::string& sampleBytes() {
  static const std::string bytes = [] {
    std::ifstream file(BRENNET_SAMPLE_DATA "/KeyInfo.xml", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }();
  return bytes;
}

const std::u16string& sampleFile() {
  static const ScratchFolder folder;
  static const std::u16string name = [] {
    const auto path = folder.path() / "KeyInfo.xml";
    std::ofstream(path, std::ios::binary) << sampleBytes();
    return path.u16string();
  }();
  return name;
}

HotkeyConfig& sampleConfig() {
  static HotkeyConfig config;
  if (!config.loaded() && !config.Load(sampleFile())) fail("load the sample settings");
  return config;
}

namespace {

void loadConfig(benchmark::State& state) {
  const std::u16string& file = sampleFile();
  HotkeyConfig config;
  for (auto _ : state) {
    MarkupDocument document;
    document.load(file);
    benchmark::DoNotOptimize(config.loadFrom(document));
  }
}
BENCHMARK(loadConfig)->Name("load/brennet/sample");

// From the bytes of a file to settings, conflicts included.
void readBytes(benchmark::State& state) {
  const std::string& bytes = sampleBytes();
  HotkeyConfig config;
  for (auto _ : state) {
    ResultLog log;
    MarkupDocument document;
    document.setDoc(decodeText(bytes, declaredEncodingOfBytes, log).text);
    benchmark::DoNotOptimize(config.loadFrom(document));
  }
}
BENCHMARK(readBytes)->Name("read/brennet/sample, in memory");

void parseText(benchmark::State& state) {
  ResultLog log;
  const std::u16string text = decodeText(sampleBytes(), declaredEncodingOfBytes, log).text;
  for (auto _ : state) {
    MarkupDocument document;
    benchmark::DoNotOptimize(document.setDoc(text));
  }
}
BENCHMARK(parseText)->Name("read/setDoc/sample, in memory");

// What a host waits for: the game's preference file is read and written as well.
void loadConfigAndPreferences(benchmark::State& state) {
  const std::u16string& file = sampleFile();
  HotkeyConfig config;
  for (auto _ : state) benchmark::DoNotOptimize(config.Load(file));
}
BENCHMARK(loadConfigAndPreferences)->Name("load and preferences/brennet/sample");

void readAndParse(benchmark::State& state) {
  const std::u16string& file = sampleFile();
  for (auto _ : state) {
    std::u16string text;
    ResultLog log;
    readTextFile(file, declaredEncodingOfBytes, text, log);
    MarkupDocument document;
    benchmark::DoNotOptimize(document.setDoc(std::move(text)));
  }
}
BENCHMARK(readAndParse)->Name("load/readTextFile+setDoc/sample");

// Saving up to the bytes of the file; the disk's flush would hide everything else.
void saveConfig(benchmark::State& state) {
  const HotkeyConfig& config = sampleConfig();
  for (auto _ : state) {
    MarkupDocument document;
    config.saveTo(document, kSaveTime);
    ResultLog log;
    benchmark::DoNotOptimize(encodeText(document.doc(), u"gb2312", log));
  }
}
BENCHMARK(saveConfig)->Name("save/brennet/sample, in memory");

void parseAndEncode(benchmark::State& state) {
  const std::u16string text = savedText();
  for (auto _ : state) {
    MarkupDocument document;
    document.setDoc(text);
    ResultLog log;
    benchmark::DoNotOptimize(encodeText(document.doc(), u"gb2312", log));
  }
}
BENCHMARK(parseAndEncode)->Name("save/setDoc+encode/sample, in memory");

void saveConfigToDisk(benchmark::State& state) {
  HotkeyConfig& config = sampleConfig();
  const std::u16string file = sampleFile() + u".saved";
  for (auto _ : state) benchmark::DoNotOptimize(config.Save(file, kSaveTime));
}
BENCHMARK(saveConfigToDisk)->Name("save/brennet/sample, to disk");

void writeToDisk(benchmark::State& state) {
  const std::u16string text = savedText();
  const std::u16string file = sampleFile() + u".written";
  for (auto _ : state) {
    MarkupDocument document;
    document.setDoc(text);
    ResultLog log;
    benchmark::DoNotOptimize(writeTextFile(file, document.doc(), u"gb2312", log));
  }
}
BENCHMARK(writeToDisk)->Name("save/setDoc+writeTextFile/sample, to disk");

}  // namespace
}  // namespace brennet::bench
