#include "ui/keymap/SchemeKeyMap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "model/KeyConflicts.h"
#include "model/SettingTable.h"

namespace brennet {
namespace {

bool hasUse(const KeyMap& map, MapPress press, KeySlot target) {
  return std::ranges::any_of(map, [&](const MapUse& use) {
    return use.press == press && use.target == MapTarget(target);
  });
}

// Calls `visit` for each slot that holds a key of its own.
template <class Visit>
void forEachSlot(Visit visit) {
  for (const Setting& row : kSettings) {
    if (row.id == SettingId::ComboKey3to1) continue;
    KeySlot slot{row.id};
    for (const std::size_t count = keyCount(row.id); slot.index < count; ++slot.index) visit(slot);
  }
}

constexpr std::uint8_t kLayers[] = {0, KeyWord::kCtrl, KeyWord::kAlt,
                                    KeyWord::kCtrl | KeyWord::kAlt};

MapPress pressFor(KeySlot slot, KeyWord key) {
  if (slot.setting != SettingId::MouseKey) return pressOf(key);
  return {static_cast<MapCode>(kWheelUp + slot.index), 0};
}

TEST(SchemeKeyMap, HasEachSlotThatHoldsAKey) {
  forEachSlot([](KeySlot slot) {
    SCOPED_TRACE(keyName(slot));
    HotkeyScheme scheme;
    const std::size_t empty = keyMapOf(scheme).size();
    const KeyWord key('Q', KeyWord::kCtrl);
    storeKey(scheme, slot, key);
    const KeyMap map = keyMapOf(scheme);
    ASSERT_EQ(map.size(), empty + 1);
    EXPECT_TRUE(hasUse(map, pressFor(slot, key), slot));
    for (const MapUse& use : map) {
      EXPECT_FALSE(use.tag.isEmpty());
      EXPECT_FALSE(use.key.isEmpty());
      EXPECT_FALSE(use.what.isEmpty());
      EXPECT_FALSE(use.where.isEmpty());
      EXPECT_FALSE(use.tag.contains(QLatin1Char('%')));
    }
  });
}

TEST(SchemeKeyMap, HasTheKeysOfTheChoices) {
  HotkeyScheme scheme;
  for (const std::uint32_t set : {0U, 1U}) {
    scheme.QuickChatIndex = set;
    const KeyMap map = keyMapOf(scheme);
    EXPECT_EQ(map.size(), 8U);
    for (std::uint8_t i = 0; i < 8; ++i) {
      EXPECT_TRUE(hasUse(map, pressOf(kQuickChatKeySets[set][i]), {SettingId::QuickChatIndex, i}));
    }
  }
  for (std::int32_t preset = 0; preset < kItemPresets; ++preset) {
    scheme.NumComboKeyIndex = preset;
    const KeyMap map = keyMapOf(scheme);
    EXPECT_EQ(map.size(), 14U);
    for (std::uint8_t i = 0; i < kItemSlots; ++i) {
      EXPECT_TRUE(hasUse(map, pressOf(kItemPresetKeys[static_cast<std::size_t>(preset)][i]),
                         {SettingId::NumComboKeyIndex, i}));
    }
  }
}

// What makes a key not free is on the map under that key, and the map has nothing that is not in
// the scheme.
TEST(SchemeKeyMap, AgreesWithTheHolders) {
  std::mt19937 random(20261122);
  constexpr int kRounds = 300;
  for (int round = 0; round < kRounds; ++round) {
    HotkeyScheme scheme;
    forEachSlot([&](KeySlot slot) {
      const auto code = static_cast<std::uint8_t>('A' + random() % 26);
      const auto modifiers = static_cast<std::uint8_t>(random() % 4 * 2);
      if (random() % 2 == 0) storeKey(scheme, slot, KeyWord(code, modifiers));
    });
    scheme.NumComboKeyIndex = static_cast<std::int32_t>(random() % 4) - 1;
    scheme.QuickChatIndex = random() % 2;
    const KeyMap map = keyMapOf(scheme);
    for (unsigned code = 'A'; code <= 'Z'; ++code) {
      for (const std::uint8_t layer : kLayers) {
        const KeyWord key(static_cast<std::uint8_t>(code), layer);
        for (const KeyConflict& holder : holdersOf(scheme, key)) {
          ASSERT_TRUE(hasUse(map, pressOf(key), holder.holder)) << round << ' ' << code;
        }
      }
    }
    for (const MapUse& use : map) {
      const auto slot = std::get<KeySlot>(use.target);
      if (keyCount(slot.setting) == 0) continue;
      ASSERT_EQ(use.press, pressFor(slot, keyAt(scheme, slot))) << keyName(slot);
    }
  }
}

TEST(SchemeKeyMap, TellsTheKindsApart) {
  HotkeyScheme scheme;
  forEachSlot([&](KeySlot slot) { storeKey(scheme, slot, KeyWord('Q', 0)); });
  std::set<KeyKind> kinds;
  for (const MapUse& use : keyMapOf(scheme)) kinds.insert(use.kind);
  EXPECT_EQ(kinds.size(), kKeyKinds);
}

}  // namespace
}  // namespace brennet
