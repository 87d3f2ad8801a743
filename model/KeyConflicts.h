#pragma once

#include <cstdint>

#include "keys/KeyWord.h"
#include "model/HotkeyScheme.h"

namespace brennet {

// Questions about the keys of a scheme. Pure functions: nothing is changed, shown or allocated.

// Whether `key` may be bound: it is a key, it is none of Backspace, Delete and Enter, and no hero
// skill, item of the item-key map, remap destination, combination key D, Ledger key or single
// feature key has it. Mouse keys are not consulted: the wheel may repeat another key.
[[nodiscard]] bool isKeyFree(const HotkeyScheme& scheme, KeyWord key);

// Whether `key` is one of the six keys of the item preset that the scheme has chosen.
[[nodiscard]] bool isItemPresetKey(const HotkeyScheme& scheme, KeyWord key);

// Whether `key` is one of the eight keys of the quick-chat key set that the scheme has chosen.
[[nodiscard]] bool isQuickChatKey(const HotkeyScheme& scheme, KeyWord key);

// Free, no item preset key and no quick-chat key: what a new binding must pass.
[[nodiscard]] bool isKeyAssignable(const HotkeyScheme& scheme, KeyWord key);

// Whether anything the player can press is bound to the virtual key `vk`, modifiers aside. This is
// the one question that includes the mouse keys and the sources of remaps.
[[nodiscard]] bool isKeyUsed(const HotkeyScheme& scheme, std::uint8_t vk);

// The keys of the item preset that the scheme has chosen; null when its items use the item-key map.
[[nodiscard]] const ItemPreset* chosenItemPreset(const HotkeyScheme& scheme);

// The quick-chat key set that the scheme has chosen.
[[nodiscard]] const QuickChatKeySet& chosenQuickChatKeys(const HotkeyScheme& scheme);

}  // namespace brennet
