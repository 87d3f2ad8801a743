#pragma once

#include "platform/FileSystem.h"

// Old files that are put aside under a name of their own, before another takes their place: the
// file's name, then ".kept-YYYYMMDD-HHMMSS", by the local time.
namespace brennet::platform {

inline constexpr std::size_t kMostKeptFiles = 3;

// The name under which a file is put aside at that time (FileSystem::wallTime).
[[nodiscard]] Path keptName(const Path& path, std::int64_t wallTime);

// Puts a copy of the file at `path` aside, or the file itself under a second name where it cannot
// be read. Of the older ones that are kept the oldest go. Gives the new name; empty where that
// failed, or where there is no file. Throws std::bad_alloc.
[[nodiscard]] Path keepFile(FileSystem& system, const Path& path);

}  // namespace brennet::platform
