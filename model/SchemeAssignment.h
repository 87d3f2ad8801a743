#pragma once

#include "model/HotkeyScheme.h"

// Changes to all settings of a scheme at once, by the rows of the table (SettingTable.h).
namespace brennet {

// Makes `target` take over `source`. A preset or quick-chat key set that conflicts with the keys
// copied before it is refused, and the target's own choice stays. Throws std::bad_alloc, and then
// has changed nothing.
void assignScheme(HotkeyScheme& target, const HotkeyScheme& source);

// Puts the defaults in place. The quick-chat phrases, the quick-cast marks and the two left-Alt
// switches stay as they are.
void resetScheme(HotkeyScheme& scheme);

}  // namespace brennet
