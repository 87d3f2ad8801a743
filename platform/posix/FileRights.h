#pragma once

#include <sys/types.h>

#include "platform/Paths.h"

namespace brennet::platform {

// Gives the open file the owner, the group, the access list, the attributes and the mode of the
// file at `path`, as far as this process may; the file is one of this process and its owner's
// alone. Whoever could not read or write the old file cannot do so with the new one: where the
// owner, the group or the list cannot be had, those whom they told apart get nothing.
void copyFileRights(const Path& path, int file);

// The mode for a file in the place of one with `mode` (the nine bits), where it could not get that
// one's owner or group. Whoever is no longer told apart counts as one of the next class, and gets
// no more there than before.
[[nodiscard]] mode_t narrowedMode(mode_t mode, bool hasOwner, bool hasGroup);

}  // namespace brennet::platform
