// Which keys come back that were refused while a scheme was only half read.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "markup/MarkupDocument.h"
#include "model/HotkeyConfig.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;

std::string key(int id, int value) {
  return "<Key id=\"" + std::to_string(id) + "\">" + std::to_string(value) + "</Key>";
}

struct Row {
  const char* name;
  std::string xml;
  std::function<void(HotkeyScheme&)> expect;
};

// Keys of the default set, Alt+F1 to Alt+F8, are free if the file chooses the other set.
const Row kRows[] = {
    {"a key of the set that is not chosen",
     "<HeroSkillKey>" + key(4, 0x7004) + "</HeroSkillKey><QuickChatIndex>0</QuickChatIndex>",
     [](HotkeyScheme& s) { s.HeroSkillKey[4] = kAltF1, s.QuickChatIndex = 0; }},
    {"keys of the set that is not chosen, in every setting",
     "<HeroSkillKey>" + key(0, 0x7004) + "</HeroSkillKey><MouseKey>" + key(1, 0x7104) +
         "</MouseKey><ItemKey>" + key(98, 0x7205) + "</ItemKey><SecretaryKey>" + key(2, 0x7304) +
         "</SecretaryKey><HotKey><Key id=\"3\"><Src>20736</Src><Dest>" + std::to_string(0x7404) +
         "</Dest></Key></HotKey><ComboKey><Key_A>20736</Key_A><Key_D>" + std::to_string(0x7504) +
         "</Key_D></ComboKey><ComboKey3to1/><ShowFBlood>" + std::to_string(0x7604) +
         "</ShowFBlood><QuickChatKey>" + std::to_string(0x7704) +
         "</QuickChatKey><QuickChatIndex>0</QuickChatIndex>",
     [](HotkeyScheme& s) {
       const auto f = [](int n) { return KeyWord(static_cast<std::uint8_t>(0x6F + n), 4); };
       s.HeroSkillKey[0] = f(1), s.MouseKey[1] = f(2), s.ItemKey[5] = f(3);
       s.SecretaryKey[2] = f(4), s.HotKey[3] = {kQ, f(5)}, s.ComboKey = {kQ, kNoKey, kNoKey, f(6)};
       s.ShowFBlood = f(7), s.QuickChatKey = f(8), s.QuickChatIndex = 0;
     }},
    {"the set is not chosen when one of its keys is taken",
     "<HeroSkillKey>" + key(0, 0x7004) + key(1, 0x3104) +
         "</HeroSkillKey><QuickChatIndex>0</QuickChatIndex>",
     [](HotkeyScheme& s) { s.HeroSkillKey[1] = kAlt1; }},
    {"of two refused keys that are the same the first one comes back",
     "<HeroSkillKey>" + key(7, 0x7004) + key(2, 0x7004) + "</HeroSkillKey><MouseKey>" +
         key(0, 0x7004) + "</MouseKey><ShowFBlood>28676" +
         "</ShowFBlood><QuickChatIndex>0</QuickChatIndex>",
     [](HotkeyScheme& s) { s.HeroSkillKey[7] = kAltF1, s.QuickChatIndex = 0; }},
    {"the last entry of a key counts: another key",
     "<HeroSkillKey>" + key(0, 0x7004) + key(0, 20736) +
         "</HeroSkillKey><QuickChatIndex>0</QuickChatIndex>",
     [](HotkeyScheme& s) { s.HeroSkillKey[0] = kQ, s.QuickChatIndex = 0; }},
    {"the last entry of a key counts: no key",
     "<HeroSkillKey>" + key(0, 0x7004) + key(0, 65280) +
         "</HeroSkillKey><QuickChatIndex>0</QuickChatIndex>",
     [](HotkeyScheme& s) { s.QuickChatIndex = 0; }},
    {"the last entry of a key counts: a refused one",
     "<HeroSkillKey>" + key(0, 20736) + key(0, 0x7004) +
         "</HeroSkillKey><QuickChatIndex>0</QuickChatIndex>",
     [](HotkeyScheme& s) { s.HeroSkillKey[0] = kAltF1, s.QuickChatIndex = 0; }},
    {"the last entry of a key counts: two refused ones",
     "<HeroSkillKey>" + key(0, 0x7004) + key(1, 0x7104) + key(0, 0x7104) +
         "</HeroSkillKey><QuickChatIndex>0</QuickChatIndex>",
     [](HotkeyScheme& s) {
       s.HeroSkillKey[1] = KeyWord(0x71, KeyWord::kAlt), s.QuickChatIndex = 0;
     }},
    {"what another entry gave up in the meantime",
     "<HeroSkillKey>" + key(0, 20736) + key(1, 20736) + key(0, 22272) + "</HeroSkillKey>",
     [](HotkeyScheme& s) { s.HeroSkillKey[0] = kW, s.HeroSkillKey[1] = kQ; }},
    {"a later combination counts",
     "<ComboKey><Key_A>20736</Key_A><Key_D>28676</Key_D></ComboKey><ComboKey3to1>"
     "<Key_D>65280</Key_D></ComboKey3to1><QuickChatIndex>0</QuickChatIndex>",
     [](HotkeyScheme& s) { s.QuickChatIndex = 0; }},
};

TEST(KeyOffers, GiveEachKeyASecondChanceAgainstTheWholeScheme) {
  for (const Row& row : kRows) {
    const std::string text =
        "<KeyInfo><LastSaveTime>5</LastSaveTime><KeyInfo_0>" + row.xml + "</KeyInfo_0></KeyInfo>";
    MarkupDocument document;
    ASSERT_TRUE(document.setDoc(std::u16string(text.begin(), text.end()))) << row.name;
    HotkeyConfig config;
    ASSERT_TRUE(config.loadFrom(document)) << row.name;
    HotkeyScheme expected;
    row.expect(expected);
    EXPECT_EQ(config.scheme(0), expected) << row.name;
  }
}

}  // namespace
}  // namespace brennet
