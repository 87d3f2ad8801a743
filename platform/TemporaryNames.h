#pragma once

#include "platform/Paths.h"

// The names beside a file under which its new content stands until it takes the file's place: the
// file's name, then ".PROCESS-NUMBER.tmp".
namespace brennet::platform {

// The name of the process with the given number; `number` tells files of one process apart.
[[nodiscard]] Path temporaryName(const Path& path, unsigned long process, int number);

// Removes what processes left beside the file at `path` that ended before its new content was in
// place. Such a file is an hour old at least: a younger one may be in use. Failures are passed
// over: what stays now goes another time. Throws std::bad_alloc.
void removeLeftovers(const Path& path);

}  // namespace brennet::platform
