#include "platform/InPlaceWrite.h"

#include "platform/KeptWrite.h"
#include "platform/Patience.h"

namespace brennet::platform {
namespace {

FileError openWaiting(FileSystem& system, OpenFile& file, const Path& path, OpenFor purpose) {
  return retried(system, [&] { return file.open(path, purpose); });
}

// The content of the file at `path`; none where nothing is there.
FileError readContent(FileSystem& system, const Path& path, std::optional<std::string>& content) {
  OpenFile file(system);
  const FileError error = openWaiting(system, file, path, OpenFor::Reading);
  if (error.obstacle == Obstacle::Missing) return {};
  if (error) return error;
  return file.readAll(content.emplace(), kLargestInPlace);
}

// Writes over the open file. What it held is not cut off before the rest is on the disk.
FileError overwrite(const OpenFile& file, std::string_view bytes, std::uint64_t sizeBefore) {
  FileError error = file.writeAll(bytes);
  if (!error && sizeBefore > bytes.size()) {
    error = file.flush();
    if (!error) error = file.resize(bytes.size());
  }
  return error ? error : file.flush();
}

// Puts back what the file held, or removes one that there was not.
FileError putBack(FileSystem& system, const Path& path, OpenFile& file,
                  const std::optional<std::string>& old) {
  // How long the file is now nobody knows who has not finished writing it.
  if (old) return overwrite(file, *old, kAnySize);
  static_cast<void>(file.close());
  return system.remove(path);
}

FileError undo(FileSystem& system, const Path& path, const TornWrite& write) {
  std::optional<std::string> content;
  const FileError error = readContent(system, path, content);
  if (isTooLarge(error.code)) return {};  // somebody else has written it since
  if (error) return error;
  if (!content || !write.mayHaveLeft(*content)) return {};
  OpenFile file(system);
  if (const FileError closed = openWaiting(system, file, path, OpenFor::Writing)) return closed;
  return putBack(system, path, file, write.old);
}

// The file that is to be written, with room for `bytes`; none of it has changed after an error.
FileError prepare(OpenFile& file, FileSystem& system, const Path& path, std::string_view bytes,
                  const std::optional<std::string>& old) {
  FileError error = openWaiting(system, file, path, old ? OpenFor::Writing : OpenFor::Creating);
  if (error) return error;
  if (!old && file.facts().size != 0) {  // somebody has made one since
    return {Obstacle::Exists, std::make_error_code(std::errc::file_exists)};
  }
  error = file.reserve(bytes.size());
  if (error && !old) static_cast<void>(putBack(system, path, file, old));
  return error;
}

// Writes the file, what it held and is to hold being kept.
FileError writeKept(FileSystem& system, const Path& path, std::string_view bytes,
                    const std::optional<std::string>& old, KeptWrite& kept) {
  OpenFile file(system);
  FileError error = prepare(file, system, path, bytes, old);
  if (error) {
    static_cast<void>(kept.discard());
    return error;
  }
  error = overwrite(file, bytes, old ? old->size() : 0);
  if (!error) error = kept.discard();
  if (!error) return {};  // what was flushed is there, whatever closing says
  if (!putBack(system, path, file, old)) static_cast<void>(kept.discard());
  return error;
}

}  // namespace

FileError mayWriteInPlace(std::uint64_t size, std::string_view bytes) {
  if (size <= kLargestInPlace && bytes.size() <= kLargestInPlace) return {};
  return {Obstacle::Other, std::make_error_code(std::errc::file_too_large)};
}

FileError writeInPlace(FileSystem& system, const Path& path, std::string_view bytes) {
  if (const FileError error = mayWriteInPlace(0, bytes)) return error;
  KeptWrite kept(system, path);
  if (const FileError error = kept.open()) return error;
  if (kept.found()) {
    if (const FileError error = undo(system, path, *kept.found())) return error;
  }
  std::optional<std::string> old;
  if (const FileError error = readContent(system, path, old)) return error;
  if (const FileError error = kept.write(old, bytes)) {
    static_cast<void>(kept.discard());
    return error;
  }
  return writeKept(system, path, bytes, old, kept);
}

FileError undoTornWrite(FileSystem& system, const Path& path) {
  if (!KeptWrite::isAnyThere(system)) return {};
  KeptWrite kept(system, path);
  if (!kept.isThere()) return {};
  if (const FileError error = kept.open()) {
    return error.obstacle == Obstacle::Exists ? FileError() : error;
  }
  if (kept.found()) {
    if (const FileError error = undo(system, path, *kept.found())) return error;
  }
  return kept.discard();
}

}  // namespace brennet::platform
