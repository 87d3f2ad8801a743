#include "model/SchemeFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "markup/MarkupDocument.h"
#include "model/HotkeyConfig.h"
#include "model/SchemeDifferences.h"
#include "tests/model/Keys.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/TempFolder.h"

namespace brennet {
namespace {

using namespace test;
using testing::IsEmpty;
using Outcome = SchemeFileResult::Outcome;

// Where players keep what their friends send them, and a profile with the game's preference file.
class SchemeFile : public testing::Test {
 protected:
  SchemeFile() : profile_(folder_.path()) {
    std::filesystem::create_directories(preferences_.parent_path());
    writeBytes(preferences_, kPreferences);
  }
  // Nobody has chosen these settings for this player.
  ~SchemeFile() override { EXPECT_EQ(readBytes(preferences_), kPreferences); }

  SchemeFileResult read(const std::string& bytes) {
    writeBytes(file_, bytes);
    return readSchemeFile(file_.u16string(), schemes_);
  }
  Outcome write(const HotkeyScheme& scheme, std::uint32_t saveTime = 0) {
    return writeSchemeFile(file_.u16string(), scheme, saveTime).outcome;
  }
  [[nodiscard]] std::vector<int> numbers() const {
    std::vector<int> all;
    for (const SchemeInFile& group : schemes_) all.push_back(group.number);
    return all;
  }

  static constexpr char kPreferences[] = "[Gameplay]\r\ncustomkeys=0\r\n\r\n";

