// What players read about keys that could not be used.

#include "ui/capture/SlotText.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSet>
#include <QTranslator>

#include "model/SettingTable.h"

namespace brennet::test {
namespace {

class SlotTextTest : public testing::Test {
 protected:
  SlotTextTest() {
    EXPECT_TRUE(
        english.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&english);
  }

  QTranslator english;
};

TEST_F(SlotTextTest, AreThoseOfTheWindows) {
  struct {
    KeySlot slot;
    const char* text;
  } const kRows[] = {
      {{SettingId::HeroSkillKey, 0}, "Hero skill 1"},
      {{SettingId::HeroSkillKey, 11}, "Hero skill 12"},
      {{SettingId::ItemKey, 0}, "Item slot 7"},
      {{SettingId::ItemKey, 5}, "Item slot 2"},
      {{SettingId::MouseKey, 0}, "Wheel up"},
      {{SettingId::MouseKey, 2}, "Wheel down"},
      {{SettingId::SecretaryKey, 1}, "Open/close Orrery career data"},
      {remapSource(0), "Remap 1: key to press"},
      {remapDestination(5), "Remap 6: key to send"},
      {{SettingId::ComboKey, 2}, "Combination: key to press 3"},
      {kComboTarget, "Combination: key to send"},
      {{SettingId::ChatWheelkey, 0}, "Chat wheel key"},
  };
  for (const auto& row : kRows) EXPECT_EQ(slotText(row.slot), QLatin1String(row.text));
}

// Fails until a setting that is added has names as well.
TEST_F(SlotTextTest, NameEachKeyOfAScheme) {
  QSet<QString> names;
  for (std::size_t id = 0; id < kSettingCount; ++id) {
    const auto setting = static_cast<SettingId>(id);
    if (setting == SettingId::ComboKey3to1) continue;  // the same keys as ComboKey
    for (std::size_t i = 0; i < keyCount(setting); ++i) {
      const auto index = static_cast<std::uint8_t>(i);
      const QString name = slotText({setting, index});
      EXPECT_FALSE(name.isEmpty())
          << "add a row to kNames in ui/capture/SlotText.cpp for " << keyName({setting, index});
      EXPECT_FALSE(names.contains(name)) << qPrintable(name) << " names two keys";
      EXPECT_FALSE(name.contains(QLatin1Char('%'))) << qPrintable(name);
      names += name;
    }
  }
  EXPECT_EQ(slotText({SettingId::ShowFBloodFlag, 0}), QString());
  EXPECT_EQ(slotText({SettingId::HeroSkillKey, 12}), QString());
}

TEST_F(SlotTextTest, TellWhyAKeyIsRefused) {
  using Reason = KeyConflict::Reason;
  const KeyWord key('A', KeyWord::kAlt);
  struct {
    KeyConflict conflict;
    const char* text;
  } const kRows[] = {
      {{Reason::Held, {SettingId::HeroSkillKey, 0}}, "Alt + A is Hero skill 1"},
      {{Reason::SentByItself, {SettingId::ComboKey, 1}}, "Alt + A is Combination: key to press 2"},
      {{Reason::ItemPresetKey, {SettingId::NumComboKeyIndex, 2}, 1},
       "Alt + A is a key of the keypad preset"},
      {{Reason::QuickChatSetKey, {SettingId::QuickChatIndex, 2}},
       "Alt + A sends a quick-chat phrase"},
      {{Reason::CannotBeBound}, "Alt + A cannot be a hotkey"},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(conflictText(key, row.conflict), QLatin1String(row.text));
  }
}

TEST_F(SlotTextTest, TellWhatBecameOfAKeyOfAFile) {
  DroppedKey dropped;
  dropped.slot = {SettingId::MouseKey, 0};
  dropped.key = KeyWord('A', 0);
  dropped.conflict = KeyConflict{KeyConflict::Reason::Held, {SettingId::HeroSkillKey, 0}};
  EXPECT_EQ(droppedKeyText(dropped, 0), QStringLiteral("Wheel up: A is Hero skill 1"));
  dropped.scheme = 2;
  EXPECT_EQ(droppedKeyText(dropped, 0), QStringLiteral("Group 3, Wheel up: A is Hero skill 1"));
  dropped.conflict.reset();
  dropped.text = u"  twelve\r\nhundred and some more of that  ";
  EXPECT_EQ(droppedKeyText(dropped, 2),
            QStringLiteral(u"Wheel up: \"twelve hundred and some \u2026\" is no key"));
  dropped.text = u"twelve hundred and some\U0001F600\U0001F600";
  EXPECT_EQ(droppedKeyText(dropped, 2),
            QStringLiteral(u"Wheel up: \"twelve hundred and some\u2026\" is no key"))
      << "no half of a character";
  dropped.text = u"twelve hundred and som\U0001F600!!";
  EXPECT_EQ(droppedKeyText(dropped, 2),
            QStringLiteral(u"Wheel up: \"twelve hundred and som\U0001F600\u2026\" is no key"));
}

}  // namespace
}  // namespace brennet::test
