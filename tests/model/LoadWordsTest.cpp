#include "model/LoadWords.h"

#include <gtest/gtest.h>

namespace brennet {
namespace {

using Reason = KeyConflict::Reason;
using enum SettingId;

constexpr KeyWord kQ('Q', 0);
constexpr KeyWord kAltF1(0x70, KeyWord::kAlt);

KeyConflict heldBy(KeySlot holder) {
  return {Reason::Held, holder};
}

TEST(LoadWords, PutEachDroppedKeyOnALine) {
  const struct {
    DroppedKey dropped;
    const char* words;
  } kRows[] = {
      {{0, {MouseKey, 0}, MouseKey, kQ, u"20736", heldBy({HeroSkillKey, 0}), {12, 5}},
       "line 12, column 5: setting group 1, wheel up: Q is hero skill 1"},
      {{2, {MouseKey, 2}, MouseKey, kAltF1, u"28676", heldBy({ItemKey, 5}), {1, 1}},
       "line 1, column 1: setting group 3, wheel down: Alt + F1 is item 6"},
      {{0, remapDestination(1), HotKey, kQ, u"", heldBy(remapDestination(5)), {1, 1}},
       "line 1, column 1: setting group 1, target of remap 2: Q is target of remap 6"},
      {{0, kComboTarget, ComboKey3to1, kQ, u"", heldBy({ChatWheelkey}), {1, 1}},
       "line 1, column 1: setting group 1, combination key D: Q is chat wheel"},
      {{0,
        kComboTarget,
        ComboKey,
        kQ,
        u"",
        KeyConflict{Reason::SentByItself, {ComboKey, 1}},
        {1, 1}},
       "line 1, column 1: setting group 1, combination key D: Q is combination key B"},
      {{0, {ShowFBlood}, ShowFBlood, KeyWord(0x0D, 0), u"3328", KeyConflict{}, {1, 1}},
       "line 1, column 1: setting group 1, allied health bars: RETURN cannot be bound"},
      {{0,
        {SecretaryKey, 1},
        SecretaryKey,
        kAltF1,
        u"",
        KeyConflict{Reason::QuickChatSetKey, {QuickChatIndex, 0}, 1},
        {1, 1}},
       "line 1, column 1: setting group 1, Ledger key 2: Alt + F1 sends quick-chat phrase 1"},
      {{0,
        {WinLockMouse},
        WinLockMouse,
        KeyWord('W', KeyWord::kAlt),
        u"",
        KeyConflict{Reason::ItemPresetKey, {NumComboKeyIndex, 1}, 0},
        {1, 1}},
       "line 1, column 1: setting group 1, cursor lock: Alt + W is item 2 of item preset 1"},
      {{0, remapSource(0), HotKey, KeyWord(0), u" x\r\n%1 ", {}, {1, 1}},
       "line 1, column 1: setting group 1, source of remap 1: \"x %1\" is no key"},
      {{0, {ShowEBlood}, ShowEBlood, KeyWord(0), std::u16string(99, u'x'), {}, {1, 1}},
       "line 1, column 1: setting group 1, enemy health bars: \"xxxxxxxxxxxxxxxxxxxxxxxx...\" is "
       "no key"},
      {{0, {QuickChatKey}, QuickChatKey, KeyWord(0xFC00), u"", heldBy({HotkeyContrl}), {1, 1}},
       "line 1, column 1: setting group 1, quick chat: key 64512 is hotkeys on and off"},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(lineText(row.dropped), row.words);
  }
}

TEST(LoadWords, AreUtf8) {
  const DroppedKey dropped{0, {ShowEBlood}, ShowEBlood, KeyWord(0), u"\u952e", {}, {1, 1}};
  EXPECT_EQ(reasonText(dropped), "\"\xE9\x94\xAE\" is no key");
}

TEST(LoadWords, NameAKeyOrGiveItsNumber) {
  EXPECT_EQ(nameOrNumber(kAltF1), "Alt + F1");
  EXPECT_EQ(nameOrNumber(KeyWord(0xFC00)), "key 64512");
}

}  // namespace
}  // namespace brennet
