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

// The whole content of the file at `path`, replacing `bytes`: what some program made it as a whole,
// as far as it is one of ours. A file that another program holds, has locked or is replacing is
// waited for, a fifth of a second, or as long as `patience` lasts (Patience.h).
// Returns the system's error, or an empty one; isMissing tells whether it says that there is no
// file. Folders are refused like unreadable files, and so are files of more than `limit` bytes
// (isTooLarge); on any error `bytes` is empty. Throws std::bad_alloc where the file does not fit
// into memory.
[[nodiscard]] std::error_code readFile(const Path& path, std::string& bytes, std::uint64_t limit);
[[nodiscard]] std::error_code readFile(const Path& path, std::string& bytes, std::uint64_t limit,
                                       Patience& patience);

// Makes `bytes` the content of the file at `path`, creating it where it is missing.
//
// At every moment the disk holds the whole old or the whole new content: the bytes go to a
// temporary file in the same folder, are flushed, and the temporary file takes the target's place.
// The temporary file is the owner's alone until it gets the rights of the old one, its group, lists
// of access and attributes, as far as this process may set them; what cannot be set makes them
// fewer, never more. Where there is no old one, it has the rights that new files have, as the file
// will. A symbolic link stays one, and a file that could not be opened for writing is
// left alone.
//
// A file that has other names (hard links), that stands in a folder that takes no temporary file,
// or whose place the temporary file cannot take, is written in place. Its old content is kept in
// the user's own folder meanwhile, and both functions put it back that find a file there which was
// not finished. Where it cannot be kept or not be read, the file is not written; nor is it where it
// holds more than 64 MiB or is to hold more (isTooLarge).
//
// On Windows a file that is replaced has another name for a moment, "NAME.brennet-old"; both
// functions wait for it, put back what a process left there that ended half-way, and wait for
// programs that hold the file, up to a fifth of a second in all, or as long as `patience` lasts.
// Where the old content can neither be replaced nor get its name back, it keeps that one until the
// next call.
//
// Temporary files of processes that have ended are removed.
//
// Returns the first error of any step, a failing flush of what was written included, or an empty
// one. It is not told that the name of a file which has its place already could not be brought to
// the disk, or, tried twice, that nothing is kept any more of what was written in place: after a
// power loss the old content may stand there, or nothing where there was none.
// After an error the old content stands, or is put back by the next call, and no temporary file is
// left. Throws std::bad_alloc, and then has changed nothing.
[[nodiscard]] std::error_code replaceFile(const Path& path, std::string_view bytes,
                                          OldContent old = OldContent::Drop);
[[nodiscard]] std::error_code replaceFile(const Path& path, std::string_view bytes, OldContent old,
                                          Patience& patience);

// Removes temporary files of replaceFile beside `path` whose processes have ended, as replaceFile
// does; for a file that needs no replacement. Throws std::bad_alloc.
void removeLeftovers(const Path& path);

// Whether anything stands at `path`, a file or a folder.
[[nodiscard]] bool pathExists(const Path& path);

// Whether a file stands at `path`, or a link to one, that has more than `size` bytes; also a link
// to a file that cannot be asked.
[[nodiscard]] bool isFileLarger(const Path& path, std::uint64_t size);

// Whether a folder stands at `path`.
[[nodiscard]] bool folderExists(const Path& path);

// Creates the folder `path`, one level only, and brings its name to the disk. Returns whether the
// folder was created.
bool createFolder(const Path& path);

}  // namespace brennet::platform
