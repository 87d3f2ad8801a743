#pragma once

#include "model/HotkeyConfig.h"

namespace brennet {

// The two configurations of the process, each built with the defaults on its first use and alive
// until the library is unloaded.

// What the player has saved: the host reads from it.
[[nodiscard]] HotkeyConfig& mainConfig();

// What is being edited. It becomes the main configuration once it has been saved.
[[nodiscard]] HotkeyConfig& workingCopy();

}  // namespace brennet
