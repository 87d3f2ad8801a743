#pragma once

#include <cstdint>
#include <string_view>

#include "model/HotkeyScheme.h"
#include "model/KeySlot.h"

namespace brennet {

// Checked changes of one scheme. Each returns whether the value is now in place; a refused value
// changes nothing.

// Puts `key` into `field`, a member of `scheme`. The key that the field already holds is accepted
// without a check and without a change; any other must be assignable (KeyConflicts.h).
bool assignKey(const HotkeyScheme& scheme, KeyWord& field, KeyWord key);

// Puts `key` into `slot`, by the rules of its setting. False for a slot that does not exist.
bool assignKey(HotkeyScheme& scheme, KeySlot slot, KeyWord key);

// Puts `remap` into `field`, a member of `scheme`. Only the destination is checked; an unchanged
// destination needs no check, so that the source alone can be edited.
bool assignRemap(const HotkeyScheme& scheme, KeyRemap& field, const KeyRemap& remap);

// Sets all four combination keys. Refused when B or C is free and the same key as D; otherwise only
// D is checked, and an unchanged D needs no check.
bool assignCombo(HotkeyScheme& scheme, const ComboKeys& keys);

// Chooses the item keys: HotkeyScheme::kItemKeysFromMap or a preset whose six keys are all free and
// not quick-chat keys.
bool choosePreset(HotkeyScheme& scheme, std::int32_t preset);

// Chooses quick-chat key set 0 or 1, whose eight keys must all be free and not item preset keys.
bool chooseQuickChatKeys(HotkeyScheme& scheme, std::uint32_t set);

}  // namespace brennet
