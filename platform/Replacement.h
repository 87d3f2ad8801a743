#pragma once

#include <string_view>

#include "platform/FileSystem.h"
#include "platform/OldContent.h"
#include "platform/Patience.h"

// How the content of a file gets another: through a temporary file that takes its place, or, where
// that cannot be, in place (InPlaceWrite.h).
namespace brennet::platform {

// Under which the old file stands for a moment while another takes its place, on systems that do
// that in two steps. Always the same, so that whoever comes next finds it if the process ends then.
[[nodiscard]] Path backupName(const Path& path);

// Waits for whoever is replacing the file at this moment; if nobody is any more, puts right what
// was left half-way: a backup becomes the file again where there is none, and goes where there is
// one; a file that was being written in place gets its old content back. An error where the file
// cannot be trusted yet. Throws std::bad_alloc.
[[nodiscard]] FileError settle(FileSystem& system, Patience& patience, const Path& path);

// Whether a file was not found (`error`) because it is being replaced.
[[nodiscard]] bool isBeingReplaced(FileSystem& system, const Path& path, const FileError& error);

// replaceFile of Files.h, on `system`.
[[nodiscard]] FileError replaceFileOn(FileSystem& system, Patience& patience, const Path& name,
                                      std::string_view bytes, OldContent old);

}  // namespace brennet::platform
