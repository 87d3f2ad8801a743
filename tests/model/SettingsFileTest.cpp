#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "markup/MarkupDocument.h"
#include "model/HotkeyConfig.h"
#include "tests/model/Keys.h"
#include "tests/support/Golden.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/TempFolder.h"

namespace brennet {
namespace {

using namespace test;

constexpr char kDeclaration[] = "<?xml version=\"1.0\" encoding=\"gb2312\"?>\r\n";

// A settings file in a folder of its own, and a profile folder with the game's preference file.
class SettingsFile : public testing::Test {
 protected:
  SettingsFile() : profile_(folder_.path()) {
    std::filesystem::create_directories(preferences_.parent_path());
    writeBytes(preferences_, kPreferences);
  }

  bool load(HotkeyConfig& config, const std::string& bytes) {
    writeBytes(file_, bytes);
    return config.Load(file_.u16string());
  }
  bool save(HotkeyConfig& config, std::uint32_t saveTime = 0) {
    return config.Save(file_.u16string(), saveTime);
  }
  [[nodiscard]] bool preferencesFollowed() const { return readBytes(preferences_) != kPreferences; }

  static constexpr char kPreferences[] = "[Gameplay]\r\ncustomkeys=0\r\n\r\n";

  TempFolder folder_;
  ScopedProfile profile_;
  std::filesystem::path file_ = folder_ / "KeyInfo.xml";
  std::filesystem::path preferences_ = folder_ / "Documents/Warcraft III/War3Preferences.txt";
};

// A file with `scheme` inside KeyInfo_0.
std::string withScheme(const std::string& scheme) {
  return kDeclaration + std::string("<KeyInfo enable=\"1\" index=\"0\"><LastSaveTime>5") +
         "</LastSaveTime><KeyInfo_0>" + scheme + "</KeyInfo_0></KeyInfo>";
}

// What cannot be loaded

TEST_F(SettingsFile, IsNotLoadedWhenItMakesNoSense) {
  const struct {
    const char* name;
    std::string bytes;
  } kRows[] = {
      {"empty", ""},
      {"zero bytes only", std::string(100, '\0')},
      {"no markup", "hello"},
      {"no KeyInfo", "<Other><LastSaveTime>5</LastSaveTime></Other>"},
      {"no LastSaveTime", "<KeyInfo enable=\"1\" index=\"2\"><KeyInfo_0/></KeyInfo>"},
      {"an empty LastSaveTime",
       "<KeyInfo enable=\"1\" index=\"2\"><LastSaveTime></LastSaveTime>"
       "<KeyInfo_0><ZoomValue>50</ZoomValue></KeyInfo_0></KeyInfo>"},
      {"two roots", "<KeyInfo><LastSaveTime>5</LastSaveTime></KeyInfo><KeyInfo/>"},
      {"an unclosed root", "<KeyInfo><LastSaveTime>5</LastSaveTime>"},
      {"a truncated tag", "<KeyInfo><LastSaveTime>5</LastSaveTime></KeyInf"},
  };
  for (const auto& row : kRows) {
    HotkeyConfig config;
    EXPECT_FALSE(load(config, row.bytes)) << row.name;
    EXPECT_FALSE(config.enable()) << row.name;
    EXPECT_EQ(config.index(), 0U) << row.name;
    EXPECT_FALSE(config.loaded()) << row.name;
    for (int n = 0; n < 3; ++n) EXPECT_EQ(config.scheme(n), HotkeyScheme()) << row.name;
    EXPECT_FALSE(preferencesFollowed()) << row.name;
    EXPECT_EQ(readBytes(file_), row.bytes) << row.name;
  }
}

TEST_F(SettingsFile, IsNotLoadedWhenItCannotBeRead) {
  for (const auto& path : {folder_ / "missing.xml", folder_.path(), std::filesystem::path()}) {
    HotkeyConfig config;
    config.setEnable(true);
    EXPECT_FALSE(config.Load(path.u16string())) << path;
    EXPECT_FALSE(config.enable()) << "the defaults are in place";
  }
  EXPECT_FALSE(preferencesFollowed());
  EXPECT_EQ(folder_.listing(), "Documents\n") << "nothing is created";
}

TEST_F(SettingsFile, KeepsWhatErrorsInsideTheRootLeave) {
  HotkeyConfig config;
  EXPECT_TRUE(load(config,
                   "<KeyInfo><LastSaveTime>5</LastSaveTime></Stray><KeyInfo_0>"
                   "<Unclosed><ZoomValue>70</ZoomValue></KeyInfo_0>"
                   "<KeyInfo_1><ZoomValue>60</ZoomValue></KeyInfo_1></KeyInfo>"));
  EXPECT_EQ(config.scheme(1).ZoomValue, 60);
}

// The root

TEST_F(SettingsFile, CarriesSwitchIndexAndSaveTime) {
  const struct {
    std::string attributes;
    bool enable;
    std::uint32_t index;
  } kRows[] = {
      {"enable=\"1\" index=\"2\"", true, 2},
      {"enable=\"0\" index=\"0\"", false, 0},
      {"enable=\"2\" index=\"7\"", false, 7},
      {"enable=\" 1x\" index=\"10\"", true, 10},
      {"enable=\"\" index=\"\"", false, 0},
      {"", false, 0},
      {"enable='1' index='11'", true, 0},
      {"enable=\"-1\" index=\"-1\"", false, 0},
      {"enable=\"1\" index=\"4294967296\"", true, 0},
  };
  for (const auto& row : kRows) {
    HotkeyConfig config;
    EXPECT_TRUE(load(
        config, "<KeyInfo " + row.attributes + "><LastSaveTime>5</LastSaveTime>" + "</KeyInfo>"))
        << row.attributes;
    EXPECT_EQ(config.enable(), row.enable) << row.attributes;
    EXPECT_EQ(config.index(), row.index) << row.attributes;
    EXPECT_EQ(config.LastSaveTime(), 5U);
    EXPECT_TRUE(config.loaded());
  }
}

TEST_F(SettingsFile, CarriesEverySaveTime) {
  for (const std::uint32_t time : {0U, 1U, 1700000000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    HotkeyConfig config;
    EXPECT_TRUE(save(config, time));
    EXPECT_EQ(config.LastSaveTime(), 0U) << "saving leaves the value in memory alone";
    EXPECT_TRUE(config.Load(file_.u16string()));
    EXPECT_EQ(config.LastSaveTime(), time);
  }
}

TEST_F(SettingsFile, KeepsAnIndexThatIsNoScheme) {
  HotkeyConfig config;
  ASSERT_TRUE(load(config, "<KeyInfo index=\"7\"><LastSaveTime>5</LastSaveTime></KeyInfo>"));
  EXPECT_EQ(config.scheme(), HotkeyScheme());
  ASSERT_TRUE(save(config));
  EXPECT_NE(readBytes(file_).find("index=\"7\""), std::string::npos);
}

// One scheme

struct SchemeRow {
  const char* name;
  std::string xml;
  std::function<void(HotkeyScheme&)> expect;
};

std::string key(int id, int value) {
  return "<Key id=\"" + std::to_string(id) + "\">" + std::to_string(value) + "</Key>";
}

// What a scheme in the file holds, and how loading it changes the defaults.
const SchemeRow kSchemeRows[] = {
    {"nothing", "", [](HotkeyScheme&) {}},
    {"zoom", "<ZoomValue>130</ZoomValue>", [](HotkeyScheme& s) { s.ZoomValue = 130; }},
    {"zoom, low byte", "<ZoomValue>300</ZoomValue>", [](HotkeyScheme& s) { s.ZoomValue = 44; }},
    {"zoom, empty", "<ZoomValue></ZoomValue>", [](HotkeyScheme&) {}},
    {"switch on", "<HideUI>1</HideUI>", [](HotkeyScheme& s) { s.HideUI = 1; }},
    {"switch 2", "<LockMouseFlag>2</LockMouseFlag>", [](HotkeyScheme&) {}},
    {"hero skills",
     "<HeroSkillKey><Key id=\"0\" autocast=\"1\">20736</Key>"
     "<Key id=\"11\" autocast=\"0\">22276</Key></HeroSkillKey>",
     [](HotkeyScheme& s) {
       s.HeroSkillKey[0] = kQ, s.HeroSkillAutocast[0] = true;
       s.HeroSkillKey[11] = kAltW, s.HeroSkillAutocast[11] = false;
     }},
    {"Shift is cleared", "<HeroSkillKey>" + key(0, 20737) + "</HeroSkillKey>",
     [](HotkeyScheme& s) { s.HeroSkillKey[0] = kQ; }},
    {"ids out of range",
     "<HeroSkillKey>" + key(12, 20736) + key(-1, 20736) + "<Key>20736</Key>" +
         "<Key id=\"\">20736</Key></HeroSkillKey><MouseKey>" + key(3, 20736) +
         "</MouseKey><ItemKey>" + key(0, 20736) + key(102, 20736) + "</ItemKey>" +
         "<SecretaryKey>" + key(3, 20736) + "</SecretaryKey><HotKey><Key id=\"6\">" +
         "<Src>20736</Src><Dest>20736</Dest></Key></HotKey><QuickChat><Chat id=\"8\">x</Chat>" +
         "<Chat>x</Chat></QuickChat>",
     [](HotkeyScheme&) {}},
    {"a mark with an empty key", "<ItemKey><Key id=\"98\" autocast=\"7\"></Key></ItemKey>",
     [](HotkeyScheme& s) { s.ItemAutocast[5] = true; }},
    {"the first of two equal keys wins",
     "<HeroSkillKey>" + key(3, 20736) + key(1, 20736) + "</HeroSkillKey>",
     [](HotkeyScheme& s) { s.HeroSkillKey[3] = kQ; }},
    {"hero skills before mouse before items",
     "<ItemKey>" + key(103, 20736) + "</ItemKey><HeroSkillKey/><MouseKey/>",
     [](HotkeyScheme& s) { s.ItemKey[0] = kQ; }},
    {"forbidden keys",
     "<HeroSkillKey>" + key(0, 0x0D00) + key(1, 0x0800) + key(2, 0x2E00) + key(3, 65280) +
         "</HeroSkillKey>",
     [](HotkeyScheme&) {}},
    {"a key of the default quick-chat set", "<SecretaryKey>" + key(0, 0x7004) + "</SecretaryKey>",
     [](HotkeyScheme&) {}},
    {"a refused key replaces an accepted one",
     "<HeroSkillKey>" + key(0, 20736) + key(1, 22272) + key(1, 20736) + "</HeroSkillKey>",
     [](HotkeyScheme& s) { s.HeroSkillKey[0] = kQ; }},
    {"remaps",
     "<HotKey><Key id=\"0\"><Src>20736</Src><Dest>22272</Dest></Key>"
     "<Key id=\"1\"><Dest>17664</Dest><Src>20736</Src></Key>"
     "<Key id=\"2\"><Src>20736</Src></Key><Key id=\"3\"><Src/><Dest>20992</Dest></Key>"
     "<Key id=\"4\"><Src>20736</Src><Dest>22272</Dest></Key>"
     "<Key id=\"5\"><Src>20736</Src><Dest>65280</Dest></Key></HotKey>",
     [](HotkeyScheme& s) {
       s.HotKey[0] = {kQ, kW}, s.HotKey[1] = {kQ, kE}, s.HotKey[5] = {kQ, kNoKey};
     }},
    {"a combination", "<ComboKey><Key_A>20736</Key_A><Key_D>20992</Key_D></ComboKey>",
     [](HotkeyScheme& s) {
       s.ComboKey = {kQ, kNoKey, kNoKey, kR};
     }},
    {"the later combination wins",
     "<ComboKey><Key_A>20736</Key_A><Key_D>20992</Key_D></ComboKey>"
     "<ComboKey3to1><Key_A>22272</Key_A><Key_D>20992</Key_D></ComboKey3to1>",
     [](HotkeyScheme& s) {
       s.ComboKey = {kW, kNoKey, kNoKey, kR};
     }},
    {"an empty later combination says nothing",
     "<ComboKey><Key_A>20736</Key_A><Key_D>20992</Key_D></ComboKey><ComboKey3to1/>",
     [](HotkeyScheme& s) {
       s.ComboKey = {kQ, kNoKey, kNoKey, kR};
     }},
    {"a later combination that is refused clears all four",
     "<ComboKey><Key_A>20736</Key_A><Key_D>20992</Key_D></ComboKey>"
     "<ComboKey3to1><Key_A>22272</Key_A><Key_B>17664</Key_B><Key_D>17664</Key_D></ComboKey3to1>",
     [](HotkeyScheme&) {}},
    {"a refused combination clears all four",
     "<HeroSkillKey>" + key(0, 20992) +
         "</HeroSkillKey>"
         "<ComboKey><Key_A>20736</Key_A><Key_D>20992</Key_D></ComboKey>",
     [](HotkeyScheme& s) { s.HeroSkillKey[0] = kR; }},
    {"a preset", "<NumComboKeyIndex>2</NumComboKeyIndex>",
     [](HotkeyScheme& s) { s.NumComboKeyIndex = 2; }},
    {"a preset that is none", "<NumComboKeyIndex>3</NumComboKeyIndex>", [](HotkeyScheme&) {}},
    {"a preset whose keys are taken",
     "<HeroSkillKey>" + key(0, 20740) + "</HeroSkillKey><NumComboKeyIndex>0</NumComboKeyIndex>",
     [](HotkeyScheme& s) { s.HeroSkillKey[0] = kAltQ; }},
    {"single keys are refused by a preset read before",
     "<NumComboKeyIndex>0</NumComboKeyIndex><ShowFBlood>20740</ShowFBlood>",
     [](HotkeyScheme& s) { s.NumComboKeyIndex = 0; }},
    {"single keys",
     "<ShowFBlood>20736</ShowFBlood><ShowEBlood>22272</ShowEBlood><WinLockMouse>17664"
     "</WinLockMouse><QuickChatKey>20992</QuickChatKey><ChatWheelkey>20738</ChatWheelkey>"
     "<HotkeyContrl>22276</HotkeyContrl>",
     [](HotkeyScheme& s) {
       s.ShowFBlood = kQ, s.ShowEBlood = kW, s.WinLockMouse = kE, s.QuickChatKey = kR;
       s.ChatWheelkey = kCtrlQ, s.HotkeyContrl = kAltW;
     }},
    {"the chat wheel key wins over the on-off key",
     "<HotkeyContrl>20736</HotkeyContrl>"
     "<ChatWheelkey>20736</ChatWheelkey>",
     [](HotkeyScheme& s) { s.ChatWheelkey = kQ; }},
    {"the quick-chat set", "<QuickChatIndex>0</QuickChatIndex>",
     [](HotkeyScheme& s) { s.QuickChatIndex = 0; }},
    {"a quick-chat set that is none", "<QuickChatIndex>-1</QuickChatIndex>", [](HotkeyScheme&) {}},
    {"phrases",
     "<QuickChat><Chat id=\"0\">\xD0\xBB\xD0\xBB</Chat><Chat id=\"7\">a&lt;b</Chat></QuickChat>"
     "<ChatWheel><Chat id=\"1\"></Chat></ChatWheel>",
     [](HotkeyScheme& s) {
       s.QuickChat[0] = u"\u8C22\u8C22", s.QuickChat[7] = u"a<b", s.ChatWheel[1] = u"";
     }},
    {"a long phrase", "<ChatWheel><Chat id=\"0\">" + std::string(43, 'a') + "</Chat></ChatWheel>",
     [](HotkeyScheme& s) { s.ChatWheel[0] = std::u16string(42, u'a'); }},
    {"settings in any order", "<HideUI>1</HideUI><ZoomValue>90</ZoomValue>",
     [](HotkeyScheme& s) { s.HideUI = 1, s.ZoomValue = 90; }},
    {"hero skills in front of the zoom value are not found",
     "<HeroSkillKey>" + key(0, 20736) + "</HeroSkillKey><ZoomValue>90</ZoomValue>",
     [](HotkeyScheme& s) { s.ZoomValue = 90; }},
    {"keys that are no numbers", "<HeroSkillKey><Key id=\"0\">Q</Key></HeroSkillKey>",
     [](HotkeyScheme& s) { s.HeroSkillKey[0] = KeyWord(0); }},
    {"a key beyond 16 bits", "<ShowFBlood>86272</ShowFBlood>",
     [](HotkeyScheme& s) { s.ShowFBlood = kQ; }},
};

TEST_F(SettingsFile, ReadsEverySettingOfAScheme) {
  for (const SchemeRow& row : kSchemeRows) {
    HotkeyConfig config;
    HotkeyScheme expected;
    row.expect(expected);
    EXPECT_TRUE(load(config, withScheme(row.xml))) << row.name;
    EXPECT_EQ(config.scheme(0), expected) << row.name;
    EXPECT_EQ(config.scheme(1), HotkeyScheme()) << row.name;
  }
}

TEST_F(SettingsFile, GivesBackAKeyOfTheSetThatIsNotChosen) {
  HotkeyConfig config;
  ASSERT_TRUE(config.SetQuickChatIndex(0));
  ASSERT_TRUE(config.SetHeroSkillKey(0, kAltF1, true));
  ASSERT_TRUE(save(config));
  HotkeyConfig loaded;
  ASSERT_TRUE(loaded.Load(file_.u16string()));
  EXPECT_EQ(loaded.scheme().HeroSkillKey[0], kAltF1);
  EXPECT_EQ(loaded.scheme().QuickChatIndex, 0U);
}

TEST_F(SettingsFile, OfTheOlderLayoutHasItsSettingsInTheRoot) {
  const std::string old =
      "<ZoomValue>90</ZoomValue><HeroSkillKey>" + key(0, 20736) + "</HeroSkillKey>";
  const std::string root = "<KeyInfo enable=\"1\"><LastSaveTime>5</LastSaveTime>";
  const std::string second = "<KeyInfo_1><ZoomValue>80</ZoomValue></KeyInfo_1>";
  HotkeyConfig config;
  EXPECT_TRUE(load(config, root + old + second + "</KeyInfo>"));
  EXPECT_EQ(config.scheme(0).ZoomValue, 90);
  EXPECT_EQ(config.scheme(0).HeroSkillKey[0], kQ);
  EXPECT_EQ(config.scheme(1).ZoomValue, 80);

  EXPECT_TRUE(load(config, root + second + "<KeyInfo_0/>" + old + "</KeyInfo>"));
  EXPECT_EQ(config.scheme(0), HotkeyScheme()) << "KeyInfo_0 is there, so the root says nothing";
  EXPECT_EQ(config.scheme(1).ZoomValue, 80);
}

TEST_F(SettingsFile, FindsSchemesInAnyOrder) {
  HotkeyConfig config;
  EXPECT_TRUE(load(config,
                   "<KeyInfo><KeyInfo_2><ZoomValue>12</ZoomValue></KeyInfo_2>"
                   "<KeyInfo_1><ZoomValue>11</ZoomValue></KeyInfo_1><LastSaveTime>5"
                   "</LastSaveTime><KeyInfo_0><ZoomValue>10</ZoomValue></KeyInfo_0></KeyInfo>"));
  for (int n = 0; n < 3; ++n) EXPECT_EQ(config.scheme(n).ZoomValue, 10 + n);
}

TEST_F(SettingsFile, LeavesWhatAResetLeavesWhenTheFileDoesNotSay) {
  HotkeyConfig config;
  config.editableScheme(0)->QuickChat[2] = u"gg";
  config.editableScheme(0)->DisableLeftAlt = 1;
  ASSERT_TRUE(load(config, withScheme("")));
  EXPECT_EQ(config.scheme(0).QuickChat[2], u"gg");
  EXPECT_EQ(config.scheme(0).DisableLeftAlt, 1);
  ASSERT_TRUE(load(config, withScheme("<DisableLeftAlt>0</DisableLeftAlt><QuickChat>"
                                      "<Chat id=\"2\"/></QuickChat>")));
  EXPECT_EQ(config.scheme(0).QuickChat[2], u"") << "an empty phrase is one that was emptied";
  EXPECT_EQ(config.scheme(0).DisableLeftAlt, 0);
}

TEST(SettingsFileLoadScheme, RefusesASchemeThatIsNone) {
  HotkeyConfig config;
  MarkupDocument document;
  document.setDoc(u"<a/>");
  document.findElem();
  for (const int scheme : {-1, 3, 100}) {
    EXPECT_FALSE(config.LoadScheme(scheme, document));
    EXPECT_FALSE(config.SaveScheme(scheme, document));
  }
  EXPECT_EQ(document.doc(), u"<a/>");
}

// Saving

TEST_F(SettingsFile, IsWrittenInItsFixedForm) {
  HotkeyConfig config;
  config.setEnable(true);
  HotkeyScheme& scheme = *config.editableScheme();
  scheme.HeroSkillKey[0] = kAltQ;
  scheme.HeroSkillAutocast[0] = true;
  scheme.QuickChat[3] = u"\u8C22\u8C22 <&>";
  ASSERT_TRUE(save(config, 1700000000));
  expectGolden("model/fixed-form.KeyInfo.xml", readBytes(file_));
}

TEST_F(SettingsFile, TakesTheItemMarksOfEverySchemeFromTheCurrentOne) {
  HotkeyConfig config;
  ASSERT_TRUE(config.setIndex(1));
  ASSERT_TRUE(config.SetItemAutocast(0x67, true, 1));
  ASSERT_TRUE(config.SetItemAutocast(0x68, true, 0));
  ASSERT_TRUE(config.SetHeroSkillAutocast(0, true, 0));
  ASSERT_TRUE(save(config));
  HotkeyConfig loaded;
  ASSERT_TRUE(loaded.Load(file_.u16string()));
  for (int n = 0; n < 3; ++n) {
    EXPECT_EQ(loaded.scheme(n).ItemAutocast[0], true) << n;
    EXPECT_EQ(loaded.scheme(n).ItemAutocast[1], false) << n;
    EXPECT_EQ(loaded.scheme(n).HeroSkillAutocast[0], n == 0) << n;
  }
}

TEST_F(SettingsFile, KeepsTheItemMarksWhenTheCurrentIndexIsNoScheme) {
  HotkeyConfig config;
  for (int n = 0; n < 3; ++n) ASSERT_TRUE(config.SetItemAutocast(kItemSlotCodes[0], n != 1, n));
  ASSERT_TRUE(config.setIndex(9));
  ASSERT_TRUE(save(config));
  HotkeyConfig loaded;
  ASSERT_TRUE(loaded.Load(file_.u16string()));
  for (int n = 0; n < 3; ++n) EXPECT_EQ(loaded.scheme(n).ItemAutocast[0], n != 1) << n;
}

TEST_F(SettingsFile, ReadsBackEveryPhraseThatItsCodePageHolds) {
  const std::u16string kPhrases2[] = {u"\u8C22\u8C22", u"\u4F60\u597D", u"gg & wp",
                                      u" a ",          u"]]>",          u"\"quoted\" 'single'",
                                      u"\u554A",       u"tab\there"};
  HotkeyConfig config;
  for (std::size_t n = 0; n < 8; ++n) config.editableScheme()->QuickChat[n] = kPhrases2[n];
  ASSERT_TRUE(save(config));
  HotkeyConfig loaded;
  ASSERT_TRUE(loaded.Load(file_.u16string()));
  for (std::size_t n = 0; n < 8; ++n) EXPECT_EQ(loaded.scheme().QuickChat[n], kPhrases2[n]);
}

TEST_F(SettingsFile, ReadsBackAPhraseWhoseBytesLookLikeUtf8) {
  HotkeyConfig config;
  config.editableScheme()->QuickChat[0] = u"\u8C22\u8C22";  // D0 BB D0 BB
  ASSERT_TRUE(save(config));
  HotkeyConfig loaded;
  ASSERT_TRUE(loaded.Load(file_.u16string()));
  EXPECT_EQ(loaded.scheme().QuickChat[0], u"\u8C22\u8C22");
}

TEST_F(SettingsFile, LosesOnlyWhatItsCodePageLacks) {
  HotkeyConfig config;
  config.editableScheme()->QuickChat[0] = u"a\U0001F600b";
  ASSERT_TRUE(save(config));
  HotkeyConfig loaded;
  ASSERT_TRUE(loaded.Load(file_.u16string()));
  EXPECT_EQ(loaded.scheme().QuickChat[0], u"a??b");
}

TEST_F(SettingsFile, IsSavedIntoAMissingFolderOneLevelDeep) {
  HotkeyConfig config;
  EXPECT_TRUE(config.Save((folder_ / "new/KeyInfo.xml").make_preferred().u16string(), 1));
  EXPECT_TRUE(std::filesystem::exists(folder_ / "new/KeyInfo.xml"));
  EXPECT_FALSE(config.Save((folder_ / "two/levels/KeyInfo.xml").make_preferred().u16string(), 1));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "two"));
}

TEST_F(SettingsFile, LooksForItsFolderAtTheLastBackslashFirst) {
  HotkeyConfig config;
  const std::u16string folder = folder_.path().u16string();
  // Except on Windows, a backslash is part of a name, so the file cannot be written before or after
  // the folder is created; the test sees only the folder.
  EXPECT_FALSE(config.Save(folder + u"/first\\second/KeyInfo.xml", 1));
  EXPECT_TRUE(std::filesystem::exists(folder_ / "first"));
}

TEST_F(SettingsFile, IsNotSavedWhereItCannotBe) {
  for (const auto& path : {std::filesystem::path(), folder_.path()}) {
    HotkeyConfig config;
    EXPECT_FALSE(config.Save(path.u16string(), 1)) << path;
    EXPECT_FALSE(config.loaded()) << path;
    EXPECT_TRUE(preferencesFollowed()) << "the game follows what is in memory";
    writeBytes(preferences_, kPreferences);
  }
}

TEST_F(SettingsFile, TakesThePreferenceFileAlong) {
  HotkeyConfig config;
  ASSERT_TRUE(load(config, "<KeyInfo enable=\"1\"><LastSaveTime>5</LastSaveTime></KeyInfo>"));
  EXPECT_TRUE(preferencesFollowed());
  EXPECT_NE(readBytes(preferences_).find("customkeys=2"), std::string::npos);
  config.setEnable(false);
  ASSERT_TRUE(save(config));
  EXPECT_TRUE(config.loaded());
  EXPECT_NE(readBytes(preferences_).find("customkeys=0"), std::string::npos);
}

}  // namespace
}  // namespace brennet
