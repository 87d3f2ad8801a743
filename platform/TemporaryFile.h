#pragma once

#include "platform/OpenFile.h"
#include "platform/Patience.h"

namespace brennet::platform {

// A new file beside another, with one of its temporary names (TemporaryNames.h), which is removed
// again unless it gets a name of its own. Once it exists, no memory is taken.
class TemporaryFile {
 public:
  TemporaryFile(FileSystem& system, Patience& patience)
      : system_(system), patience_(patience), file_(system) {}
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  // Makes the file beside the one at `path`, under the first free name; `purpose` is one of those
  // for new files. Exists if no name is free. Throws std::bad_alloc.
  FileError create(const Path& path, OpenFor purpose);

  [[nodiscard]] const Path& name() const { return name_; }
  [[nodiscard]] OpenFile& file() { return file_; }
  // The file has another name now, or has taken another's place: it stays.
  void hasMoved() { isThere_ = false; }

 private:
  FileSystem& system_;
  Patience& patience_;
  Path name_;
  OpenFile file_;
  bool isThere_ = false;
};

}  // namespace brennet::platform
