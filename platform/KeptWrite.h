#pragma once

#include <vector>

#include "platform/OpenFile.h"
#include "platform/Patience.h"
#include "platform/TornWrite.h"

namespace brennet::platform {

// The most bytes that a file may hold, before and after a write in place: both contents are kept,
// and are in memory together when the file is put right.
inline constexpr std::uint64_t kLargestInPlace = 64U << 20U;

// The kept file of a write in place, while this process has it for itself. It is removed on
// destruction unless it says something by then.
class KeptWrite {
 public:
  // The name by which a file was or is to be written (FileSystem::identity).
  struct Identity {
    Path path;
    bool isWritten = false;  // whether the kept file says something; set by find() alone
  };

  // For the file at `path`, by that name. If another process has the kept file, waits for it with
  // `patience`. Throws std::bad_alloc.
  KeptWrite(FileSystem& system, Patience& patience, const Path& path)
      : KeptWrite(system, patience, Identity{system.identity(path)}) {}
  // For a file by a name that find() returned. It may no longer be the identity of any path: a
  // folder may have moved, with a link to it in its place.
  KeptWrite(FileSystem& system, Patience& patience, const Identity& identity);
  ~KeptWrite();
  KeptWrite(const KeptWrite&) = delete;
  KeptWrite& operator=(const KeptWrite&) = delete;

  // Finds all kept files that are about the file at `path`, whatever name it had when it was
  // written: `names` receives those names, usually none. An error where that cannot be found out;
  // but a name that cannot be compared with `path` (FileSystem::isSameFile) is skipped. Throws
  // std::bad_alloc.
  [[nodiscard]] static FileError find(FileSystem& system, const Path& path,
                                      std::vector<Identity>& names);
  // Whether the kept file exists; if not, there is nobody to wait for.
  [[nodiscard]] bool isThere() const;
  // Opens the kept file, waiting for whoever has it; creates it and its folder if they are missing.
  // Exists where it is about another file. Throws std::bad_alloc.
  FileError open();
  // The write that the file recorded when it was opened, which nobody has finished.
  [[nodiscard]] const std::optional<TornWrite>& found() const { return found_; }
  // Brings `old` and `bytes` to the disk. Throws std::bad_alloc.
  FileError write(const std::optional<std::string>& old, std::string_view bytes);
  // Makes the open file say nothing any more, and removes it. After an error it may still say what
  // it said. That it says nothing is brought to the disk too; if that fails for good, so that it
  // may speak again after a power loss, no error is returned, because there is no way back.
  FileError discard();

 private:
  FileError openFile();

  FileSystem& system_;
  Patience& patience_;
  Path folder_;
  Path parent_;  // of the folder
  Path name_;
  std::string file_;  // the file that is written, by the bytes of its identity
  OpenFile opened_;
  std::optional<TornWrite> found_;
  bool saysSomething_ = false;
};

}  // namespace brennet::platform
