#pragma once

#include "platform/FileSystem.h"

namespace brennet::platform {

// Removes what processes that ended too early left beside the file at `path` (not a folder): files
// with its temporary names (TemporaryNames.h) whose processes are not running, and those that are
// an hour old, because process numbers are reused, and because the folder may be shared with other
// machines. Ignores failures: what stays now goes another time. Throws std::bad_alloc.
void removeLeftovers(FileSystem& system, const Path& path);

}  // namespace brennet::platform
