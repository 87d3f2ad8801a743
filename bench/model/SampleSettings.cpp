#include "bench/model/SampleSettings.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace brennet::bench {
namespace {

[[noreturn]] void fail(const char* what) {
  std::fprintf(stderr, "cannot %s\n", what);
  std::abort();
}

// A new folder for temporary files.
std::filesystem::path newFolder() {
  const auto parent = std::filesystem::temp_directory_path();
  std::random_device random;
  constexpr int kTries = 100;
  for (int i = 0; i < kTries; ++i) {
    auto folder = parent / ("brennet-bench-" + std::to_string(random()));
    if (std::filesystem::create_directory(folder)) return folder;
  }
  fail("make a scratch folder");
}

// A folder that is there as long as the program runs.
class ScratchFolder {
 public:
  ScratchFolder() : path_(newFolder()) {
#ifndef _WIN32
    setenv("HOME", path_.c_str(), 1);
#endif
  }
  ~ScratchFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const {
    return path_;
  }

 private:
  std::filesystem::path path_;
};

// A file of the samples.
std::string bytesOf(const char* name) {
  std::ifstream file(std::string(BRENNET_SAMPLE_DATA "/") + name, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), {}};
  if (bytes.empty()) fail("read the samples");
  return bytes;
}

}  // namespace

const std::string& sampleBytes() {
  static const std::string bytes = bytesOf("KeyInfo.xml");
  return bytes;
}

const std::string& samplePreferences() {
  static const std::string bytes = bytesOf("War3Preferences.txt");
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

}  // namespace brennet::bench
