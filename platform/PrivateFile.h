#pragma once

#include <string>
#include <string_view>

#include "platform/OpenFile.h"
#include "platform/Patience.h"

namespace brennet::platform {

// A file in the user's own folder (FileSystem::privateFolder) that outlives the process, and that
// one process at a time has to itself. Whoever has it holds a second file open beside it,
// NAME.lock, which the system releases when the process ends, however it ends.
//
// Nobody but the user can look into that folder; if it belongs to somebody else, there are no
// files.
class PrivateFile {
 public:
  PrivateFile() : system_(fileSystem()), lock_(system_) {}
  // Lets go of the file, which stays as it is.
  ~PrivateFile() { release(); }
  PrivateFile(const PrivateFile&) = delete;
  PrivateFile& operator=(const PrivateFile&) = delete;

  // Whether there is a file of that name, or something left from its use. Throws std::bad_alloc.
  [[nodiscard]] bool isThere(std::string_view name) const;

  // Takes the file of that name, which need not exist; this object must not have one yet. Does not
  // wait for a process that has it. Returns whether this object has it now. Throws std::bad_alloc.
  [[nodiscard]] bool take(std::string_view name);
  [[nodiscard]] bool isTaken() const { return lock_.handle() != kNoFile; }

  // The functions below are for a file that was taken.

  // readFile and replaceFile of Files.h: at every moment the disk holds the whole old or the whole
  // new content; where there was no file, there may be an empty one first.
  [[nodiscard]] std::error_code read(std::string& bytes, std::uint64_t limit) const;
  [[nodiscard]] std::error_code write(std::string_view bytes) const;

  // Empties the file, in one step and on the disk too, and removes it. Returns whether it holds
  // nothing now. Needs no memory.
  [[nodiscard]] bool clear() noexcept;

  // Lets go of the file; one that holds something stays.
  void release() noexcept;

 private:
  FileError openLock();
  FileError empty(Patience& patience, const Path& path) noexcept;

  FileSystem& system_;
  Path folder_;
  Path parent_;  // of the folder
  Path path_;
  Path backup_;  // the name of the old content while it is replaced
  Path lockPath_;
  OpenFile lock_;
};

}  // namespace brennet::platform
