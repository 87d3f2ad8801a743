#include "model/KeySlot.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "model/KeyAssignment.h"
#include "model/KeyConflicts.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;

std::string narrow(std::u16string_view element) {
  return {element.begin(), element.end()};
}

std::vector<KeySlot> allSlots() {
  std::vector<KeySlot> slots;
  for (const SettingId id : kLoadOrder) {
    if (id == SettingId::ComboKey3to1) continue;  // the same keys as ComboKey
    for (std::size_t i = 0; i < keyCount(id); ++i) {
      slots.push_back({id, static_cast<std::uint8_t>(i)});
    }
  }
  return slots;
}

TEST(KeySlot, CountsTheKeysOfEachSetting) {
  const struct {
    SettingId setting;
    std::size_t keys;
  } kRows[] = {
      {SettingId::HeroSkillKey, 12}, {SettingId::ItemKey, 6},      {SettingId::MouseKey, 3},
      {SettingId::SecretaryKey, 3},  {SettingId::HotKey, 12},      {SettingId::ComboKey, 4},
      {SettingId::ShowFBlood, 1},    {SettingId::ComboKey3to1, 4}, {SettingId::ZoomValue, 0},
      {SettingId::QuickChat, 0},     {SettingId::HideUI, 0},       {SettingId::NumComboKeyIndex, 0},
      {SettingId::QuickChatIndex, 0}};
  for (const auto& row : kRows) {
    EXPECT_EQ(keyCount(row.setting), row.keys) << static_cast<int>(row.setting);
  }
}

TEST(KeySlot, IsCalledByAnEnglishName) {
  const struct {
    KeySlot slot;
    const char* name;
  } kRows[] = {
      {{SettingId::HeroSkillKey, 11}, "hero skill 12"},
      {{SettingId::MouseKey, 1}, "wheel click"},
      {remapSource(0), "source of remap 1"},
      {remapSource(5), "source of remap 6"},
      {remapDestination(0), "target of remap 1"},
      {kComboTarget, "combination key D"},
      {{SettingId::ChatWheelkey}, "chat wheel"},
      {{SettingId::HeroSkillKey, 12}, ""},
      {{SettingId::ZoomValue}, ""},
  };
  for (const auto& row : kRows) EXPECT_EQ(keyName(row.slot), row.name);
}

TEST(KeySlot, HasANameThatNoOtherHas) {
  std::set<std::string> names = {""};
  for (const KeySlot slot : allSlots()) {
    EXPECT_TRUE(names.insert(keyName(slot)).second)
        << "give key " << +slot.index << " of " << narrow(setting(slot.setting).element)
        << " a name of its own: `keyNames` in its row of model/SettingTable.h";
  }
}

TEST(KeySlot, NamesAKeyOfItsOwn) {
  const std::vector<KeySlot> slots = allSlots();
  HotkeyScheme scheme;
  for (std::size_t i = 0; i < slots.size(); ++i) {
    EXPECT_EQ(keyAt(scheme, slots[i]), kNoKey);
    storeKey(scheme, slots[i], KeyWord(static_cast<std::uint16_t>(i << 8U)));
  }
  for (std::size_t i = 0; i < slots.size(); ++i) {
    EXPECT_EQ(keyAt(scheme, slots[i]).virtualKey(), i);
  }
  EXPECT_EQ(scheme.HotKey[2].Src, keyAt(scheme, remapSource(2)));
  EXPECT_EQ(scheme.HotKey[5].Dest, keyAt(scheme, remapDestination(5)));
  EXPECT_EQ(scheme.ComboKey.Key_D, keyAt(scheme, kComboTarget));
  EXPECT_EQ(scheme.ItemKey[4], keyAt(scheme, {SettingId::ItemKey, 4}));
  EXPECT_EQ(scheme.ComboKey.Key_B, keyAt(scheme, {SettingId::ComboKey3to1, 1}));
}

TEST(KeySlot, ThatIsNoneHasNoKeyAndTakesNone) {
  constexpr KeySlot kNone[] = {{SettingId::HeroSkillKey, 12}, {SettingId::ItemKey, 6},
                               {SettingId::HotKey, 12},       {SettingId::ComboKey, 4},
                               {SettingId::QuickChatKey, 1},  {SettingId::ZoomValue, 0}};
  for (const KeySlot slot : kNone) {
    HotkeyScheme scheme;
    storeKey(scheme, slot, kQ);
    EXPECT_FALSE(assignKey(scheme, slot, kQ));
    EXPECT_EQ(keyAt(scheme, slot), kNoKey);
    EXPECT_EQ(scheme, HotkeyScheme());
  }
}

// conflictOf and assignKey agree, and a refusal changes nothing.
TEST(KeySlot, TakesWhatHasNoConflict) {
  constexpr std::uint8_t kKeys[] = {'Q', 'W', 'E', '1', '2', 0x70, 0x71, 0x0D, 0xFF};
  std::mt19937 random(20261122);
  const auto below = [&](std::size_t bound) { return random() % bound; };
  const std::vector<KeySlot> slots = allSlots();
  HotkeyScheme scheme;
  for (int round = 0; round < 50000; ++round) {
    const KeySlot slot = slots[below(slots.size())];
    const KeyWord key(kKeys[below(std::size(kKeys))], static_cast<std::uint8_t>(below(4) * 2));
    const HotkeyScheme before = scheme;
    const auto conflict = conflictOf(scheme, slot, key);
    ASSERT_EQ(assignKey(scheme, slot, key), !conflict.has_value()) << round;
    if (conflict) {
      ASSERT_EQ(scheme, before) << round;
    } else {
      ASSERT_TRUE(keyAt(scheme, slot).sameKey(key)) << round;
    }
    if (conflict && conflict->reason == KeyConflict::Reason::Held) {
      ASSERT_TRUE(keyAt(scheme, conflict->holder).sameKey(key)) << round;
    }
    scheme.NumComboKeyIndex = static_cast<std::int32_t>(below(4)) - 1;
    scheme.QuickChatIndex = static_cast<std::uint32_t>(below(2));
    if (below(3) == 0) storeKey(scheme, slots[below(slots.size())], kNoKey);
  }
}

}  // namespace
}  // namespace brennet
