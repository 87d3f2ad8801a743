#include "platform/PrivateFile.h"

#include <new>

#include "platform/Files.h"
#include "platform/Leftovers.h"
#include "platform/Patience.h"
#include "platform/Replacement.h"

namespace brennet::platform {
namespace {

Path lockOf(Path file) {
  file += ".lock";
  return file;
}

bool isFile(FileSystem& system, const Path& path) {
  return system.look(path).kind == FileFacts::Kind::File;
}

bool isGone(const FileError& error) {
  return !error || error.obstacle == Obstacle::Missing;
}

}  // namespace

bool PrivateFile::isThere(std::string_view name) const {
  const Path folder = system_.privateFolder();
  if (folder.empty() || system_.checkPrivateFolder(folder)) return false;
  const Path file = folder / name;
  return isFile(system_, lockOf(file)) || isFile(system_, file) ||
         isFile(system_, backupName(file));
}

FileError PrivateFile::openLock() {
  // Another process that had the file removes it and its folder in the end. While it has the file,
  // this one does not wait.
  Patience patience;
  return retried(
      system_, patience,
      [&] {
        const FileError error = system_.createPrivateFolder(folder_);
        return error ? error : lock_.open(lockPath_, OpenFor::Keeping);
      },
      [](const FileError& error) { return error.obstacle == Obstacle::Missing; });
}

bool PrivateFile::take(std::string_view name) {
  folder_ = system_.privateFolder();
  if (folder_.empty()) return false;
  parent_ = folder_.parent_path();
  path_ = folder_ / name;
  backup_ = backupName(path_);
  lockPath_ = lockOf(path_);
  if (openLock()) return false;
  // A folder that may not be read cannot be flushed; the lock alone says nothing.
  static_cast<void>(system_.flushFolder(folder_));
  static_cast<void>(system_.flushFolder(parent_));
  return true;
}

std::error_code PrivateFile::read(std::string& bytes, std::uint64_t limit) const {
  return readFile(path_, bytes, limit);
}

std::error_code PrivateFile::write(std::string_view bytes) const {
  // A file that replaces another takes over its rights. A new one would have the usual rights of
  // new files, which may shut the user out if an elevated process of his made it. While it is
  // empty, it says nothing.
  OpenFile fresh(system_);
  static_cast<void>(fresh.open(path_, OpenFor::NewAndPrivate));
  static_cast<void>(fresh.close());
  return replaceFile(path_, bytes);
}

FileError PrivateFile::empty(Patience& patience, const Path& path) noexcept {
  OpenFile file(system_);
  FileError error = retried(system_, patience, [&] { return file.open(path, OpenFor::Writing); });
  if (!error) error = file.resize(0);
  // Once the file is empty, it says nothing to any later process; whether that is on the disk
  // matters only if the machine fails.
  if (!error) static_cast<void>(file.flush());
  return error;
}

bool PrivateFile::clear() noexcept {
  // A replacement that failed half-way may have left the old content under the other name. While
  // the file exists, it is the one that counts; so the other one goes first.
  Patience patience;
  const FileError oldError = empty(patience, backup_);
  const FileError error = empty(patience, path_);
  const bool isEmpty = !error || (isGone(error) && isGone(oldError));
  if (!isGone(oldError)) return isEmpty;  // the empty file stays, and counts
  const FileError removed = retried(system_, patience, [&] { return system_.remove(path_); });
  static_cast<void>(system_.remove(backup_));
  return (isGone(removed) && !system_.flushFolder(folder_)) || isEmpty;
}

void PrivateFile::release() noexcept {
  if (!isTaken()) return;
  try {
    removeLeftovers(system_, path_);
  } catch (const std::bad_alloc&) {
    // They go another time.
  }
  static_cast<void>(system_.removeKept(lock_.handle(), lockPath_));
  static_cast<void>(lock_.close());
  system_.removeFolder(folder_);
}

}  // namespace brennet::platform
