// Many processes use a player's two files: brennet-soak ROUNDS
//
// Two save the settings, one reads them, one replaces the game's file as the game does, and one
// disturbs them all. Nobody may ever read anything that is not whole, no save may be lost, and
// nothing may be left behind in the end.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

#include "markup/MarkupDocument.h"
#include "model/HotkeyConfig.h"
#include "platform/Files.h"
#include "tests/faults/soak/Disturber.h"
#include "tests/support/Process.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/TempFolder.h"

namespace brennet::test {
namespace {

namespace fs = std::filesystem;

constexpr char kGamesPart[] = "[Mine]\r\nkept=1\r\n\r\n";

// The files, in the place that each process is given.
struct Files {
  explicit Files(const fs::path& place)
      : folder(place / "player"),
        settings(folder / "KeyInfo.xml"),
        preferences(folder / "Documents" / "Warcraft III" / "War3Preferences.txt"),
        readings(place / "readings") {}

  fs::path folder;
  fs::path settings;
  fs::path preferences;
  fs::path readings;  // what the reader has counted; nobody disturbs it there
};

// The save time that a saver writes in a round. It tells the savers apart.
std::uint32_t saveTime(int saver, int round) {
  return static_cast<std::uint32_t>(2 * round + saver);
}

// A file may be held for longer than a save waits, above all on a busy computer. A save that is
// reported as failed is tried again, as a player would; if that does not help, it is a fault.
int save(const Files& files, int saver, int rounds) {
  constexpr int kTries = 50;
  const ScopedProfile profile(files.folder);
  HotkeyConfig config;
  int failures = 0;
  for (int round = 1; round <= rounds; ++round) {
    const std::uint32_t time = saveTime(saver, round);
    for (int tries = 1; !config.Save(files.settings.u16string(), time); ++tries) {
      ++failures;
      if (tries == kTries) return 1;
    }
  }
  std::printf("saver %d: %d saves, %d more told as failed\n", saver, rounds, failures);
  return 0;
}

bool isWhole(const Files& files) {
  MarkupDocument document;
  std::string preferences;
  return document.load(files.settings.u16string()) && document.findElem(u"KeyInfo") &&
         !platform::readFile(files.preferences, preferences, platform::kAnySize) &&
         preferences.find("kept=1") != std::string::npos;
}

// Reads until it is ended; leaves the numbers of readings and of faults in a file.
[[noreturn]] void read(const Files& files) {
  for (long rounds = 1, failures = 0;; ++rounds) {
    if (!isWhole(files)) ++failures;
    if (rounds % 16 != 1 && failures == 0) continue;
    // Written under another name first: this process may end at any moment.
    fs::path newReadings = files.readings;
    newReadings += ".new";
    writeBytes(newReadings, std::to_string(rounds) + " " + std::to_string(failures));
    fs::rename(newReadings, files.readings);
  }
}

// Replaces the game's file with one without hotkeys, as the game does when it ends.
[[noreturn]] void play(const Files& files) {
  const fs::path other = files.folder / "games-own";
  while (true) {
    writeBytes(other, kGamesPart);
    std::error_code ignored;  // the file may be held at this moment
    fs::rename(other, files.preferences, ignored);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

int work(const std::string& role, const Files& files, int rounds) {
  if (role == "saver0") return save(files, 0, rounds);
  if (role == "saver1") return save(files, 1, rounds);
  if (role == "reader") read(files);
  if (role == "player") play(files);
  disturb(files.folder, files.settings);
}

int failed(const std::string& what) {
  std::printf("FAILED: %s\n", what.c_str());
  return 1;
}

// Checks what is there after all have ended and one more session has run.
int check(const Files& files, int rounds) {
  const std::string readings = readBytes(files.readings);
  std::printf("readings, and those that were not whole: %s\n", readings.c_str());
  if (!readings.ends_with(" 0")) return failed("something was read that was not whole");
  fs::remove(files.folder / "games-own");

  const ScopedProfile profile(files.folder);
  HotkeyConfig last;
  if (!last.Load(files.settings.u16string())) return failed("the last load");
  const std::uint32_t time = last.LastSaveTime();
  if (time != saveTime(0, rounds) && time != saveTime(1, rounds)) return failed("a save was lost");
  if (!last.Save(files.settings.u16string(), time)) return failed("the last save");
  std::string names;
  for (const auto& entry : fs::recursive_directory_iterator(files.folder)) {
    if (entry.is_regular_file()) names += entry.path().filename().string() + "\n";
  }
  const bool isTidy = names.size() == std::strlen("KeyInfo.xml\nWar3Preferences.txt\n");
  return isTidy ? 0 : failed("left behind:\n" + names);
}

int run(const char* program, int rounds) {
  const TempFolder folder;
  const Files files(folder.path());
  fs::create_directories(files.preferences.parent_path());
  writeBytes(files.preferences, kGamesPart);
  {
    const ScopedProfile profile(files.folder);
    if (!HotkeyConfig().Save(files.settings.u16string(), 0)) return failed("the first save");
  }
  const auto start = [&](const char* role) {
    return Process(program, {role, folder.path().string(), std::to_string(rounds)});
  };
  int status = 0;
  {
    const Process reader = start("reader");
    const Process player = start("player");
    const Process disturber = start("disturber");
    Process savers[] = {start("saver0"), start("saver1")};
    for (Process& saver : savers) status |= saver.wait();
  }
  if (status != 0) return failed("saves did not succeed");
  return check(files, rounds);
}

}  // namespace
}  // namespace brennet::test

int main(int argc, char** argv) {
  using namespace brennet::test;
  if (argc == 4) return work(argv[1], Files(argv[2]), std::atoi(argv[3]));
  if (argc != 2 || std::atoi(argv[1]) < 1) {
    std::puts("brennet-soak ROUNDS");
    return 2;
  }
  return run(argv[0], (std::atoi(argv[1]) + 1) / 2);  // of each saver
}
