// What players read about a key that is refused.

#include "ui/capture/RefusalText.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "model/SchemeAssignment.h"
#include "model/SettingTable.h"

namespace brennet::test {
namespace {

using Reason = KeyConflict::Reason;

constexpr KeyWord kAltQ('Q', KeyWord::kAlt);
constexpr KeyWord kCtrlV('V', KeyWord::kCtrl);

KeyConflict held(KeySlot slot) {
  return {Reason::Held, slot};
}

class RefusalTextTest : public testing::Test {
 protected:
  RefusalTextTest() {
    EXPECT_TRUE(
        english.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&english);
  }

  QTranslator english;
};

TEST_F(RefusalTextTest, NamesThePlaceOfEachKindOfHolder) {
  const struct {
    KeyConflict conflict;
    const char* text;
  } kRows[] = {
      {held({SettingId::HeroSkillKey, 0}), "Hero skill 1 (bottom row, first)"},
      {held({SettingId::HeroSkillKey, 7}), "Hero skill 8 (middle row, first)"},
      {held({SettingId::HeroSkillKey, 11}), "Hero skill 12 (top row, fourth)"},
      {held({SettingId::ItemKey, 5}), "Item slot 2"},
      {held(remapDestination(2)), "Remap 3: key to send"},
      {held(kComboTarget), "Combination: key to send"},
      {held({SettingId::ShowFBlood}), "Show ally health bars"},
      {held({SettingId::SecretaryKey, 1}),
       "Open/close Orrery career data (under \"Orrery settings\")"},
      {held({SettingId::ChatWheelkey}),
       "Chat wheel key (no window shows it; \"Clear settings\" removes it)"},
      {{Reason::SentByItself, {SettingId::ComboKey, 1}}, "Combination: key to press 2"},
      {{Reason::ItemPresetKey, {SettingId::NumComboKeyIndex, 2}, 1}, "keypad preset 2, keypad 4"},
      {{Reason::QuickChatSetKey, {SettingId::QuickChatIndex, 7}, 1},
       "quick-chat phrase 8 (under \"Quick chat\")"},
      {{Reason::CannotBeBound}, "cannot be a hotkey"},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(holderText(row.conflict, KeyWindow::Main), QLatin1String(row.text));
  }
}

TEST_F(RefusalTextTest, SaysHowToGetToAnotherWindowOnly) {
  const KeyConflict ledger = held({SettingId::SecretaryKey, 0});
  const KeyConflict lock = held({SettingId::WinLockMouse});
  EXPECT_EQ(holderText(ledger, KeyWindow::Orrery), QStringLiteral("Open/close Orrery live data"));
  EXPECT_EQ(holderText(lock, KeyWindow::Main), QStringLiteral("Lock cursor in windowed mode"));
  for (const KeyWindow from : {KeyWindow::Orrery, KeyWindow::QuickChat}) {
    EXPECT_EQ(holderText(lock, from),
              QStringLiteral("Lock cursor in windowed mode (in the main window)"));
  }
}

TEST_F(RefusalTextTest, OfAFieldSaysWhatTheKeyDoesAndWhatElseReactsToIt) {
  const KeySlot skill{SettingId::HeroSkillKey, 0};
  HotkeyScheme scheme;
  EXPECT_EQ(fieldText(scheme, skill), QStringLiteral("Hero skill 1 (bottom row, first): no key"));
  storeKey(scheme, skill, kAltQ);
  EXPECT_EQ(fieldText(scheme, skill), QStringLiteral("Alt + Q: Hero skill 1 (bottom row, first)"));
  scheme.MouseKey[2] = kAltQ;
  scheme.HotKey[0].Src = kAltQ;
  scheme.ChatWheelkey = kAltQ;
  EXPECT_EQ(fieldText(scheme, skill),
            QStringLiteral("Alt + Q: Hero skill 1 (bottom row, first)\n"
                           "also: Wheel down\n"
                           "also: Remap 1: key to press\n"
                           "also: Chat wheel key (no window shows it; \"Clear settings\" removes "
                           "it)"));
  EXPECT_EQ(fieldText(scheme, {SettingId::MouseKey, 2}),
            QStringLiteral("Alt + Q: Wheel down\n"
                           "also: Hero skill 1 (bottom row, first)\n"
                           "also: Remap 1: key to press\n"
                           "also: Chat wheel key (no window shows it; \"Clear settings\" removes "
                           "it)"));
}

TEST_F(RefusalTextTest, HasALineForEachHolder) {
  const Refusal refusal{kAltQ, {held({SettingId::HeroSkillKey, 8}), held({SettingId::ItemKey, 0})}};
  EXPECT_EQ(refusalText(refusal, KeyWindow::Main),
            QStringLiteral("Alt + Q: Hero skill 9 (top row, first)\nAlt + Q: Item slot 7"));
  EXPECT_EQ(refusalText(Refusal{kAltQ, {}}, KeyWindow::Main), QString());
}

TEST_F(RefusalTextTest, OfAPasteSaysWhatTheGameUsesItFor) {
  const auto paste = QStringLiteral(
      "CTRL + V: pastes text in the game's chat; the chat wheel has no key any more");
  EXPECT_EQ(refusalText(Refusal{kCtrlV, {}}, KeyWindow::Main), paste);
  EXPECT_EQ(refusalText(Refusal{kCtrlV, {held({SettingId::ItemKey, 0})}}, KeyWindow::Main),
            QStringLiteral("CTRL + V: Item slot 7\n") + paste);
}

TEST_F(RefusalTextTest, OfASetNamesEachKeyThatIsTaken) {
  const std::vector<TakenKey> taken = {
      {KeyWord('1', KeyWord::kAlt), held({SettingId::HeroSkillKey, 3})},
      {KeyWord('8', KeyWord::kAlt), held({SettingId::SecretaryKey, 2})}};
  EXPECT_EQ(refusalText(taken, KeyWindow::QuickChat),
            QStringLiteral("Alt + 1: Hero skill 4 (bottom row, fourth) (in the main window)\n"
                           "Alt + 8: Skill reminder key (DotA) (under \"Orrery settings\")"));
}

// Where it names no way, the text promises that a reset removes the key.
TEST_F(RefusalTextTest, NamesNoWayToAKeyThatAResetDoesNotRemove) {
  for (std::size_t id = 0; id < kSettingCount; ++id) {
    const KeySlot slot{static_cast<SettingId>(id)};
    if (keyCount(slot.setting) == 0 || windowOf(slot) != KeyWindow::None) continue;
    HotkeyScheme scheme;
    storeKey(scheme, slot, kAltQ);
    resetScheme(scheme);
    EXPECT_FALSE(keyAt(scheme, slot).isSet()) << id;
  }
}

TEST_F(RefusalTextTest, TellsAKeyWithoutATextByItsNumber) {
  const KeyWord nameless(0xE9, 0);
  EXPECT_EQ(refusalText(Refusal{nameless, {{Reason::CannotBeBound}}}, KeyWindow::Main),
            QStringLiteral("%1: cannot be a hotkey").arg(nameless.raw()));
}

}  // namespace
}  // namespace brennet::test
