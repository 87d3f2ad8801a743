#pragma once

#include "model/HotkeyScheme.h"

namespace brennet {

// Makes `target` take over `source`. A preset or quick-chat key set that conflicts with the keys
// copied before it is refused, and the target's own choice stays. Throws std::bad_alloc, and then
// has changed nothing.
void assignScheme(HotkeyScheme& target, const HotkeyScheme& source);

}  // namespace brennet
