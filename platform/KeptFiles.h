#pragma once

#include <vector>

#include "platform/FileSystem.h"
#include "platform/Patience.h"

// Old files that are put aside under a name of their own before another takes their place: the
// file's name, then ".kept-YYYYMMDD-HHMMSS" in local time.
namespace brennet::platform {

inline constexpr std::size_t kMostKeptFiles = 3;

// The name under which a file is put aside at `wallTime` (FileSystem::wallTime).
[[nodiscard]] Path keptName(const Path& path, std::int64_t wallTime);

class TemporaryFile;

// The kept files of one file that is about to get new content. What is put aside here is removed
// again unless stay() is called.
//
// A file that another one will replace gets its kept name as a second name: that is done in one
// step, for files of any size, even those that cannot be read. A file that will be written in place
// must not have such a name, because the new content would show under it too; it is copied.
class KeptFiles {
 public:
  KeptFiles(FileSystem& system, Patience& patience, const Path& path)
      : system_(system), patience_(patience), path_(path) {}
  ~KeptFiles();
  KeptFiles(const KeptFiles&) = delete;
  KeptFiles& operator=(const KeptFiles&) = delete;

  // Looks for the existing kept files of a file that has `names` names in all. Throws
  // std::bad_alloc, as do keep() and keepCopy().
  void find(std::uint64_t names);
  // How many of them are the file itself, by a second name: a process put it aside and ended before
  // it replaced the file, or is about to replace it.
  [[nodiscard]] std::size_t links() const { return links_.size(); }

  // Puts the file aside by a second name, or as a copy where there can be none. Ignores failures:
  // the file can be replaced all the same.
  void keep();
  // Puts the file aside as a copy, if that is not done yet, and removes its second names, all of
  // that on the disk too. Not an error where the folder takes no new file, unless there are such
  // names. Held where the file is torn.
  FileError keepCopy();
  // The save is done: what was put aside stays, and the oldest files beyond kMostKeptFiles are
  // removed.
  void stay() noexcept;

 private:
  FileError fill(TemporaryFile& copy);
  template <class Name>
  FileError underFreeName(Path& name, Name give);
  bool isGone(const FileError& error);
  FileError dropLinks();

  FileSystem& system_;
  Patience& patience_;
  const Path& path_;
  std::vector<Path> others_;  // earlier files, the oldest first
  std::vector<Path> links_;   // names of the file itself that existed before
  Path link_;                 // the one that was added here
  Path copy_;
  bool isCopyForLinks_ = false;  // replaces a name that existed before, so it stays
};

}  // namespace brennet::platform
