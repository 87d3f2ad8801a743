// Loading and saving the settings, beside what the markup layer alone needs for the same file.

#include <benchmark/benchmark.h>

#include <cstdlib>

#include "bench/model/SampleSettings.h"
#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/TextEncoding.h"
#include "markup/text/TextFile.h"

namespace brennet::bench {
namespace {

constexpr std::uint32_t kSaveTime = 1700000000;

// The document that saving the sample gives.
std::u16string savedText() {
  MarkupDocument document;
  if (!sampleConfig().saveTo(document, kSaveTime)) std::abort();
  return document.doc();
}

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
