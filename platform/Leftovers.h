#pragma once

#include "platform/FileSystem.h"

namespace brennet::platform {

// Removes what processes left beside the file at `path`, which is no folder, that ended before its
// new content was in place: files with its temporary names (TemporaryNames.h) of processes that are
// not running, and those that are an hour old, because numbers of processes come again, and because
// the folder may be shared with other machines. Failures are passed over: what stays now goes
// another time. Throws std::bad_alloc.
void removeLeftovers(FileSystem& system, const Path& path);

}  // namespace brennet::platform
