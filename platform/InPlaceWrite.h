#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/FileSystem.h"
#include "platform/Patience.h"

// Writing over the content of a file. Before the first byte, what the file holds and what it is to
// hold are kept as a file in the user's own folder (FileSystem::privateFolder). That the kept file
// is gone again is what makes the new content the file's; until then, whoever opens the file next
// puts the old one back, by whatever name. So a file that was torn by a process or a machine that
// ended is whole again before anyone of ours reads it. The file is locked (FileSystem::lock) while
// it is written, and by those of ours who read it or give another its place. Where the latter may
// not read it, or the file system has no locks, a write may begin in the moment before; if that one
// is not finished, its old content may be put back into the other file.
namespace brennet::platform {

// The error (isTooLarge) with which a file of `size` bytes is not written in place with `bytes`:
// that either is longer than kLargestInPlace (KeptWrite.h).
[[nodiscard]] FileError mayWriteInPlace(std::uint64_t size, std::string_view bytes);

// Makes `bytes` the content of the file at `path`, which is created where it is missing. An error
// means that the old content stands, or is put back by undoTornWrite; a file that cannot be read is
// not written, nor one whose content cannot be kept, nor one that mayWriteInPlace refuses. Where a
// file was torn and is not found, it is made anew with the content that is kept, as the old one.
[[nodiscard]] FileError writeInPlace(FileSystem& system, Patience& patience, const Path& path,
                                     std::string_view bytes);

// Puts the old content back if a write in place was not finished; waits for one that is under way.
// Where the file is not found it stays kept until one is: the disk may be away.
[[nodiscard]] FileError undoTornWrite(FileSystem& system, Patience& patience, const Path& path);

// Calls `make`, which makes a file at `path`, where none is, and then has nothing put back into
// that one: once its name is on the disk, what is kept goes. Nobody puts anything back meanwhile.
// After an error of `make` all stays kept; after another one the file is there, and what is kept
// may be. Throws std::bad_alloc, and then has not called `make`.
[[nodiscard]] FileError makeInsteadOfTorn(FileSystem& system, Patience& patience, const Path& path,
                                          const std::function<FileError()>& make);

// Held where a write in place is kept, so that the file may hold anything: one that is under way,
// or one that was not finished. For who has the file locked there is none of the first kind. Throws
// std::bad_alloc.
[[nodiscard]] FileError busyIfTorn(FileSystem& system, const Path& path);

}  // namespace brennet::platform
