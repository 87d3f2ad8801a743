#include "model/GamePreferences.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/model/Keys.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/TempFolder.h"

namespace brennet {
namespace {

using namespace test;

class GamePreferences : public testing::Test {
 protected:
  GamePreferences() : profile_(folder_.path()) {
    std::filesystem::create_directories(file_.parent_path());
  }

  std::string written(HotkeyConfig& config, std::string_view before) {
    writeBytes(file_, before);
    writeGamePreferences(config);
    return readBytes(file_);
  }

  TempFolder folder_;
  ScopedProfile profile_;
  std::filesystem::path file_ = folder_ / "Documents/Warcraft III/War3Preferences.txt";
};

std::string section(const std::string& name, int heroOnly, int hotkey, int modifiers) {
  return "[" + name + "]\r\nHeroOnly=" + std::to_string(heroOnly) +
         "\r\nHotkey=" + std::to_string(hotkey) + "\r\nMetaKeyState=" + std::to_string(modifiers) +
         "\r\nQuickCast=1\r\n\r\n";
}

TEST_F(GamePreferences, PutEighteenSectionsInTheGamesOrder) {
  HotkeyConfig config;
  config.setEnable(true);
  HotkeyScheme& scheme = *config.editableScheme();
  for (std::size_t i = 0; i < 12; ++i) {
    scheme.HeroSkillKey[i] = KeyWord(static_cast<std::uint8_t>('A' + i), KeyWord::kCtrl);
  }
  scheme.HeroSkillAutocast[0] = true;
  scheme.SkillHeroOnly = 1;
  for (std::size_t i = 0; i < 5; ++i) {
    scheme.ItemKey[i] = KeyWord(static_cast<std::uint8_t>('1' + i), KeyWord::kAlt);
  }

  std::string expected;
  int vk = 'A';
  for (const char* position :
       {"20", "21", "22", "23", "11", "12", "13", "10", "00", "01", "02", "03"}) {
    expected += section(std::string("Commandbar Hotkeys ") + position, 1, vk++, 2);
  }
  for (int i = 0; i < 5; ++i) {
    expected += section("Inventory Hotkeys " + std::to_string(i), 0, '1' + i, 4);
  }
  expected += section("Inventory Hotkeys 5", 0, 0, 0);
  expected += "[Gameplay]\r\nclassic=1\r\ncustomkeys=2\r\n\r\n";
  EXPECT_EQ(written(config,
                    "[Gameplay]\r\nclassic=1\r\ncustomkeys=0\r\n"
                    "[Inventory Hotkeys 3]\r\nHotkey=1\r\n"),
            expected);
}

TEST_F(GamePreferences, SwitchCustomKeysOffWithTheFeature) {
  HotkeyConfig config;
  const std::string text = written(config, "[Gameplay]\r\ncustomkeys=2\r\n");
  EXPECT_NE(text.find("customkeys=0\r\n"), std::string::npos);
}

TEST_F(GamePreferences, AreNotCreatedWhereTheGameHasNoFolder) {
  std::filesystem::remove_all(folder_ / "Documents");
  HotkeyConfig config;
  writeGamePreferences(config);
  EXPECT_EQ(folder_.listing(), "");
}

TEST_F(GamePreferences, StayAsTheyAreWhenNothingChanges) {
  HotkeyConfig config;
  const std::string once = written(config, "[Video]\r\nwidth=800\r\n");
  const auto time = std::filesystem::last_write_time(file_) - std::chrono::hours(1);
  std::filesystem::last_write_time(file_, time);
  writeGamePreferences(config);
  EXPECT_EQ(readBytes(file_), once);
  EXPECT_EQ(std::filesystem::last_write_time(file_), time);
}

}  // namespace
}  // namespace brennet
