#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "keys/KeyWord.h"
#include "model/HotkeyScheme.h"
#include "model/KeySlot.h"

namespace brennet {

// Questions about the keys of a scheme. Pure functions: nothing is changed or shown, and nothing is
// allocated but by those that answer with a vector, which throw std::bad_alloc.

// Whether `key` may be bound: it is a key other than Backspace, Delete and Enter, and no hero
// skill, item of the item-key map, remap destination, combination key D, Ledger key or single
// feature key has it. Mouse keys are not consulted: the wheel may repeat another key.
[[nodiscard]] bool isKeyFree(const HotkeyScheme& scheme, KeyWord key);

// Whether `key` is one of the six keys of the item preset that the scheme has chosen.
[[nodiscard]] bool isItemPresetKey(const HotkeyScheme& scheme, KeyWord key);

// Whether `key` is one of the eight keys of the quick-chat key set that the scheme has chosen.
[[nodiscard]] bool isQuickChatKey(const HotkeyScheme& scheme, KeyWord key);

// Whether `key` is free and neither an item preset key nor a quick-chat key, as every new binding
// must be.
[[nodiscard]] bool isKeyAssignable(const HotkeyScheme& scheme, KeyWord key);

// Why a scheme refuses a key.
struct KeyConflict {
  enum class Reason : std::uint8_t {
    CannotBeBound,    // it is no key, or one of Backspace, Delete and Enter
    Held,             // `holder` has it
    ItemPresetKey,    // it is key number `holder.index` of the chosen item preset, `choice`
    QuickChatSetKey,  // it is key number `holder.index` of the chosen quick-chat keys, `choice`
    SentByItself,     // the combination would send `holder`, a key that is pressed for it
  };

  Reason reason = Reason::CannotBeBound;
  KeySlot holder{};         // for the keys of a choice its setting is the choice itself
  std::uint8_t choice = 0;  // item preset 0 to 2, quick-chat key set 0 or 1

  friend constexpr bool operator==(const KeyConflict&, const KeyConflict&) = default;
};

// Every place that keeps `key` from being assignable, in the order of the settings; empty when the
// key is assignable. A key that can never be bound has that one reason alone.
[[nodiscard]] std::vector<KeyConflict> holdersOf(const HotkeyScheme& scheme, KeyWord key);

// Why `scheme` would refuse `key` in `slot`; nothing when it would accept it (KeyAssignment.h). The
// key that is already there is accepted, and so is any key that is only pressed: the source of a
// remap, and A, B and C of a combination unless it sends them. Nothing for a slot that does not
// exist.
[[nodiscard]] std::optional<KeyConflict> conflictOf(const HotkeyScheme& scheme, KeySlot slot,
                                                    KeyWord key);

// The same for all four combination keys at once.
[[nodiscard]] std::optional<KeyConflict> conflictOf(const HotkeyScheme& scheme,
                                                    const ComboKeys& keys);

// A key of a set that is chosen as a whole, and one of the things that have it already.
struct TakenKey {
  KeyWord key;
  KeyConflict conflict;

  friend constexpr bool operator==(const TakenKey&, const TakenKey&) = default;
};

// Why `scheme` would refuse an item preset (0 to 2) or a quick-chat key set (0 or 1): the keys of
// it that are taken, in their order, each with all that has it. Empty when it would be accepted,
// and for a set that does not exist.
[[nodiscard]] std::vector<TakenKey> takenKeysOfPreset(const HotkeyScheme& scheme,
                                                      std::int32_t preset);
[[nodiscard]] std::vector<TakenKey> takenQuickChatKeys(const HotkeyScheme& scheme,
                                                       std::uint32_t set);

// Whether anything the player can press is bound to the virtual key `vk`, modifiers aside. Only
// here the mouse keys and the sources of remaps count too.
[[nodiscard]] bool isKeyUsed(const HotkeyScheme& scheme, std::uint8_t vk);

// The keys of the item preset that the scheme has chosen; null when its items use the item-key map.
[[nodiscard]] const ItemPreset* chosenItemPreset(const HotkeyScheme& scheme);

// The quick-chat key set that the scheme has chosen.
[[nodiscard]] const QuickChatKeySet& chosenQuickChatKeys(const HotkeyScheme& scheme);

}  // namespace brennet
