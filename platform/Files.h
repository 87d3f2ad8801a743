#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/FileErrors.h"
#include "platform/OldContent.h"
#include "platform/Paths.h"

namespace brennet::platform {

class Patience;

// Replaces `bytes` with the whole content of the file at `path`: what one program has written as a
// whole, if that program is one of ours. A file that another program holds, has locked or is
// replacing is waited for, a fifth of a second, or as long as `patience` lasts (Patience.h).
// Returns the system's error, or an empty one; isMissing tells whether it means that there is no
// file. Folders are refused like unreadable files, and so are files of more than `limit` bytes
// (isTooLarge); on any error `bytes` is empty. Throws std::bad_alloc where the file does not fit
// into memory.
[[nodiscard]] std::error_code readFile(const Path& path, std::string& bytes, std::uint64_t limit);
[[nodiscard]] std::error_code readFile(const Path& path, std::string& bytes, std::uint64_t limit,
                                       Patience& patience);

// Makes `bytes` the content of the file at `path`, which is created if it is missing.
//
// At every moment the disk holds the whole old or the whole new content: the bytes go to a
// temporary file in the same folder, are flushed, and the temporary file takes the target's place.
// The temporary file is private to its owner until it gets the rights of the old file, its group,
// access lists and attributes, as far as this process may set them; what cannot be set narrows the
// rights, never widens them. Where there is no old file, it has the usual rights of new files. A
// symbolic link stays one, and a file that could not be opened for writing is left alone.
//
// A file that has other names (hard links), that is in a folder that takes no temporary file, or
// whose place the temporary file cannot take, is written in place. Meanwhile its old content is
// kept in the user's own folder; if the write is not finished, the next call of either function
// puts it back. The file is not written if its old content cannot be read or kept, or if that or
// the new content is longer than 64 MiB (isTooLarge).
//
// On Windows a file that is being replaced has another name for a moment, "NAME.brennet-old". Both
// functions wait for that, put back what a process that ended half-way left there, and wait for
// programs that hold the file, up to a fifth of a second in all, or as long as `patience` lasts.
// Old content that can neither be replaced nor get its name back stays under that name until the
// next call.
//
// Temporary files are removed if their process has ended or if they are an hour old.
//
// Returns the first error of any step, a failed flush of the content included, or an empty one. Two
// failures are not reported: that the name of a file that has taken its place could not be brought
// to the disk, and, after two attempts, that what was kept of a write in place could not be cleared
// there. After a power loss the old content may then be back, or no file where there was none.
// After an error the old content is there, or is put back by the next call, and no temporary file
// is left. Throws std::bad_alloc, and then has changed nothing.
[[nodiscard]] std::error_code replaceFile(const Path& path, std::string_view bytes,
                                          OldContent old = OldContent::Drop);
[[nodiscard]] std::error_code replaceFile(const Path& path, std::string_view bytes, OldContent old,
                                          Patience& patience);

// Removes such temporary files beside `path`, as replaceFile does; for a file that needs no
// replacement. Throws std::bad_alloc.
void removeLeftovers(const Path& path);

// Whether anything exists at `path`, a file or a folder.
[[nodiscard]] bool pathExists(const Path& path);

// Whether there is a file at `path`, or a link to one, that has more than `size` bytes; also true
// for a link to a file whose size cannot be found out.
[[nodiscard]] bool isFileLarger(const Path& path, std::uint64_t size);

// Whether there is a folder at `path`.
[[nodiscard]] bool folderExists(const Path& path);

// Creates the folder `path`, one level only, and brings its name to the disk. Returns whether the
// folder was created.
bool createFolder(const Path& path);

}  // namespace brennet::platform
