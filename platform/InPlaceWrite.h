#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/FileSystem.h"
#include "platform/Patience.h"

// Writing over the content of a file. Before the first byte, the old and the new content are kept
// as a file in the user's own folder (FileSystem::privateFolder). The write counts once that kept
// file is gone; until then, whoever opens the file next, by whatever name, puts the old content
// back. So a file that was torn by a process or a machine that ended is whole again before any
// process of ours reads it. The file is locked (FileSystem::lock) while it is written, and by those
// of ours who read it or replace it. If a process that replaces it may not read it, or the file
// system has no locks, a write can begin in the moment before the replacement; if that write is not
// finished, its old content may be put back into the new file.
namespace brennet::platform {

// The error (isTooLarge) with which a file of `size` bytes is not written in place with `bytes`:
// either is longer than kLargestInPlace (KeptWrite.h).
[[nodiscard]] FileError mayWriteInPlace(std::uint64_t size, std::string_view bytes);

// Makes `bytes` the content of the file at `path`, which is created if it is missing. After an
// error the old content is there, or is put back by undoTornWrite. A file is not written if it
// cannot be read, if its content cannot be kept, or if mayWriteInPlace refuses it. A torn file that
// is not found is made anew, with the kept content as its old one.
[[nodiscard]] FileError writeInPlace(FileSystem& system, Patience& patience, const Path& path,
                                     std::string_view bytes);

// Puts the old content back if a write in place was not finished; waits for one that is under way.
// If the file is not found, its content stays kept until it is: its disk may be away.
[[nodiscard]] FileError undoTornWrite(FileSystem& system, Patience& patience, const Path& path);

// Calls `make`, which makes a file at `path`, where there is none, and sees to it that no old
// content is put back into that file: once its name is on the disk, what is kept is removed. Nobody
// puts anything back meanwhile. If `make` fails, all stays kept; after any other error the file
// exists, and its old content may still be kept. Throws std::bad_alloc, and then has not called
// `make`.
[[nodiscard]] FileError makeInsteadOfTorn(FileSystem& system, Patience& patience, const Path& path,
                                          const std::function<FileError()>& make);

// Held where a write in place is kept, so that the file may hold anything: one that is under way,
// or one that was not finished. A caller that has locked the file meets only the second kind.
// Throws std::bad_alloc.
[[nodiscard]] FileError busyIfTorn(FileSystem& system, const Path& path);

}  // namespace brennet::platform
