// What a load reports about the keys that it could not use.

#include "model/LoadReport.h"

#include <gtest/gtest.h>

#include <string>

#include "markup/MarkupDocument.h"
#include "model/HotkeyConfig.h"
#include "tests/model/Keys.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/TempFolder.h"

namespace brennet {

void PrintTo(const DroppedKey& dropped, std::ostream* out) {
  *out << "scheme " << dropped.scheme << ", slot " << static_cast<int>(dropped.slot.setting) << ' '
       << int{dropped.slot.index} << ", element " << static_cast<int>(dropped.element) << ", key "
       << dropped.key.raw() << ", text " << testing::PrintToString(dropped.text) << ", line "
       << dropped.position.line << ", column " << dropped.position.column;
  if (!dropped.conflict) return;
  *out << ", reason " << static_cast<int>(dropped.conflict->reason) << ", holder "
       << static_cast<int>(dropped.conflict->holder.setting) << ' '
       << int{dropped.conflict->holder.index} << ", choice " << int{dropped.conflict->choice};
}

namespace {

using namespace test;
using Reason = KeyConflict::Reason;
using enum SettingId;

// Loads the text as the second scheme. It starts in line 2, column 1.
HotkeyConfig loaded(const std::u16string& scheme) {
  MarkupDocument document;
  EXPECT_TRUE(document.setDoc(u"<KeyInfo><LastSaveTime>5</LastSaveTime><KeyInfo_1>\r\n" + scheme +
                              u"</KeyInfo_1></KeyInfo>"));
  HotkeyConfig config;
  EXPECT_TRUE(config.loadFrom(document));
  return config;
}

struct Row {
  const char* name;
  std::u16string xml;
  std::vector<DroppedKey> dropped;
};

const KeyConflict kHeldBySkill0{Reason::Held, {HeroSkillKey, 0}};
const std::u16string kSkillQ = u"<HeroSkillKey><Key id=\"0\">20736</Key>";

const Row kRows[] = {
    {"nothing to drop", kSkillQ + u"</HeroSkillKey>", {}},
    {"no key, in both ways of saying so",
     u"<HeroSkillKey><Key id=\"0\">65280</Key><Key id=\"1\">0</Key><Key id=\"2\">0</Key>"
     u"<Key id=\"3\"></Key></HeroSkillKey><ShowFBlood>65284</ShowFBlood>",
     {}},
    {"two skills with one key",
     kSkillQ + u"\n <Key id=\"1\"> 20737 </Key></HeroSkillKey>",
     {{1, {HeroSkillKey, 1}, HeroSkillKey, kQ, u" 20737 ", kHeldBySkill0, {3, 2}}}},
    {"a wheel key that repeats a skill, and an item",
     kSkillQ + u"</HeroSkillKey>\n<ItemKey><Key id=\"98\">20736</Key></ItemKey>\n<MouseKey>"
               u"<Key id=\"2\">20736</Key></MouseKey>",
     {{1, {ItemKey, 5}, ItemKey, kQ, u"20736", kHeldBySkill0, {3, 10}},
      {1, {MouseKey, 2}, MouseKey, kQ, u"20736", kHeldBySkill0, {4, 11}}}},
    {"a remap and a combination",
     kSkillQ + u"</HeroSkillKey>\n<HotKey><Key id=\"4\"><Src>22272</Src><Dest>20736</Dest></Key>"
               u"</HotKey>\n<ComboKey><Key_D>20736</Key_D></ComboKey>\n<ComboKey3to1><Key_A>22272"
               u"</Key_A><Key_D>20736</Key_D></ComboKey3to1>",
     {{1, {HotKey, 9}, HotKey, kQ, u"20736", kHeldBySkill0, {3, 37}},
      {1, kComboTarget, ComboKey3to1, kQ, u"20736", kHeldBySkill0, {5, 35}}}},
    {"a combination that sends itself",
     u"<ComboKey><Key_B>20736</Key_B><Key_D>20736</Key_D></ComboKey>",
     {{1,
       kComboTarget,
       ComboKey,
       kQ,
       u"20736",
       KeyConflict{Reason::SentByItself, {ComboKey, 1}},
       {2, 31}}}},
    {"keys that cannot be bound",
     u"<ShowEBlood>3328</ShowEBlood>",
     {{1, {ShowEBlood}, ShowEBlood, KeyWord(0x0D, 0), u"3328", KeyConflict{}, {2, 1}}}},
    {"a key of the chosen preset",
     u"<NumComboKeyIndex>0</NumComboKeyIndex><WinLockMouse>20740</WinLockMouse>",
     {{1,
       {WinLockMouse},
       WinLockMouse,
       kAltQ,
       u"20740",
       KeyConflict{Reason::ItemPresetKey, {NumComboKeyIndex, 0}, 0},
       {2, 39}}}},
    {"a key of the set that stays chosen",
     u"<SecretaryKey><Key id=\"1\">28676</Key></SecretaryKey><QuickChatIndex>1</QuickChatIndex>",
     {{1,
       {SecretaryKey, 1},
       SecretaryKey,
       kAltF1,
       u"28676",
       KeyConflict{Reason::QuickChatSetKey, {QuickChatIndex, 0}, 1},
       {2, 15}}}},
    {"what comes back in the end",
     u"<SecretaryKey><Key id=\"1\">28676</Key></SecretaryKey><QuickChatIndex>0</QuickChatIndex>",
     {}},
    {"what a later entry replaces",
     kSkillQ + u"<Key id=\"1\">20736</Key><Key id=\"1\">22272</Key><Key id=\"2\">Q</Key>"
               u"<Key id=\"2\">65280</Key></HeroSkillKey>",
     {}},
    {"who has it in the end",
     kSkillQ + u"<Key id=\"1\">20736</Key><Key id=\"0\">22272</Key><Key id=\"2\">20736</Key>"
               u"</HeroSkillKey>",
     {{1,
       {HeroSkillKey, 1},
       HeroSkillKey,
       kQ,
       u"20736",
       KeyConflict{Reason::Held, {HeroSkillKey, 2}},
       {2, 38}}}},
    {"damaged numbers",
     u"<HeroSkillKey><Key id=\"0\">Q</Key><Key id=\"1\">-1</Key><Key id=\"2\">99999999999</Key>"
     u"</HeroSkillKey><HotKey><Key id=\"0\"><Src>x</Src><Dest>20736</Dest></Key></HotKey>"
     u"<ComboKey><Key_A>0x51</Key_A><Key_D>22272</Key_D></ComboKey><ComboKey3to1><Key_D>22272"
     u"</Key_D></ComboKey3to1>",
     {{1, {HeroSkillKey, 0}, HeroSkillKey, KeyWord(0), u"Q", {}, {2, 15}},
      {1, {HeroSkillKey, 1}, HeroSkillKey, KeyWord(0xFFFE), u"-1", {}, {2, 34}},
      {1, {HeroSkillKey, 2}, HeroSkillKey, KeyWord(0xFFFE), u"99999999999", {}, {2, 54}},
      {1, {HotKey, 0}, HotKey, KeyWord(0), u"x", {}, {2, 118}},
      {1, {ComboKey, 0}, ComboKey, KeyWord(0), u"0x51", {}, {2, 173}}}},
    {"numbers of which a key was made after all",
     u"<HeroSkillKey><Key id=\"0\">20736x</Key><Key id=\"1\">87808</Key></HeroSkillKey>",
     {}},
};

TEST(LoadReport, TellsOfEveryKeyThatCameToNothing) {
  for (const Row& row : kRows) {
    EXPECT_EQ(loaded(row.xml).loadReport().droppedKeys, row.dropped) << row.name;
  }
}

TEST(LoadReport, GoesSchemeByScheme) {
  const std::u16string two =
      u"><HeroSkillKey><Key id=\"0\">20736</Key><Key id=\"1\">20736</Key></HeroSkillKey></KeyInfo_";
  MarkupDocument document;
  ASSERT_TRUE(document.setDoc(u"<KeyInfo><LastSaveTime>5</LastSaveTime><KeyInfo_2" + two +
                              u"2><KeyInfo_0" + two + u"0></KeyInfo>"));
  HotkeyConfig config;
  ASSERT_TRUE(config.loadFrom(document));
  ASSERT_EQ(config.loadReport().droppedKeys.size(), 2U);
  EXPECT_EQ(config.loadReport().droppedKeys[0].scheme, 0);
  EXPECT_EQ(config.loadReport().droppedKeys[1].scheme, 2);
}

class LoadReportOf : public testing::Test {
 protected:
  LoadReportOf() {
    writeBytes(file_, kTwice);
    EXPECT_TRUE(config_.Load(file_.u16string()));
    EXPECT_EQ(count(config_), 1U);
  }

