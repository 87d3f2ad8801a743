#pragma once

#include <sys/types.h>

#include "platform/Paths.h"

namespace brennet::platform {

// Gives the open file the owner, the group, the access list, the attributes and the mode of the
// file at `path`, as far as this process may; the open file must be private to its owner, who is
// the user of this process. Whoever could not read or write the old file cannot do so with the new
// one: where the owner, the group or the list cannot be set, those whom they told apart get no
// rights.
void copyFileRights(const Path& path, int file);

// The mode for a file that replaces one with `mode` (the nine bits) but could not get that one's
// owner or group. Whoever is no longer told apart counts as one of the next class, and gets no more
// there than before.
[[nodiscard]] mode_t narrowedMode(mode_t mode, bool hasOwner, bool hasGroup);

}  // namespace brennet::platform
