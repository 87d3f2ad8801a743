#include "cli/SettingsCheck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/TextDecoding.h"
#include "markup/text/TextEncoding.h"
#include "model/HotkeyConfig.h"
#include "model/RecommendedScheme.h"

namespace brennet::cli {
namespace {

// A settings file in which everything is there.
std::string goodFile() {
  HotkeyConfig config;
  recommend(*config.editableScheme(0));
  config.editableScheme(0)->QuickChat[0] = u"gg";
  MarkupDocument document;
  EXPECT_TRUE(config.saveTo(document, 1));
  ResultLog log;
  return encodeText(document.doc(), u"gb2312", log);
}

std::string replaced(std::string text, std::string_view what, std::string_view by) {
  const std::size_t at = text.find(what);
  EXPECT_NE(at, std::string::npos) << what;
  return text.replace(at, what.size(), by);
}

// The findings without their places, a line each.
std::string words(const SettingsCheck& check) {
  std::string text;
  for (const Finding& finding : check.findings) {
    text +=
        std::string(kindName(finding.kind)) + " | " + finding.where + " | " + finding.text + "\n";
  }
  return text;
}

TEST(SettingsCheck, FindsNothingInWhatASaveWrites) {
  const SettingsCheck check = checkSettings(goodFile());
  EXPECT_TRUE(check.isLoadable);
  EXPECT_EQ(check.encoding, "gb2312");
  EXPECT_EQ(words(check), "");
}

TEST(SettingsCheck, FindsEachFault) {
  const struct {
    const char* what;
    const char* by;
    const char* words;
  } kRows[] = {
      {"gb2312", "klingon",
       "encoding |  | nobody knows the encoding \"klingon\"; the system's own is taken\n"},
      {"enable=\"0\"", "enable=\"2\"", "number | enable | \"2\" is no number from 0 to 1\n"},
      {"index=\"0\"", "index=\"x\"", "number | index | \"x\" is no number from 0 to 10\n"},
      {"<LastSaveTime>", "<Other/><LastSaveTime>", "unknown |  | nothing reads <Other>\n"},
      {"<ZoomValue>100<", "<ZoomValue>256<",
       "number | setting group 1, ZoomValue | \"256\" is no number from 0 to 255\n"},
      {"<ZoomValue>", "<Zoom/><ZoomValue>", "unknown | setting group 1 | nothing reads <Zoom>\n"},
      {"<ZoomValue>", "<ZoomValue>7</ZoomValue><ZoomValue>",
       "repeated | setting group 1, ZoomValue | a second <ZoomValue> is not read\n"},
      {"<Key id=\"0\"", "<Key id=\"12\"",
       "unknown | setting group 1, HeroSkillKey | nothing has the id \"12\"\n"},
      {"<Key id=\"0\"", "<Key ",
       "unknown | setting group 1, HeroSkillKey | nothing has the id \"\"\n"},
      {"<Key id=\"0\"", "<Key id=\"1\"",
       "repeated | setting group 1, HeroSkillKey | a second id \"1\"; the later one counts\n"},
      {"<Key id=\"0\"", "<Key id=\"none\"",
       "number | setting group 1, HeroSkillKey | the id \"none\" is read as 0\n"},
      {"<HeroSkillKey>", "<HeroSkillKey><Kay/>",
       "unknown | setting group 1, HeroSkillKey | nothing reads <Kay>\n"},
      {"autocast=\"0\"", "autocast=\"on\"",
       "number | setting group 1, HeroSkillKey | \"on\" is no number from 0 to 1\n"},
      {"<Src>65280</Src>", "", "missing | setting group 1, HotKey | <Src> is missing\n"},
      {"<Src>65280</Src>", "<Src>65280</Src><Src>1</Src>",
       "repeated | setting group 1, HotKey | a second <Src> is not read\n"},
      {"<Key_B>65280</Key_B>", "<Key_E/>",
       "missing | setting group 1, ComboKey | <Key_B> is missing\n"
       "unknown | setting group 1, ComboKey | nothing reads <Key_E>\n"},
      {"<NumComboKeyIndex>-1<", "<NumComboKeyIndex>7<",
       "choice | setting group 1, NumComboKeyIndex | there is no choice \"7\"\n"},
      {"<ShowFBlood>65280<", "<ShowFBlood>3328<",
       "key | setting group 1, allied health bars | RETURN cannot be bound\n"},
      {"<ShowFBlood>65280<", "<ShowFBlood>none<",
       "key | setting group 1, allied health bars | \"none\" is no key\n"},
      {"<HideUI>0</HideUI>", "", "missing | setting group 1 | <HideUI> is missing\n"},
      {"</KeyInfo_2>", "</KeyInfo_2></oops>",
       "markup |  | an end tag without its element: <oops>\n"},
  };
  for (const auto& row : kRows) {
    const SettingsCheck check = checkSettings(replaced(goodFile(), row.what, row.by));
    EXPECT_TRUE(check.isLoadable) << row.by;
    EXPECT_EQ(words(check), row.words) << row.by;
  }
}

TEST(SettingsCheck, KnowsWhereALoadLooksForHeroSkills) {
  const std::string file =
      "<KeyInfo><LastSaveTime>1</LastSaveTime><KeyInfo_0>"
      "<HeroSkillKey><Key id=\"0\">20736</Key></HeroSkillKey><ZoomValue>90</ZoomValue>"
      "</KeyInfo_0></KeyInfo>";
  MarkupDocument document;
  HotkeyConfig config;
  ASSERT_TRUE(document.setDoc(std::u16string(file.begin(), file.end())));
  ASSERT_TRUE(config.loadFrom(document));
  ASSERT_FALSE(config.scheme(0).HeroSkillKey[0].isSet()) << "it is read; the check says otherwise";
  EXPECT_NE(
      words(checkSettings(file))
          .find("unknown | setting group 1 | nothing reads <HeroSkillKey> before <ZoomValue>\n"),
      std::string::npos);
}

TEST(SettingsCheck, TellsWhyALoadRefusesAFile) {
  const struct {
    const char* text;
    const char* words;
  } kRows[] = {
      {"", "markup |  | there is no element at all\n"},
      {"hello", "markup |  | there is no element at all\n"},
      {"<html/>", "missing |  | the root is not <KeyInfo>: this is no settings file\n"},
      {"<KeyInfo/>", "missing |  | <LastSaveTime> is missing or empty\n"},
      {"<KeyInfo><LastSaveTime/></KeyInfo>", "missing |  | <LastSaveTime> is missing or empty\n"},
      {"<KeyInfo><LastSaveTime>1</LastSaveTime>",
       "markup |  | an element without its end tag: <KeyInfo>\n"},
      {"<KeyInfo/><KeyInfo/>", "markup |  | a second element beside the root\n"},
  };
  for (const auto& row : kRows) {
    const SettingsCheck check = checkSettings(row.text);
    EXPECT_FALSE(check.isLoadable) << row.text;
    EXPECT_EQ(words(check), row.words) << row.text;
  }
}

TEST(SettingsCheck, TellsThePlace) {
  const SettingsCheck check =
      checkSettings(replaced(goodFile(), "<ZoomValue>", "\r\n  <Zoom/><ZoomValue>"));
  ASSERT_EQ(check.findings.size(), 1U);
  EXPECT_EQ(check.findings[0].position, (TextPosition{6, 3}));
}

TEST(SettingsCheck, FindsTheFirstByteThatMeansNothing) {
  const SettingsCheck check =
      checkSettings(replaced(goodFile(), "<Chat id=\"0\">", "<Chat id=\"0\">\xD0\xBB\x81 "));
  ASSERT_EQ(words(check), "encoding |  | bytes that mean nothing in gb2312\n");
  const std::string text = goodFile();
  const auto end = text.begin() + static_cast<std::ptrdiff_t>(text.find("<Chat id=\"0\">"));
  const auto line = static_cast<std::size_t>(std::count(text.begin(), end, '\n')) + 1;
  EXPECT_EQ(check.findings[0].position, (TextPosition{line, 15}));
}

TEST(SettingsCheck, ReadsFilesOfBeforeThereWereThreeGroups) {
  const SettingsCheck check = checkSettings(
      "<KeyInfo><LastSaveTime>1</LastSaveTime><ZoomValue>9</ZoomValue><Other/></KeyInfo>");
  EXPECT_TRUE(check.isLoadable);
  const std::string text = words(check);
  EXPECT_NE(text.find("unknown | setting group 1 | nothing reads <Other>\n"), std::string::npos);
  EXPECT_EQ(text.find("<LastSaveTime>"), std::string::npos) << text;
  EXPECT_EQ(text.find("<ZoomValue>"), std::string::npos) << text;
}

// Whatever the bytes are, and as often as a load accepts them.
TEST(SettingsCheck, AgreesWithALoadOnDamagedFiles) {
  std::mt19937 random(20741);
  const std::string good = goodFile();
  constexpr int kFiles = 300;
  for (int i = 0; i < kFiles; ++i) {
    std::string bytes = good;
    const std::size_t at = random() % bytes.size();
    if (random() % 4 == 0) {
      bytes.erase(at, random() % 200);
    } else {
      bytes[at] = static_cast<char>(random());
    }
    MarkupDocument document;
    ResultLog log;
    HotkeyConfig config;
    const bool isAccepted = document.setDoc(decodeText(bytes, declaredEncodingOfBytes, log).text) &&
                            config.loadFrom(document);
    EXPECT_EQ(checkSettings(bytes).isLoadable, isAccepted) << i;
  }
}

}  // namespace
}  // namespace brennet::cli
