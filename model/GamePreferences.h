#pragma once

#include "gameside/prefs/War3PrefsFile.h"
#include "model/HotkeyConfig.h"

namespace brennet {

// Makes the hotkey sections in `file` follow the current scheme; writes nothing. Throws
// std::bad_alloc, and `file` is of no use then.
void updatePreferences(HotkeyConfig& config, War3PrefsFile& file);

// Makes the hotkey sections of the game's own preference file follow the current scheme, below the
// user's profile folder. Silent: a file that cannot be read or written is left alone, and nothing
// that happens to it changes the result of loading or saving the settings.
void writeGamePreferences(HotkeyConfig& config) noexcept;

}  // namespace brennet
