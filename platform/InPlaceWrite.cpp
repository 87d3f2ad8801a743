#include "platform/InPlaceWrite.h"

#include <algorithm>
#include <list>
#include <utility>

#include "platform/FileErrors.h"
#include "platform/KeptWrite.h"

namespace brennet::platform {
namespace {

// Opens the file and locks it for this writer alone.
FileError openAlone(FileSystem& system, Patience& patience, OpenFile& file, const Path& path,
                    OpenFor purpose) {
  return retried(system, patience, [&] {
    FileError error = file.open(path, purpose);
    if (!error) error = file.lock(Sharing::Alone);
    if (error) static_cast<void>(file.close());
    return error;
  });
}

// The content of the file at `path`; none if it does not exist.
FileError readContent(FileSystem& system, Patience& patience, const Path& path,
                      std::optional<std::string>& content) {
  const FileError error = retried(system, patience, [&] {
    OpenFile file(system);
    const FileError failed = file.open(path, OpenFor::Reading);
    return failed ? failed : file.readAll(content.emplace(), kLargestInPlace);
  });
  if (error) content.reset();
  return error.obstacle == Obstacle::Missing ? FileError() : error;
}

// Writes over the open file. It is cut to its new length only once the bytes before are on the
// disk.
FileError overwrite(const OpenFile& file, std::string_view bytes, std::uint64_t sizeBefore) {
  FileError error = file.writeAll(bytes);
  if (!error && sizeBefore > bytes.size()) {
    error = file.flush();
    if (!error) error = file.resize(bytes.size());
  }
  return error ? error : file.flush();
}

// Puts back what the file held, or removes it if it is new.
FileError putBack(FileSystem& system, const Path& path, OpenFile& file,
                  const std::optional<std::string>& old) {
  // The file may have any length now: the write was not finished.
  if (old) return overwrite(file, *old, kAnySize);
  static_cast<void>(file.close());
  return system.remove(path);
}

// Puts back what the file held before `write`. `isDone` tells whether nothing is left to do; false
// if there is no file, because its disk may be away, or somebody may have renamed it for a moment.
FileError undo(FileSystem& system, Patience& patience, const Path& path, const TornWrite& write,
               bool& isDone) {
  std::optional<std::string> content;
  const auto read = [&] {
    const FileError error = readContent(system, patience, path, content);
    // If the file is too large, somebody else has written it since.
    isDone = content || !write.old || isTooLarge(error.code);
    return isTooLarge(error.code) ? FileError() : error;
  };
  if (const FileError error = read()) return error;
  if (!content || !write.mayHaveLeft(*content)) return {};
  OpenFile file(system);
  if (const FileError error = openAlone(system, patience, file, path, OpenFor::Writing)) {
    return error;
  }
  // Once more, now that nobody else writes it.
  if (const FileError error = read()) return error;
  if (!content || !write.mayHaveLeft(*content)) return {};
  return putBack(system, path, file, write.old);
}

// Brings the name of a new file to the disk.
FileError flushName(FileSystem& system, const Path& folder) {
  const FileError error = system.flushFolder(folder);
  // A folder that may not be read cannot be flushed.
  return error.obstacle == Obstacle::Denied ? FileError() : error;
}

// A write in place, with its kept file open. Once something is written, no memory is taken.
class InPlaceWrite {
 public:
  InPlaceWrite(FileSystem& system, Patience& patience, const Path& path, KeptWrite& kept)
      : system_(system),
        patience_(patience),
        path_(path),
        folder_(path.parent_path()),
        kept_(kept),
        file_(system) {}

  // `lost`: content that is still to be put back, into a file that was not found.
  FileError run(std::string_view bytes, std::optional<std::string> lost) {
    FileError error = readOld();
    if (lost) {
      if (!error) error = old_ ? busy() : makeAnew(*lost);
      if (error) return error;
      old_ = std::move(lost);
    }
    if (!error) error = kept_.write(old_, bytes);
    if (!error && !old_) error = create();
    if (!error) error = reserve(bytes.size());
    if (error) {
      static_cast<void>(kept_.discard());
      return error;
    }
    error = overwrite(file_, bytes, old_ ? old_->size() : 0);
    // A new name must be on the disk before the record that it may be missing goes.
    if (!error && !old_) error = flushName(system_, folder_);
    if (!error) error = kept_.discard();
    if (!error) return {};  // what was flushed is on the disk, whatever closing reports
    if (!putBack(system_, path_, file_, old_)) static_cast<void>(kept_.discard());
    return error;
  }

