#pragma once

#include <cstddef>
#include <cstdint>

#include "keys/KeyWord.h"
#include "model/HotkeyScheme.h"
#include "model/SettingTable.h"

namespace brennet {

// Names one key of a scheme: a setting that holds keys, and which of its keys.
//
// `index` counts from 0. In a row of keys it is the position (for items that of the inventory slot,
// not its code); in HotKey source and destination of each remap take turns; in ComboKey the keys
// are A to D; a single key has index 0. ComboKey3to1 holds the keys of ComboKey once more.
struct KeySlot {
  SettingId setting = SettingId::HeroSkillKey;
  std::uint8_t index = 0;

  friend constexpr bool operator==(const KeySlot&, const KeySlot&) = default;
};

// The source and the destination of key remap `n`, from 0.
[[nodiscard]] constexpr KeySlot remapSource(std::size_t n) {
  return {SettingId::HotKey, static_cast<std::uint8_t>(2 * n)};
}
[[nodiscard]] constexpr KeySlot remapDestination(std::size_t n) {
  return {SettingId::HotKey, static_cast<std::uint8_t>(2 * n + 1)};
}

// The combination keys in the order of their slots.
inline constexpr KeyWord ComboKeys::*kComboKeys[] = {&ComboKeys::Key_A, &ComboKeys::Key_B,
                                                     &ComboKeys::Key_C, &ComboKeys::Key_D};

// The key that a combination sends.
inline constexpr KeySlot kComboTarget{SettingId::ComboKey, 3};

// How many keys `setting` holds: 0 when it is none that holds keys.
[[nodiscard]] std::size_t keyCount(SettingId setting);

// The key that `scheme` has in `slot`; kNoKey for a slot that is none.
[[nodiscard]] KeyWord keyAt(const HotkeyScheme& scheme, KeySlot slot);

// The member of `scheme` that `slot` names; null for a slot that is none.
[[nodiscard]] KeyWord* keyField(HotkeyScheme& scheme, KeySlot slot);

// Puts `key` into `slot` without a check; a slot that is none is left out.
void storeKey(HotkeyScheme& scheme, KeySlot slot, KeyWord key);

}  // namespace brennet