  static std::size_t count(const HotkeyConfig& config) {
    return config.loadReport().droppedKeys.size();
  }

  static constexpr char kTwice[] =
      "<KeyInfo><LastSaveTime>5</LastSaveTime><KeyInfo_0><HeroSkillKey><Key id=\"0\">20736</Key>"
      "<Key id=\"1\">20736</Key></HeroSkillKey></KeyInfo_0></KeyInfo>";

  TempFolder folder_;
  ScopedProfile profile_{folder_.path()};
  std::filesystem::path file_ = folder_ / "KeyInfo.xml";
  HotkeyConfig config_;
};

TEST_F(LoadReportOf, TheNextLoadTakesItsPlace) {
  EXPECT_TRUE(config_.Load(file_.u16string()));
  EXPECT_EQ(count(config_), 1U);
  writeBytes(file_, "<KeyInfo><LastSaveTime>5</LastSaveTime></KeyInfo>");
  EXPECT_TRUE(config_.Load(file_.u16string()));
  EXPECT_EQ(count(config_), 0U);
}

TEST_F(LoadReportOf, AFailedLoadIsEmpty) {
  EXPECT_FALSE(config_.Load((folder_ / "missing.xml").u16string()));
  EXPECT_EQ(count(config_), 0U);
}

TEST_F(LoadReportOf, AResetIsEmpty) {
  config_.Reset();
  EXPECT_EQ(count(config_), 0U);
}

TEST_F(LoadReportOf, ALoadStaysWithItsObject) {
  HotkeyConfig copy = config_;
  EXPECT_EQ(count(copy), 0U);
  copy = config_;
  EXPECT_EQ(count(copy), 0U);
  copy.ResetAndCopyFrom(config_);
  EXPECT_EQ(count(copy), 0U);
  copy.swap(config_);
  EXPECT_EQ(count(copy), 0U);
  EXPECT_EQ(count(config_), 1U);
  EXPECT_TRUE(config_.Save(file_.u16string(), 6));
  EXPECT_EQ(count(config_), 1U);
}

}  // namespace
}  // namespace brennet
