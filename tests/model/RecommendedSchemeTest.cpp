#include "model/RecommendedScheme.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/CardPositions.h"
#include "model/HotkeyConfig.h"
#include "model/KeyConflicts.h"

namespace brennet {
namespace {

// A scheme that has everything in use that the recommended keys could clash with.
HotkeyScheme scheme() {
  HotkeyScheme scheme;
  scheme.HeroSkillKey[5] = KeyWord('Q', 0);
  scheme.ChatWheelkey = KeyWord('W', 0);
  scheme.HotKey[0] = KeyRemap(KeyWord('1', 0), KeyWord('E', 0));
  scheme.NumComboKeyIndex = 2;
  scheme.QuickChatIndex = 0;
  scheme.QuickChat[0] = u"glhf";
  scheme.HeroSkillAutocast[0] = true;
  return scheme;
}

TEST(RecommendedScheme, HasAKeyForEachSkillWhereTheKeyboardHasIt) {
  HotkeyScheme recommended = scheme();
  recommend(recommended);
  for (std::size_t i = 0; i < kCommandCard.size(); ++i) {
    const CardPosition position = kCommandCard[i];
    const std::string_view rows[] = {"ZXCV", "ASDF", "QWER"};
    const char key = rows[position.row][static_cast<std::size_t>(position.column)];
    EXPECT_EQ(recommended.HeroSkillKey[i], KeyWord(static_cast<std::uint8_t>(key), 0)) << i;
  }
}

TEST(RecommendedScheme, HasTheItemsOnAltAndDigits) {
  HotkeyScheme recommended = scheme();
  recommend(recommended);
  for (std::size_t i = 0; i < kInventory.size(); ++i) {
    const auto digit =
        static_cast<std::uint8_t>('1' + 2 * kInventory[i].row + kInventory[i].column);
    EXPECT_EQ(recommended.ItemKey[i], KeyWord(digit, KeyWord::kAlt)) << i;
  }
  EXPECT_EQ(recommended.NumComboKeyIndex, HotkeyScheme::kItemKeysFromMap);
}

TEST(RecommendedScheme, PassesTheChecks) {
  HotkeyScheme recommended = scheme();
  recommend(recommended);
  std::vector<KeyWord*> keys;
  for (KeyWord& key : recommended.HeroSkillKey) keys.push_back(&key);
  for (KeyWord& key : recommended.ItemKey) keys.push_back(&key);
  for (KeyWord* const key : keys) {
    const KeyWord held = *key;
    *key = kNoKey;
    EXPECT_TRUE(isKeyAssignable(recommended, held)) << std::hex << held.raw();
    *key = held;
  }
}

TEST(RecommendedScheme, KeepsWhatAResetKeeps) {
  HotkeyScheme recommended = scheme();
  recommend(recommended);
  EXPECT_EQ(recommended.QuickChat[0], u"glhf");
  EXPECT_EQ(recommended.HeroSkillAutocast[0], true);
  EXPECT_EQ(recommended.ChatWheelkey, kNoKey);
  EXPECT_EQ(recommended.HotKey[0], KeyRemap());
}

}  // namespace
}  // namespace brennet
