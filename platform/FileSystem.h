#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <system_error>

#include "platform/Paths.h"

// What the file functions (Files.h) ask of the system, one call each. How a file is read, replaced
// and put right again is written once, above these; a test puts a body of its own below.
namespace brennet::platform {

// What stood in the way of a call, as far as anyone above asks.
enum class Obstacle {
  None,
  Missing,  // there is no such file, or no folder for it
  Exists,   // the name is taken
  Held,     // another program has the file at this moment; it may work a little later
  Halfway,  // only of exchange()
  Denied,   // the rights of this process do not reach
  Other,
};

// How a call ended: the obstacle, and the error in the system's own number.
struct FileError {
  Obstacle obstacle = Obstacle::None;
  std::error_code code;

  explicit operator bool() const { return obstacle != Obstacle::None; }
};

// What stands at a name.
struct FileFacts {
  enum class Kind { Nothing, File, Folder, Link, Other };

  Kind kind = Kind::Nothing;
  std::uint64_t size = 0;   // in bytes; of a file
  std::uint64_t links = 1;  // how many names the file has
  std::uint64_t age = 0;    // how long ago it was written to, in seconds; 0 if that is to come
};

// What a file is opened for.
enum class OpenFor {
  Reading,   // one that is there; others may do with it what they like meanwhile
  Writing,   // one that is there; its content stays until something is written
  Creating,  // an empty one where nothing is, with the rights that new files have; also behind a
             // link, where resolved() does not follow them
  New,       // an empty one where nothing is, with the rights that new files have
  NewAndPrivate,  // the same, for the owner alone
  Keeping,  // for reading and writing, where nothing is an empty one for the owner alone; it stays
            // Held for everybody else who opens it for this
};

// How a file is locked.
enum class Sharing { Together, Alone };

using FileHandle = std::intptr_t;
inline constexpr FileHandle kNoFile = -1;

// The calls. None throws anything but std::bad_alloc, and only before it has changed something; all
// paths are taken as they are. Calls that were interrupted by a signal are begun again.
class FileSystem {
 public:
  FileSystem() = default;
  virtual ~FileSystem() = default;
  FileSystem(const FileSystem&) = delete;
  FileSystem& operator=(const FileSystem&) = delete;

  // Opens a file, and nothing that is none: folders and devices are refused. A symbolic link is
  // followed but for new and kept files, where it is refused.
  virtual FileError open(const Path& path, OpenFor purpose, FileHandle& file, FileFacts& facts) = 0;
  // Reads up to `size` bytes at `offset` into `bytes`; `count` tells how many, 0 at the end.
  virtual FileError read(FileHandle file, std::uint64_t offset, char* bytes, std::size_t size,
                         std::size_t& count) = 0;
  // Writes at `offset`; `count` tells how many of the bytes, at least one.
  virtual FileError write(FileHandle file, std::uint64_t offset, std::string_view bytes,
                          std::size_t& count) = 0;
  virtual FileError resize(FileHandle file, std::uint64_t size) = 0;
  // Makes sure that `size` bytes will fit, while the file keeps its size. No error where the file
  // system cannot promise that.
  virtual FileError reserve(FileHandle file, std::uint64_t size) = 0;
  // Brings what was written to the disk.
  virtual FileError flush(FileHandle file) = 0;
  // Locks a file that is open for reading (Together), or for writing (Alone), until it is closed;
  // Held where others have locked it, one of the two Alone. Only who locks it, too, meets the lock:
  // other programs read and write the file as ever. No error where the file system has no locks.
  virtual FileError lock(FileHandle file, Sharing sharing) = 0;
  // Closes the file in any case.
  virtual FileError close(FileHandle file) = 0;

  // Gives the open file the rights of the file at `path`, its group, owner, lists of access and
  // attributes, as far as this process may. What cannot be had narrows the rights, never widens
  // them.
  virtual void copyRights(const Path& path, FileHandle file) = 0;

