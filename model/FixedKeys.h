#pragma once

#include <array>
#include <cstdint>

#include "keys/KeyWord.h"

namespace brennet {

// Keys that are built into the game's controls or into this component and cannot be edited.

inline constexpr int kItemSlots = 6;
inline constexpr int kItemPresets = 3;
inline constexpr int kQuickChatKeys = 8;

// The inventory slots from top left to bottom right, named by the game's own keys for them:
// numeric keypad 7, 8, 4, 5, 1, 2.
inline constexpr std::array<std::uint16_t, kItemSlots> kItemSlotCodes = {0x67, 0x68, 0x64,
                                                                         0x65, 0x61, 0x62};

using ItemPreset = std::array<KeyWord, kItemSlots>;
using QuickChatKeySet = std::array<KeyWord, kQuickChatKeys>;

namespace detail {

template <std::size_t Count>
constexpr std::array<KeyWord, Count> withAlt(const char (&virtualKeys)[Count + 1]) {
  std::array<KeyWord, Count> keys{};
  for (std::size_t i = 0; i < Count; ++i) {
    keys[i] = KeyWord(static_cast<std::uint8_t>(virtualKeys[i]), KeyWord::kAlt);
  }
  return keys;
}

}  // namespace detail

// Item keys that the player chooses as a whole (NumComboKeyIndex 0, 1, 2), in slot order.
inline constexpr std::array<ItemPreset, kItemPresets> kItemPresetKeys = {
    detail::withAlt<kItemSlots>("QWERDF"),
    detail::withAlt<kItemSlots>("QWASZX"),
    detail::withAlt<kItemSlots>("123456"),
};

// The keys that send a quick-chat phrase: set A (QuickChatIndex 0) is Alt+1 to Alt+8, set B is
// Alt+F1 to Alt+F8 (virtual keys 0x70 to 0x77).
inline constexpr std::array<QuickChatKeySet, 2> kQuickChatKeySets = {
    detail::withAlt<kQuickChatKeys>("12345678"),
    detail::withAlt<kQuickChatKeys>("pqrstuvw"),
};

}  // namespace brennet
