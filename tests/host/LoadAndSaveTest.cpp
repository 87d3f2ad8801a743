#include <gtest/gtest.h>

#include "tests/host/HostFixture.h"

namespace brennet {
namespace {

using namespace test;

using LoadAndSave = HostFixture;

TEST_F(LoadAndSave, TakesANullPathAsNothing) {
  EXPECT_FALSE(brennet_.LoadSettings(nullptr));
  EXPECT_EQ(brennet_.GetLastSaveTime(), 77U);
  EXPECT_TRUE(brennet_.SetEnabled(false, 1)) << "the path of the last load is still there";
}

TEST_F(LoadAndSave, AnswersTheDefaultsAfterAFailedLoadAndKeepsThePath) {
  const auto missing = folder_ / "other.xml";
  EXPECT_FALSE(brennet_.LoadSettings(missing.wstring().c_str()));
  EXPECT_EQ(brennet_.GetLastSaveTime(), 0U);
  EXPECT_EQ(filled().heroSkillKeys0to5[0], 0);
  EXPECT_TRUE(brennet_.SetEnabled(true, 9));
  EXPECT_TRUE(std::filesystem::exists(missing));
}

TEST_F(LoadAndSave, ReadsASettingsFileWithAChineseName) {
  const auto path = folder_.path() / u8"\u8BBE\u7F6E\U0001F600.xml";
  writeBytes(path, kDefaults);
  const std::wstring name = folder_.path().wstring() + L"/\u8BBE\u7F6E\U0001F600.xml";
  EXPECT_TRUE(brennet_.LoadSettings(name.c_str()));
  EXPECT_TRUE(brennet_.SetEnabled(false, 5));
  EXPECT_NE(readBytes(path).find("<LastSaveTime>5</LastSaveTime>"), std::string::npos);
}

TEST_F(LoadAndSave, AnswersForTheCurrentSchemeOnly) {
  const std::string scheme =
      "<KeyInfo_%><HeroSkillKey><Key id=\"0\">5120</Key></HeroSkillKey><SecretaryKey>"
      "<Key id=\"1\">4096</Key></SecretaryKey><DisableLWinFlag>1</DisableLWinFlag>"
      "<ViewNoDragFlag>1</ViewNoDragFlag><StartJSQFlag>1</StartJSQFlag></KeyInfo_%>";
  for (const char* index : {"0", "1", "2", "5"}) {
    std::string second = scheme;
    second.replace(second.find('%'), 1, "1");
    second.replace(second.rfind('%'), 1, "1");
    ASSERT_TRUE(loadText("<KeyInfo index=\"" + std::string(index) +
                         "\"><LastSaveTime>1</LastSaveTime>" + second + "</KeyInfo>"));
    const bool expected = *index == '1';
    EXPECT_EQ(brennet_.IsCapsLockUsed(), expected) << index;
    EXPECT_EQ(brennet_.IsShiftUsed(), expected) << index;
    EXPECT_EQ(brennet_.GetDisableLWinFlag(), expected ? 1 : 0) << index;
    EXPECT_EQ(brennet_.GetViewNoDragFlag(), expected ? 1 : 0) << index;
    EXPECT_EQ(brennet_.GetStartJSQFlag(), expected ? 1 : 0) << index;
  }
}

TEST_F(LoadAndSave, DoesNothingWhenTheSwitchIsSoAlready) {
  const std::string before = readBytes(settings_);
  EXPECT_FALSE(brennet_.SetEnabled(true, 99));
  EXPECT_EQ(readBytes(settings_), before);
  EXPECT_EQ(brennet_.GetLastSaveTime(), 77U);
}

TEST_F(LoadAndSave, WritesTheSwitchTheTimeAndThePreferenceFile) {
  EXPECT_TRUE(brennet_.SetEnabled(false, 4000000000U));
  EXPECT_EQ(brennet_.GetLastSaveTime(), 77U) << "the time of the last load";
  EXPECT_NE(readBytes(preferences_).find("customkeys=0"), std::string::npos);
  EXPECT_NE(readBytes(settings_).find("enable=\"0\""), std::string::npos);
  EXPECT_TRUE(brennet_.LoadSettings(settings_.wstring().c_str()));
  EXPECT_EQ(brennet_.GetLastSaveTime(), 4000000000U);
  EXPECT_EQ(filled().flags, 0U);
}

TEST_F(LoadAndSave, KeepsTheNewSwitchWhenTheSaveFails) {
  ASSERT_FALSE(brennet_.LoadSettings(folder_.path().wstring().c_str()));
  EXPECT_FALSE(brennet_.SetEnabled(true, 1));
  EXPECT_EQ(filled().flags, 0x80000000U);
  EXPECT_FALSE(brennet_.SetEnabled(true, 1)) << "it is so already";
}

TEST_F(LoadAndSave, OpensNoDialog) {
  bool saved = true;
  EXPECT_FALSE(brennet_.ShowSettingsDialog(&saved, 1));
  EXPECT_FALSE(saved);
  EXPECT_FALSE(brennet_.ShowSettingsDialog(nullptr, 1));
}

TEST_F(LoadAndSave, TakesAnyDataFolder) {
  brennet_.SetDataFolder(L"/some/folder");
  brennet_.SetDataFolder(nullptr);
  brennet_.SetDataFolder(L"");
}

}  // namespace
}  // namespace brennet