  TempFolder folder_;
  ScopedProfile profile_;
  std::filesystem::path file_ = folder_ / "of a friend.xml";
  std::filesystem::path preferences_ = folder_ / "Documents/Warcraft III/War3Preferences.txt";
  std::vector<SchemeInFile> schemes_;
};

std::string withGroups(const std::string& groups) {
  return "<KeyInfo enable=\"0\" index=\"2\"><LastSaveTime>5</LastSaveTime>" + groups + "</KeyInfo>";
}

std::string skill(int group, const std::string& key) {
  const std::string name = "KeyInfo_" + std::to_string(group);
  return "<" + name + "><HeroSkillKey><Key id=\"0\">" + key + "</Key></HeroSkillKey></" + name +
         ">";
}

TEST_F(SchemeFile, ComesBackAsItWasWritten) {
  HotkeyScheme scheme;
  scheme.HeroSkillKey[0] = kAltQ;
  scheme.ItemAutocast[5] = true;
  scheme.QuickChat[0] = u"\u8C22\u8C22 <3";
  EXPECT_EQ(write(scheme, 77), Outcome::Done);
  EXPECT_EQ(readSchemeFile(file_.u16string(), schemes_), SchemeFileResult());
  ASSERT_THAT(numbers(), testing::ElementsAre(0));
  EXPECT_THAT(differencesOf(scheme, schemes_[0].scheme), IsEmpty());
}

TEST_F(SchemeFile, IsASettingsFileForHosts) {
  HotkeyScheme scheme;
  scheme.HeroSkillKey[0] = kAltQ;
  scheme.ItemAutocast[5] = true;
  EXPECT_EQ(write(scheme, 77), Outcome::Done);
  EXPECT_THAT(readBytes(file_), testing::StartsWith("<?xml version=\"1.0\" encoding=\"gb2312\"?>"));
  MarkupDocument document;
  ASSERT_TRUE(document.load(file_.u16string()));
  HotkeyConfig config;
  ASSERT_TRUE(config.loadFrom(document));
  EXPECT_THAT(differencesOf(scheme, config.scheme()), IsEmpty());
  EXPECT_TRUE(config.enable());
  EXPECT_EQ(config.LastSaveTime(), 77U);
  // All settings files have the marks of the current scheme's items in each.
  HotkeyScheme empty;
  empty.ItemAutocast[5] = true;
  for (const int other : {1, 2}) {
    EXPECT_THAT(differencesOf(empty, config.scheme(other)), IsEmpty());
  }
}

TEST_F(SchemeFile, TellsOfCharactersThatItCannotHold) {
  HotkeyScheme scheme;
  scheme.ChatWheel[3] = u"\U0001F600";
  EXPECT_EQ(write(scheme), Outcome::Lossy);
  EXPECT_TRUE(std::filesystem::exists(file_));
}

TEST_F(SchemeFile, GivesTheGroupsThatHoldSomething) {
  EXPECT_EQ(read(withGroups(skill(2, "20736"))).outcome, Outcome::Done);
  EXPECT_THAT(numbers(), testing::ElementsAre(2));
  EXPECT_EQ(schemes_[0].scheme.HeroSkillKey[0], kQ);
}

// Who gives away an empty group may mean it; a group that the file does not have means nothing.
TEST_F(SchemeFile, GivesTheFirstGroupWhereItIsEmpty) {
  EXPECT_EQ(read(withGroups("<KeyInfo_0/>" + skill(2, "20736"))).outcome, Outcome::Done);
  EXPECT_THAT(numbers(), testing::ElementsAre(0, 2));
  EXPECT_EQ(read(withGroups("<KeyInfo_7/>")).outcome, Outcome::Foreign);
  EXPECT_EQ(read(withGroups("")).outcome, Outcome::Foreign);
}

TEST_F(SchemeFile, RefusesAFileThatIsDamagedInside) {
  const std::string good = withGroups(skill(0, "20736") + skill(1, "20736"));
  ASSERT_EQ(read(good).outcome, Outcome::Done);
  const std::string kDamages[] = {"</Key><KeyInfo_1>", "<\x01", "<!-- ", "</other>"};
  for (const std::string& damage : kDamages) {
    std::string bad = good;
    bad.insert(bad.find("</Key>"), damage);
    EXPECT_EQ(read(bad).outcome, Outcome::Damaged) << testing::PrintToString(bad);
  }
  std::string zeroed = good;
  zeroed[zeroed.find("20736") + 2] = '\0';
  EXPECT_EQ(read(zeroed).outcome, Outcome::Damaged);
}

TEST_F(SchemeFile, GivesAGroupOfWhichNothingCouldBeUsed) {
  const std::string preset = "<KeyInfo_1><NumComboKeyIndex>9</NumComboKeyIndex></KeyInfo_1>";
  EXPECT_EQ(read(withGroups(skill(0, "20736") + skill(2, "Q") + preset)).outcome, Outcome::Done);
  ASSERT_THAT(numbers(), testing::ElementsAre(0, 1, 2));
  EXPECT_THAT(schemes_[0].report.droppedKeys, IsEmpty());
  EXPECT_EQ(schemes_[1].report.droppedChoices.size(), 1U);
  EXPECT_EQ(schemes_[2].report.droppedKeys.size(), 1U);
}

TEST_F(SchemeFile, MayBeFromBeforeThereWereThreeGroups) {
  EXPECT_EQ(read(withGroups("<HeroSkillKey><Key id=\"0\">20736</Key></HeroSkillKey>")).outcome,
            Outcome::Done);
  ASSERT_THAT(numbers(), testing::ElementsAre(0));
  EXPECT_EQ(schemes_[0].scheme.HeroSkillKey[0], kQ);
}

TEST_F(SchemeFile, IsRefusedPlainly) {
  const struct {
    const char* name;
    std::string bytes;
    Outcome outcome;
  } kRows[] = {
      {"empty", "", Outcome::Damaged},
      {"text", "hello", Outcome::Damaged},
      {"zero bytes", std::string(100, '\0'), Outcome::Damaged},
      {"cut short", withGroups(skill(0, "20736")).substr(0, 90), Outcome::Damaged},
      {"other markup", "<html><body/></html>", Outcome::Foreign},
      {"settings without a time", "<KeyInfo><KeyInfo_0/></KeyInfo>", Outcome::Foreign},
  };
  schemes_.emplace_back().number = 2;
  for (const auto& row : kRows) {
    EXPECT_EQ(read(row.bytes), (SchemeFileResult{row.outcome, {}})) << row.name;
    EXPECT_THAT(numbers(), testing::ElementsAre(2)) << row.name << ": nothing was read";
  }
}

TEST_F(SchemeFile, TellsWhatTheSystemSaysWhereItCannotBeRead) {
  for (const std::filesystem::path& path : {file_, folder_.path()}) {
    const SchemeFileResult result = readSchemeFile(path.u16string(), schemes_);
    EXPECT_EQ(result.outcome, Outcome::FileError) << path;
    EXPECT_FALSE(result.message.empty()) << path;
    EXPECT_THAT(numbers(), IsEmpty());
  }
}

TEST_F(SchemeFile, TellsWhatTheSystemSaysWhereItCannotBeWritten) {
  for (const std::filesystem::path& path : {folder_.path(), folder_ / "missing/keys.xml"}) {
    const SchemeFileResult result = writeSchemeFile(path.u16string(), {}, 0);
    EXPECT_EQ(result.outcome, Outcome::FileError) << path;
    EXPECT_FALSE(result.message.empty()) << path;
  }
  EXPECT_EQ(folder_.listing().find("keys"), std::string::npos);
}

}  // namespace
}  // namespace brennet
