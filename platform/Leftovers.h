#pragma once

#include "platform/Paths.h"

namespace brennet::platform {

// Removes what processes left beside the file at `path`, which is no folder, that ended before its
// new content was in place: files with its temporary names (TemporaryNames.h) that are an hour old.
// Younger ones may be in use. Failures are passed over: what stays now goes another time. Throws
// std::bad_alloc.
void removeLeftovers(const Path& path);

}  // namespace brennet::platform
