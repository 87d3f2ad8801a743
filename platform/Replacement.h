#pragma once

#include <string_view>

#include "platform/FileSystem.h"
#include "platform/OldContent.h"
#include "platform/Patience.h"

// Replacing the content of a file: through a temporary file that takes its place or, where that is
// impossible, in place (InPlaceWrite.h).
namespace brennet::platform {

// The name that the old file has for a moment while another takes its place, on systems that do
// that in two steps. Always the same, so that the next process finds it if this one ends then.
[[nodiscard]] Path backupName(const Path& path);

// Waits for whoever is replacing the file at this moment; if nobody is any more, puts right what
// was left half-way: a backup becomes the file again if there is none, and is removed if there is
// one; a file whose write in place was not finished gets its old content back. An error where the
// file cannot be trusted yet. Throws std::bad_alloc.
[[nodiscard]] FileError settle(FileSystem& system, Patience& patience, const Path& path);

// Whether `error` says that no file was found because the file is being replaced.
[[nodiscard]] bool isBeingReplaced(FileSystem& system, const Path& path, const FileError& error);

// replaceFile of Files.h, on `system`.
[[nodiscard]] FileError replaceFileOn(FileSystem& system, Patience& patience, const Path& name,
                                      std::string_view bytes, OldContent old);

}  // namespace brennet::platform
