#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <system_error>

#include "platform/Paths.h"

// What the file functions (Files.h) ask of the system, one call each. How a file is read, replaced
// and put right is written once, above these calls; tests put implementations of their own below.
namespace brennet::platform {

// Why a call failed, as far as the code above distinguishes that.
enum class Obstacle {
  None,
  Missing,  // there is no such file, or no folder for it
  Exists,   // the name is taken
  Held,     // another program has the file at this moment; the call may succeed a little later
  Halfway,  // only of exchange()
  Denied,   // the rights of this process do not suffice
  Other,
};

// How a call ended: the obstacle, and the system's own error number.
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
  std::uint64_t age = 0;    // how long ago it was written to, in seconds; 0 if in the future
};

// What a file is opened for.
enum class OpenFor {
  Reading,   // an existing one; others may do what they like with it meanwhile
  Writing,   // an existing one; its content stays until something is written
  Creating,  // a new, empty one with the usual rights of new files; a system whose resolved() does
             // not follow links creates it behind a link too, and opens one that exists already
  New,       // a new, empty one with the usual rights of new files
  NewAndPrivate,  // the same, for the owner alone
  Keeping,  // for reading and writing; where there is none, an empty one for the owner alone. It is
            // Held for everybody else who opens it for this purpose
};

// How a file is locked.
enum class Sharing { Together, Alone };

using FileHandle = std::intptr_t;
inline constexpr FileHandle kNoFile = -1;

// The calls. None throws anything but std::bad_alloc, and only before it has changed something; all
// paths are taken as they are. Calls that a signal interrupts are repeated.
class FileSystem {
 public:
  FileSystem() = default;
  virtual ~FileSystem() = default;
  FileSystem(const FileSystem&) = delete;
  FileSystem& operator=(const FileSystem&) = delete;

  // Opens a file, and nothing else: folders and devices are refused. A symbolic link is followed,
  // except for new and kept files, where it is refused.
  virtual FileError open(const Path& path, OpenFor purpose, FileHandle& file, FileFacts& facts) = 0;
  // Reads up to `size` bytes at `offset` into `bytes`; `count` receives how many, 0 at the end.
  virtual FileError read(FileHandle file, std::uint64_t offset, char* bytes, std::size_t size,
                         std::size_t& count) = 0;
  // Writes at `offset`; `count` receives how many of the bytes were written, at least one.
  virtual FileError write(FileHandle file, std::uint64_t offset, std::string_view bytes,
                          std::size_t& count) = 0;
  virtual FileError resize(FileHandle file, std::uint64_t size) = 0;
  // Makes sure that `size` bytes will fit, without changing the file's size. No error where the
  // file system cannot promise that.
  virtual FileError reserve(FileHandle file, std::uint64_t size) = 0;
  // Brings what was written to the disk.
  virtual FileError flush(FileHandle file) = 0;
  // Locks a file that is open for reading (Together) or for writing (Alone) until it is closed;
  // Held where others have locked it, unless both locks are Together. The lock is advisory:
  // programs that do not lock the file read and write it as ever. No error where the file system
  // has no locks.
  virtual FileError lock(FileHandle file, Sharing sharing) = 0;
  // Closes the file in any case.
  virtual FileError close(FileHandle file) = 0;

  // Gives the open file the rights of the file at `path`, its group, owner, access lists and
  // attributes, as far as this process may. What cannot be set narrows the rights, never widens
  // them.
  virtual void copyRights(const Path& path, FileHandle file) = 0;

  // What stands at `path`; a symbolic link is not followed. Nothing where that cannot be seen.
  virtual FileFacts look(const Path& path) = 0;
  // Gives the file `from` the name `to`, which must be free (else Exists). On a file system that
  // can neither refuse a name that is taken nor give a file two names, a file that appears at `to`
  // in that very moment is lost.
  virtual FileError move(const Path& from, const Path& to) = 0;
  // Gives the file `replacement` the name `path`; the old file of that name is removed, or stays as
  // `backup`. After an error everything is as it was; after Halfway the old file is `backup`,
  // nothing is at `path`, and the new file has its own name.
  virtual FileError exchange(const Path& replacement, const Path& path, const Path& backup) = 0;
  // Gives the file `path` a second name, which must be free (else Exists). Held where another
  // program has the file open in a way that would not let that name be removed again. Where
  // flushFolder() does nothing, the name is on the disk afterwards.
  virtual FileError link(const Path& path, const Path& second) = 0;
  // Whether two names are those of one file; a symbolic link is a file of its own. False where that
  // cannot be found out.
  virtual bool isSameFile(const Path& a, const Path& b) = 0;
  virtual FileError remove(const Path& path) = 0;
  // Removes the file at `path`, which is open for Keeping, before anybody else can open it; it is
  // gone at the latest when it is closed.
  virtual FileError removeKept(FileHandle file, const Path& path) = 0;
  // Removes `backup` if there is a file at `path`, so that a process that is replacing that file at
  // this moment cannot be left without either.
  virtual FileError removeBackup(const Path& backup, const Path& path) = 0;

  virtual FileError createFolder(const Path& path) = 0;
  // The same, for the owner alone. No error where such a folder exists and belongs to this user
  // alone; Denied where something else has the name; Missing where one is about to go.
  virtual FileError createPrivateFolder(const Path& path) = 0;
  // No error where such a folder exists and belongs to this user alone; Missing where nothing is or
  // can be, or where what exists is about to go; Denied where something else has the name; else the
  // error of the call that failed. Creates nothing.
  virtual FileError checkPrivateFolder(const Path& path) = 0;
  // Removes a folder if it is empty.
  virtual void removeFolder(const Path& path) = 0;
  // Brings the names in the folder to the disk. Does nothing on systems that do that by themselves.
  virtual FileError flushFolder(const Path& path) = 0;

  // Calls `visit` with the name, without the folder, of everything in `folder`, in any order. After
  // an error some may be missing.
  virtual FileError list(const Path& folder,
                         const std::function<void(const Path& name)>& visit) = 0;

  // Whether two names in a folder are those of one file.
  virtual bool isSameName(std::basic_string_view<Path::value_type> a,
                          std::basic_string_view<Path::value_type> b) = 0;

  // The file that `path` means: symbolic links in its last component are followed, even one to
  // nothing. A system that does not follow them returns `path`.
  virtual Path resolved(const Path& path) = 0;
  // One and the same path for all spellings of a path to one place. Empty where that cannot be
  // found out.
  virtual Path identity(const Path& path) = 0;
  // A folder, usually missing, for what only this user may see. It lies with the user's temporary
  // files, so it outlives a restart of the machine only if they do, and processes with other
  // settings have another one. Empty where there is no place for it.
  virtual Path privateFolder() = 0;

  // The number of this process, and whether the process with a given number is running.
  virtual unsigned long process() = 0;
  virtual bool isRunning(unsigned long process) = 0;
  // The local time in seconds since the start of 1970, as a clock on the wall shows it.
  virtual std::int64_t wallTime() = 0;
  // A clock that is never set back, in milliseconds from an arbitrary moment.
  virtual std::uint64_t clock() = 0;
  // Waits 20 milliseconds, or longer where the system cannot wake the process up by then.
  virtual void pause() = 0;
};

// The system that the process runs on.
[[nodiscard]] FileSystem& operatingSystem();

// What the functions of Files.h use: the operating system. Defined in an object file of its own, so
// that a test program can put another in its place.
[[nodiscard]] FileSystem& fileSystem();

}  // namespace brennet::platform
