#pragma once

#include "model/HotkeyScheme.h"
#include "ui/keymap/KeyMap.h"

namespace brennet {

// What the keys of a scheme do. Throws std::bad_alloc.
[[nodiscard]] KeyMap keyMapOf(const HotkeyScheme& scheme);

}  // namespace brennet
