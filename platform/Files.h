#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "platform/Paths.h"

namespace brennet::platform {

// The whole content of the file at `path`, replacing `bytes`.
// Returns the system's error, or an empty one. Folders are refused like unreadable files; on any
// error `bytes` is empty. Throws std::bad_alloc where the file does not fit into memory.
[[nodiscard]] std::error_code readFile(const Path& path, std::string& bytes);

// Makes `bytes` the content of the file at `path`, creating it where it is missing.
//
// At every moment the disk holds the whole old or the whole new content: the bytes go to a
// temporary file in the same folder, are flushed, and the temporary file takes the target's place.
// A file that is there keeps its permissions, as far as this process may set them, a symbolic link
// stays one, and a file that could not be opened for writing is left alone. Where the folder takes
// no temporary file, or the temporary file cannot take the target's place, the target is written in
// place: room is made sure of first, and the old content is written back when the new one cannot be
// written.
//
// On Windows a file that is replaced has another name for a moment, "NAME.brennet-old"; both
// functions wait for it, put back what a process left there that ended half-way, and wait for
// programs that hold the file, up to a fifth of a second at each step. Where the old content can
// neither be replaced nor get its name back, it keeps that one until the next call.
//
// Temporary files that a process left are removed when they are an hour old.
//
// Returns the first error of any step, a failing flush or close included, or an empty one.
// After an error the old content stands and no temporary file is left; only a file that was written
// in place and whose closing failed has the new content. Throws std::bad_alloc, and
// then has changed nothing.
[[nodiscard]] std::error_code replaceFile(const Path& path, std::string_view bytes);

// Whether anything stands at `path`, a file or a folder.
[[nodiscard]] bool pathExists(const Path& path);

// Whether a folder stands at `path`.
[[nodiscard]] bool folderExists(const Path& path);

// Creates the folder `path`, one level only. Returns whether the folder was created.
bool createFolder(const Path& path);

}  // namespace brennet::platform
