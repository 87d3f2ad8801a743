#include "ui/keymap/KeyMap.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "ui/keymap/SchemeKeyMap.h"

namespace brennet {
namespace {

constexpr KeyWord kQ('Q', 0);
constexpr KeyWord kAltQ('Q', KeyWord::kAlt);
constexpr KeyWord kTick(0xC0, 0);
constexpr KeyWord kF1(0x70, 0);

class KeyMapTest : public testing::Test {
 protected:
  KeyMapTest() {
    EXPECT_TRUE(
        english_.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&english_);
  }

  [[nodiscard]] std::string story(KeyWord key) const { return story(pressOf(key)); }
  [[nodiscard]] std::string story(MapPress press) const {
    return pressStory(keyMapOf(scheme), press).toStdString();
  }

  HotkeyScheme scheme;

 private:
  QTranslator english_;
};

TEST_F(KeyMapTest, TellsWhatAKeyDoes) {
  scheme.HeroSkillKey[8] = kAltQ;
  EXPECT_EQ(story(kAltQ), "Alt + Q: Hero skill 9 (top row, first)");
  EXPECT_EQ(story(kQ), "Q: nothing, it is free");
  EXPECT_EQ(story(MapPress{0x70, KeyWord::kAlt}), "Alt + F1: quick-chat phrase 1");
}

TEST_F(KeyMapTest, TellsThatSomeKeysAreNone) {
  for (const MapCode code : {MapCode{0x08}, MapCode{0x0D}, MapCode{0x2E}}) {
    EXPECT_NE(story(MapPress{code, 0}).find(": cannot be a hotkey"), std::string::npos) << code;
  }
}

TEST_F(KeyMapTest, FollowsARemap) {
  scheme.HotKey[0] = KeyRemap(kTick, kF1);
  EXPECT_EQ(story(kTick), "`: Remap 1: key to press → sends F1");
  EXPECT_EQ(story(kF1), "F1: does nothing by itself (Remap 1: key to send)");
  // A file may have a key twice.
  scheme.HeroSkillKey[0] = kF1;
  EXPECT_EQ(story(kTick), "`: Remap 1: key to press → sends F1 → Hero skill 1 (bottom row, first)");
}

TEST_F(KeyMapTest, TellsThatARemapWithoutATargetDoesNothing) {
  scheme.HotKey[2].Src = kTick;
  EXPECT_EQ(story(kTick), "`: does nothing by itself (Remap 3: key to press)");
}

TEST_F(KeyMapTest, NamesWhatIsPressedTogether) {
  scheme.ComboKey = {KeyWord('J', 0), KeyWord('K', 0), KeyWord('L', 0), kF1};
  EXPECT_EQ(story(KeyWord('K', 0)),
            "K: Combination: key to press 2, together with J + L → sends F1");
  EXPECT_EQ(story(kF1), "F1: does nothing by itself (Combination: key to send)");
}

TEST_F(KeyMapTest, TellsWhatTheWheelRepeats) {
  scheme.HeroSkillKey[0] = kQ;
  scheme.MouseKey[2] = kQ;
  EXPECT_EQ(story(MapPress{kWheelDown, 0}),
            "Wheel down: mouse wheel → sends Q → Hero skill 1 (bottom row, first)");
  EXPECT_EQ(story(MapPress{kWheelUp, 0}), "Wheel up: nothing, it is free");
  EXPECT_EQ(story(kQ), "Q: Hero skill 1 (bottom row, first)") << "the wheel does not react to it";
}

TEST_F(KeyMapTest, KnowsThatAPresetReplacesTheItemKeys) {
  scheme.ItemKey[0] = kQ;
  EXPECT_EQ(story(kQ), "Q: Item slot 7");
  scheme.NumComboKeyIndex = 0;
  EXPECT_EQ(story(kQ), "Q: does nothing by itself (Item slot 7)");
  EXPECT_EQ(story(kAltQ), "Alt + Q: keypad preset 1, keypad 7");
}

TEST_F(KeyMapTest, HasALineForEachUse) {
  scheme.HotKey[0] = KeyRemap(kTick, kF1);
  scheme.HotKey[1] = KeyRemap(kTick, KeyWord(0x71, 0));
  EXPECT_EQ(story(kTick),
            "`: Remap 1: key to press → sends F1\n"
            "`: Remap 2: key to press → sends F2");
}

TEST_F(KeyMapTest, NamesEachKind) {
  QStringList names;
  for (std::size_t kind = 0; kind < kKeyKinds; ++kind) {
    const QString name = kindText(static_cast<KeyKind>(kind), false);
    EXPECT_FALSE(name.isEmpty() || names.contains(name)) << kind;
    names += name;
  }
  EXPECT_NE(kindText(KeyKind::Option, true), kindText(KeyKind::Option, false));
}

// Keys without a name are told by their number.
TEST_F(KeyMapTest, NamesEachPress) {
  for (unsigned code = 1; code <= 0xFE; ++code) {
    EXPECT_FALSE(pressText({static_cast<MapCode>(code), 0}).isEmpty()) << code;
  }
  EXPECT_EQ(pressText({'Q', KeyWord::kCtrl | KeyWord::kAlt}), QStringLiteral("CTRL + Alt + Q"));
}

}  // namespace
}  // namespace brennet
