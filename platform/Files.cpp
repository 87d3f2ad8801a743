#include "platform/Files.h"

#include "platform/FileSystem.h"
#include "platform/Leftovers.h"
#include "platform/OpenFile.h"
#include "platform/Patience.h"
#include "platform/Replacement.h"

namespace brennet::platform {

std::error_code readFile(const Path& path, std::string& bytes, std::uint64_t limit) {
  bytes.clear();
  if (path.empty()) return std::make_error_code(std::errc::no_such_file_or_directory);
  FileSystem& system = fileSystem();
  const Path target = system.resolved(path);
  if (const FileError error = settle(system, target)) return error.code;
  OpenFile file(system);
  const auto mayPass = [&](const FileError& error) {
    return isHeld(error) || isBeingReplaced(system, target, error);
  };
  const FileError error = retried(
      system, [&] { return file.open(target, OpenFor::Reading); }, mayPass);
  return error ? error.code : file.readAll(bytes, limit).code;
}

bool isTooLarge(const std::error_code& error) {
  return error == std::errc::file_too_large;
}

std::error_code replaceFile(const Path& path, std::string_view bytes, OldContent old) {
  return replaceFileOn(fileSystem(), path, bytes, old).code;
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
  const FileFacts facts = system.look(system.resolved(path));
  return facts.kind == FileFacts::Kind::File && facts.size > size;
}

bool folderExists(const Path& path) {
  FileSystem& system = fileSystem();
  return system.look(system.resolved(path)).kind == FileFacts::Kind::Folder;
}

bool createFolder(const Path& path) {
  FileSystem& system = fileSystem();
  if (system.createFolder(path)) return false;
  // Not every name ends where its folder ends.
  const Path name = path.has_filename() ? path : path.parent_path();
  static_cast<void>(system.flushFolder(name.parent_path()));
  return true;
}

}  // namespace brennet::platform