  // What stands at `path`; a symbolic link is not followed. Nothing where that cannot be seen.
  virtual FileFacts look(const Path& path) = 0;
  // Gives the file `from` the name `to`, which must be free (else Exists). On a file system that
  // can neither refuse a name that is taken nor give a file two names, one that comes to `to` in
  // that very moment is lost.
  virtual FileError move(const Path& from, const Path& to) = 0;
  // Gives the file `replacement` the name `path`, whose own file goes or stays as `backup`. After
  // an error everything is as it was; after Halfway the old file is `backup`, nothing is `path`,
  // and the new file has its own name.
  virtual FileError exchange(const Path& replacement, const Path& path, const Path& backup) = 0;
  // Gives the file `path` a second name, which must be free (else Exists). Held where somebody has
  // the file in a way in which that name could not be removed again. Where flushFolder() does
  // nothing the name is on the disk then.
  virtual FileError link(const Path& path, const Path& second) = 0;
  // Whether two names are those of one file; a symbolic link is a file of its own. No where that
  // cannot be found out.
  virtual bool isSameFile(const Path& a, const Path& b) = 0;
  virtual FileError remove(const Path& path) = 0;
  // Removes a file that is open for Keeping, at `path`, before anybody else can open it; it goes at
  // the latest when it is closed.
  virtual FileError removeKept(FileHandle file, const Path& path) = 0;
  // Removes `backup` if there is a file at `path`, so that nobody who is replacing that file at
  // this moment can be left without either.
  virtual FileError removeBackup(const Path& backup, const Path& path) = 0;

  virtual FileError createFolder(const Path& path) = 0;
  // The same, for the owner alone. No error where such a folder is there and belongs to this user
  // alone; where another thing has the name, Denied; where one is about to go, Missing.
  virtual FileError createPrivateFolder(const Path& path) = 0;
  // No error where such a folder is there and belongs to this user alone, Missing where nothing is
  // or can be, or what is there is about to go, and Denied where another thing has the name; else
  // the error of what failed. Creates nothing.
  virtual FileError checkPrivateFolder(const Path& path) = 0;
  // Removes a folder if it is empty.
  virtual void removeFolder(const Path& path) = 0;
  // Brings the names in the folder to the disk. Systems that cannot do that do it by themselves.
  virtual FileError flushFolder(const Path& path) = 0;

  // Calls `visit` for the name, without its folder, of whatever stands in `folder`, in any order.
  // After an error there may be more.
  virtual FileError list(const Path& folder,
                         const std::function<void(const Path& name)>& visit) = 0;

  // Whether two names in a folder are those of one file.
  virtual bool isSameName(std::basic_string_view<Path::value_type> a,
                          std::basic_string_view<Path::value_type> b) = 0;

  // The file that `path` means: symbolic links in its last place are followed, also one to nothing.
  // A system that does not follow them gives `path`.
  virtual Path resolved(const Path& path) = 0;
  // One path for all spellings of a path to the same place. Empty where that cannot be found out.
  virtual Path identity(const Path& path) = 0;
  // A folder, not there as a rule, for what only this user may see. It lies where the user has his
  // temporary files, so a restart of the machine keeps it only where it keeps those, and processes
  // with other settings have another. Empty where there is no place for it.
  virtual Path privateFolder() = 0;

  // The number of this process, and whether the one with a number is running.
  virtual unsigned long process() = 0;
  virtual bool isRunning(unsigned long process) = 0;
  // The local time in seconds since 1970 began, as a calendar on the wall counts them.
  virtual std::int64_t wallTime() = 0;
  // A clock that only goes on, in milliseconds from whatever moment.
  virtual std::uint64_t clock() = 0;
  // Waits 20 milliseconds, or longer where the system cannot wake the process up by then.
  virtual void pause() = 0;
};

// The system that the process runs on.
[[nodiscard]] FileSystem& operatingSystem();

// What the functions of Files.h stand on: the operating system. It has an object file of its own,
// so that a test program can have another in its place.
[[nodiscard]] FileSystem& fileSystem();

}  // namespace brennet::platform
