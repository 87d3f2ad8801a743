#pragma once

#include "model/HotkeyConfig.h"

namespace brennet {

// Makes the hotkey sections of the game's own preference file follow the current scheme, below the
// user's profile folder. Silent: a file that cannot be read or written is left alone.
void writeGamePreferences(HotkeyConfig& config);

}  // namespace brennet
