#include "tests/agreement/SettingsDump.h"

#include <cstring>
#include <stdexcept>
#include <string>

#include "brennet/HotkeyBlock.h"
#include "brennet/IBrennet.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/SharedLibrary.h"
#include "tests/support/TempFolder.h"

namespace brennet::test {
namespace {

namespace fs = std::filesystem;

IBrennet& library() {
  static const auto get =
      reinterpret_cast<GetBrennetPtrFunction>(functionOf(BRENNET_LIBRARY, "GetBrennetPtr"));
  if (get == nullptr) throw std::runtime_error("cannot load " BRENNET_LIBRARY);
  return *get();
}

// The names of the files, without the time at which one was put aside.
std::string namesIn(const TempFolder& folder) {
  constexpr std::string_view kMark = ".kept";
  constexpr std::string_view kStamp = "-00000000-000000";
  std::string names = folder.listing();
  std::size_t at = 0;
  while ((at = names.find(kMark, at)) != std::string::npos) {
    at += kMark.size();
    if (names.compare(at, 1, "-") == 0) names.erase(at, kStamp.size());
  }
  return names;
}

// The files of one player, and where what became of them is put.
class Player {
 public:
  Player(std::string_view settings, std::string_view preferences, fs::path results)
      : results_(std::move(results)) {
    fs::create_directories(preferences_.parent_path());
    fs::create_directories(results_);
    writeBytes(settings_, settings);
    writeBytes(preferences_, preferences);
  }

  [[nodiscard]] std::wstring settings() const { return settings_.wstring(); }

  // Writes the answers and files of now under the name of the `step` that led to them.
  HotkeyBlock record(const std::string& step, int result) {
    IBrennet& brennet = library();
    HotkeyBlock block{};
    block.size = sizeof(block);
    const bool filled = brennet.FillHotkeyBlock(&block);
    std::string report = "result " + std::to_string(result);
    report += "\nfilled " + std::to_string(filled);
    report += "\nsave time " + std::to_string(brennet.GetLastSaveTime());
    report += "\nflags";
    for (const int flag : {int{brennet.GetDisableLWinFlag()}, int{brennet.GetViewNoDragFlag()},
                           int{brennet.IsCapsLockUsed()}, int{brennet.IsShiftUsed()},
                           int{brennet.GetStartJSQFlag()}}) {
      report += " " + std::to_string(flag);
    }
    writeBytes(results_ / (step + ".txt"), report + "\nfiles\n" + namesIn(folder_));
    writeBytes(results_ / (step + ".block"),
               {reinterpret_cast<const char*>(&block), sizeof(block)});
    writeBytes(results_ / (step + ".xml"), readBytes(settings_));
    writeBytes(results_ / (step + ".preferences"), readBytes(preferences_));
    return block;
  }

 private:
  TempFolder folder_;
  ScopedProfile profile_{folder_.path()};
  fs::path settings_ = folder_ / "KeyInfo.xml";
  fs::path preferences_ = folder_ / "Documents/Warcraft III/War3Preferences.txt";
  fs::path results_;
};

// What a player may change in the game: a number, keys of several kinds, phrases.
void change(HotkeyBlock& block) {
  block.zoomValue = 90;
  block.heroSkillKeys0to5[2] = 0x5208;
  block.itemKeys[1] = 0x3102;
  constexpr char kPhrase[] = "\xE8\xB0\xA2 <&> \xF0\x9F\x98\x80";
  std::memcpy(block.quickChat, kPhrase, sizeof(kPhrase));
  std::memcpy(block.chatWheel, kPhrase, sizeof(kPhrase));
}

}  // namespace

void dumpSettings(std::string_view settings, std::string_view preferences, const fs::path& folder) {
  Player player(settings, preferences, folder);
  IBrennet& brennet = library();
  brennet.SetDataFolder(L"");
  const HotkeyBlock loaded =
      player.record("1-loaded", brennet.LoadSettings(player.settings().c_str()));
  const bool enabled = (loaded.flags & 0x80000000U) != 0;
  player.record("2-switched", brennet.SetEnabled(!enabled, 1000));
  HotkeyBlock block = player.record("3-switched-back", brennet.SetEnabled(enabled, 2000));
  player.record("4-unchanged", brennet.ApplyHotkeyBlock(&block, 3000));
  change(block);
  player.record("5-changed", brennet.ApplyHotkeyBlock(&block, 4000000000U));
  player.record("6-loaded-again", brennet.LoadSettings(player.settings().c_str()));
}

}  // namespace brennet::test
