#include "platform/Files.h"

#include "platform/FileSystem.h"
#include "platform/InPlaceWrite.h"
#include "platform/Leftovers.h"
#include "platform/OpenFile.h"
#include "platform/Patience.h"
#include "platform/Replacement.h"

namespace brennet::platform {
namespace {

// Reads the file once; Held where what was read, or that there is no file, may not be true.
FileError readOnce(FileSystem& system, Patience& patience, const Path& path, std::string& bytes,
                   std::uint64_t limit) {
  if (const FileError error = settle(system, patience, path)) return error;
  OpenFile file(system);
  FileError error = file.open(path, OpenFor::Reading);
  if (isBeingReplaced(system, path, error)) return busy();
  if (!error) error = file.lock(Sharing::Together);
  if (!error) error = file.readAll(bytes, limit);
  if (error) return error;
  // Nobody writes it in place while it is locked, but an earlier write may have been cut short.
  return busyIfTorn(system, path);
}

}  // namespace

std::error_code readFile(const Path& path, std::string& bytes, std::uint64_t limit) {
  Patience patience;
  return readFile(path, bytes, limit, patience);
}

std::error_code readFile(const Path& path, std::string& bytes, std::uint64_t limit,
                         Patience& patience) {
  bytes.clear();
  if (path.empty()) return std::make_error_code(std::errc::no_such_file_or_directory);
  FileSystem& system = fileSystem();
  const Path target = system.resolved(path);
  const FileError error =
      retried(system, patience, [&] { return readOnce(system, patience, target, bytes, limit); });
  if (error) bytes.clear();
  return error.code;
}

std::error_code replaceFile(const Path& path, std::string_view bytes, OldContent old) {
  Patience patience;
  return replaceFile(path, bytes, old, patience);
}

std::error_code replaceFile(const Path& path, std::string_view bytes, OldContent old,
                            Patience& patience) {
  return replaceFileOn(fileSystem(), patience, path, bytes, old).code;
}

void removeLeftovers(const Path& path) {
  FileSystem& system = fileSystem();
  removeLeftovers(system, system.resolved(path));
}

bool pathExists(const Path& path) {
  FileSystem& system = fileSystem();
  return system.look(system.resolved(path)).kind != FileFacts::Kind::Nothing;
}

bool isFileLarger(const Path& path, std::uint64_t size) {
  FileSystem& system = fileSystem();
  const Path target = system.resolved(path);
  // Opening follows a link.
  OpenFile file(system);
  if (!file.open(target, OpenFor::Reading)) return file.facts().size > size;
  const FileFacts facts = system.look(target);
  return facts.kind == FileFacts::Kind::Link ||
         (facts.kind == FileFacts::Kind::File && facts.size > size);
}

bool folderExists(const Path& path) {
  FileSystem& system = fileSystem();
  return system.look(system.resolved(path)).kind == FileFacts::Kind::Folder;
}

bool createFolder(const Path& path) {
  FileSystem& system = fileSystem();
  if (system.createFolder(path)) return false;
  // The path may end in a separator.
  const Path name = path.has_filename() ? path : path.parent_path();
  static_cast<void>(system.flushFolder(name.parent_path()));
  return true;
}

}  // namespace brennet::platform
