#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "keys/KeyWord.h"
#include "model/HotkeyScheme.h"
#include "model/SettingTable.h"

namespace brennet {

// Names one key of a scheme: a setting that holds keys, and which of its keys.
//
// `index` counts from 0. In a row of keys it is the position (for items that of the inventory slot,
// not its code); in HotKey the source and the destination of each remap alternate; in ComboKey the
// keys are A to D; a single key has index 0. ComboKey3to1 holds the keys of ComboKey again.
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

// What a trace calls the key in `slot`, in English: "hero skill 1". Empty for a slot that does not
// exist.
[[nodiscard]] std::string keyName(KeySlot slot);

// How many keys `setting` holds: 0 if it holds none.
[[nodiscard]] std::size_t keyCount(SettingId setting);

// The key that `scheme` has in `slot`; kNoKey for a slot that does not exist.
[[nodiscard]] KeyWord keyAt(const HotkeyScheme& scheme, KeySlot slot);

// The member of `scheme` that `slot` names; null for a slot that does not exist.
[[nodiscard]] KeyWord* keyField(HotkeyScheme& scheme, KeySlot slot);

// Puts `key` into `slot` without a check; does nothing for a slot that does not exist.
void storeKey(HotkeyScheme& scheme, KeySlot slot, KeyWord key);

}  // namespace brennet
