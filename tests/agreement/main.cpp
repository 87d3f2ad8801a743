// Dumps what this build makes of files and code pages, to be compared with another build's dump:
//   agreement_dump FOLDER code-page
//   agreement_dump FOLDER settings FIXTURES...   (folders with settings files, *.xml)
//   agreement_dump FOLDER random
//
// Exit status: 0, 1 when a file cannot be read or written, 2 for bad usage.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include "tests/agreement/CodePageDump.h"
#include "tests/agreement/RandomSettings.h"
#include "tests/agreement/SettingsDump.h"
#include "tests/support/TempFolder.h"

namespace {

namespace fs = std::filesystem;
using namespace brennet::test;

constexpr unsigned kRandomFiles = 100;

constexpr std::string_view kPreferences[] = {
    "",
    "[Gameplay]\r\ncustomkeys=0\r\nautosavereplay=1\r\n\r\n[Video]\r\nreswidth=1920\r\n",
    "[Commandbar Hotkeys 00]\nHotkey=65\n[Gameplay]\ncustomkeys=2\n[Unknown \xD0\xBB]\na==b\nloose",
};

std::vector<fs::path> settingsFiles(const fs::path& folder) {
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".xml") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

void dumpFixtures(const fs::path& results, const std::vector<fs::path>& folders) {
  for (const fs::path& folder : folders) {
    for (const fs::path& file : settingsFiles(folder)) {
      for (std::size_t i = 0; i < std::size(kPreferences); ++i) {
        const std::string name = file.stem().string() + "-" + std::to_string(i);
        dumpSettings(readBytes(file), kPreferences[i], results / name);
      }
    }
  }
}

void dumpRandom(const fs::path& results) {
  for (unsigned seed = 1; seed <= kRandomFiles; ++seed) {
    dumpSettings(randomSettings(seed), kPreferences[seed % std::size(kPreferences)],
                 results / std::to_string(seed));
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv, argv + argc);
  const std::string what = argc > 2 ? arguments[2] : "";
  try {
    if (what == "code-page") {
      dumpCodePage936(arguments[1]);
    } else if (what == "settings") {
      dumpFixtures(arguments[1], {arguments.begin() + 3, arguments.end()});
    } else if (what == "random") {
      dumpRandom(arguments[1]);
    } else {
      std::fputs("usage: agreement_dump FOLDER {code-page|settings FIXTURES...|random}\n", stderr);
      return 2;
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "agreement_dump: %s\n", error.what());
    return 1;
  }
  return 0;
}
