#pragma once

#include <vector>

#include "platform/FileSystem.h"
#include "platform/Patience.h"

// Old files that are put aside under a name of their own, before another takes their place: the
// file's name, then ".kept-YYYYMMDD-HHMMSS", by the local time.
namespace brennet::platform {

inline constexpr std::size_t kMostKeptFiles = 3;

// The name under which a file is put aside at that time (FileSystem::wallTime).
[[nodiscard]] Path keptName(const Path& path, std::int64_t wallTime);

class TemporaryFile;

// The kept files of one file that is about to get another content. What is put aside here is
// removed again unless it stays.
//
// A file that another one is to take the place of gets its kept name as a second one: that is done
// at once, whole, and for files of any size, also those that cannot be read. A file that is to be
// written in place must not have such a name, since that would show what is written; it is copied.
class KeptFiles {
 public:
  KeptFiles(FileSystem& system, Patience& patience, const Path& path)
      : system_(system), patience_(patience), path_(path) {}
  ~KeptFiles();
  KeptFiles(const KeptFiles&) = delete;
  KeptFiles& operator=(const KeptFiles&) = delete;

  // Looks for those that are there, where the file has so many names. Throws std::bad_alloc, as all
  // functions do but stay().
  void find(std::uint64_t names);
  // How many of them are the file itself, by a second name: a process put it aside and ended before
  // another file took its place, or is about to have one take it.
  [[nodiscard]] std::size_t links() const { return links_.size(); }

  // Puts the file aside by a second name, or as a copy where there are none. Passes over failures:
  // the file can be replaced all the same. A file that is torn by then (busyIfTorn) nothing may
  // take the place of, so its second name goes again.
  void keep();
  // Puts the file aside as a copy, where that is not done yet, and takes its second names away, all
  // of that on the disk too. Not an error where the folder takes no new file, unless there are such
  // names. Held where it is torn.
  FileError keepCopy();
  // The save is done: what was put aside stays, and the oldest go that are too many.
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
  std::vector<Path> others_;  // older files, the oldest first
  std::vector<Path> links_;   // names of the file itself that were there
  Path link_;                 // the one it got here
  Path copy_;
  bool isCopyForLinks_ = false;  // takes the place of one of those that were there, so it stays
};

}  // namespace brennet::platform
