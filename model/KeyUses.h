#pragma once

#include <vector>

#include "keys/KeyWord.h"
#include "model/HotkeyScheme.h"
#include "model/KeySlot.h"

namespace brennet {

// Every slot of `scheme` that has `key`, in the order of the settings: those that have it for
// themselves (KeyConflicts.h), and those that may share it, such as the keys of the mouse wheel and
// those that are pressed for a remap. Empty for no key. ComboKey3to1, which is ComboKey once more,
// is left out. Throws std::bad_alloc.
[[nodiscard]] std::vector<KeySlot> usesOf(const HotkeyScheme& scheme, KeyWord key);

}  // namespace brennet
