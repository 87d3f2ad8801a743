#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "brennet/HotkeyBlock.h"
#include "tests/host/TestedBrennet.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/TempFolder.h"

namespace brennet::test {

// The interface on the test's own files, with a settings file of defaults loaded.
class HostFixture : public testing::Test {
 protected:
  HostFixture() : profile_(folder_.path()) {
    std::filesystem::create_directories(preferences_.parent_path());
    writeBytes(preferences_, kPreferences);
    EXPECT_TRUE(loadText(kDefaults));
  }

  bool loadText(const std::string& text) {
    writeBytes(settings_, text);
    return brennet_.LoadSettings(settings_.wstring().c_str());
  }

  HotkeyBlock filled() {
    HotkeyBlock block;
    block.size = sizeof(block);
    EXPECT_TRUE(brennet_.FillHotkeyBlock(&block));
    return block;
  }

  static constexpr char kPreferences[] = "[Gameplay]\r\ncustomkeys=0\r\n\r\n";
  // The phrases and left-Alt switches are named because a reset leaves them alone.
  static constexpr char kDefaults[] =
      "<KeyInfo enable=\"1\" index=\"0\"><LastSaveTime>77</LastSaveTime><KeyInfo_0>"
      "<HeroSkillKey><Key id=\"0\" autocast=\"0\">20736</Key><Key id=\"1\" autocast=\"0\">22272"
      "</Key></HeroSkillKey><DisableLeftAlt>0</DisableLeftAlt><DisableLeftAltShowHP>0"
      "</DisableLeftAltShowHP><QuickChat><Chat id=\"0\"/></QuickChat></KeyInfo_0></KeyInfo>";

  TempFolder folder_;
  ScopedProfile profile_;
  std::filesystem::path settings_ = folder_ / "KeyInfo.xml";
  std::filesystem::path preferences_ = folder_ / "Documents/Warcraft III/War3Preferences.txt";
  const std::shared_ptr<IBrennet> object_ = testedBrennet();
  IBrennet& brennet_ = *object_;
};

}  // namespace brennet::test