 private:
  // Locks the file before it is read, so that nobody writes it in between.
  FileError readOld() {
    const FileError error = openAlone(system_, patience_, file_, path_, OpenFor::Writing);
    if (error.obstacle == Obstacle::Missing) return {};
    if (error) return error;
    // A process that was writing it by another name may have ended meanwhile.
    std::vector<KeptWrite::Identity> names;
    if (const FileError failed = KeptWrite::find(system_, path_, names)) return failed;
    if (names.size() > 1) return busy();
    const FileError failed = readContent(system_, patience_, path_, old_);
    return !failed && !old_ ? busy() : failed;
  }

  // Once the file exists, only the lock is tried again.
  FileError create() {
    const FileError error =
        retried(system_, patience_, [&] { return file_.open(path_, OpenFor::Creating); });
    if (error) return error;
    if (file_.facts().size != 0) {  // somebody has made one since
      return {Obstacle::Exists, std::make_error_code(std::errc::file_exists)};
    }
    return orRemove(retried(system_, patience_, [&] { return file_.lock(Sharing::Alone); }));
  }

  // Makes a file with that content, which stays kept until the file is on the disk. That a file can
  // be made shows that its disk is not away.
  FileError makeAnew(std::string_view content) {
    FileError error = create();
    if (!error) error = orRemove(overwrite(file_, content, 0));
    return error ? error : orRemove(flushName(system_, folder_));
  }

  FileError reserve(std::uint64_t size) { return orRemove(file_.reserve(size)); }

  // After an error, removes the file again if it is new.
  FileError orRemove(const FileError& error) {
    if (error && !old_) static_cast<void>(putBack(system_, path_, file_, old_));
    return error;
  }

  FileSystem& system_;
  Patience& patience_;
  const Path& path_;
  Path folder_;
  KeptWrite& kept_;
  OpenFile file_;
  std::optional<std::string> old_;
};

// Undoes what was written to the file at `path` when its name was `identity`.
FileError undoByName(FileSystem& system, Patience& patience, const Path& path,
                     const KeptWrite::Identity& identity) {
  KeptWrite kept(system, patience, identity);
  if (!kept.isThere()) return {};
  if (const FileError error = kept.open()) {
    return error.obstacle == Obstacle::Exists ? FileError() : error;
  }
  bool isDone = true;
  if (kept.found()) {
    if (const FileError error = undo(system, patience, path, *kept.found(), isDone)) return error;
  }
  return isDone ? kept.discard() : FileError();
}

}  // namespace

FileError mayWriteInPlace(std::uint64_t size, std::string_view bytes) {
  if (size <= kLargestInPlace && bytes.size() <= kLargestInPlace) return {};
  return {Obstacle::Other, std::make_error_code(std::errc::file_too_large)};
}

FileError writeInPlace(FileSystem& system, Patience& patience, const Path& path,
                       std::string_view bytes) {
  if (const FileError error = mayWriteInPlace(0, bytes)) return error;
  KeptWrite kept(system, patience, path);
  if (const FileError error = kept.open()) return error;
  bool isDone = true;
  if (kept.found()) {
    if (const FileError error = undo(system, patience, path, *kept.found(), isDone)) return error;
  }
  std::optional<std::string> lost;
  if (!isDone) lost = kept.found()->old;
  return InPlaceWrite(system, patience, path, kept).run(bytes, std::move(lost));
}

FileError undoTornWrite(FileSystem& system, Patience& patience, const Path& path) {
  std::vector<KeptWrite::Identity> names;
  if (const FileError error = KeptWrite::find(system, path, names)) return error;
  for (const KeptWrite::Identity& name : names) {
    if (const FileError error = undoByName(system, patience, path, name)) return error;
  }
  return {};
}

FileError makeInsteadOfTorn(FileSystem& system, Patience& patience, const Path& path,
                            const std::function<FileError()>& make) {
  const Path folder = path.parent_path();
  std::vector<KeptWrite::Identity> names;
  FileError error = KeptWrite::find(system, path, names);
  std::list<KeptWrite> kept;
  for (const KeptWrite::Identity& name : names) {
    if (!error) error = kept.emplace_back(system, patience, name).open();
  }
  if (!error) error = make();
  if (!error && !kept.empty()) error = flushName(system, folder);
  for (KeptWrite& write : kept) {
    if (!error) error = write.discard();
  }
  return error;
}

FileError busyIfTorn(FileSystem& system, const Path& path) {
  std::vector<KeptWrite::Identity> names;
  const FileError error = KeptWrite::find(system, path, names);
  const bool isTorn =
      std::any_of(names.begin(), names.end(), [](const auto& name) { return name.isWritten; });
  return !error && isTorn ? busy() : error;
}

}  // namespace brennet::platform
