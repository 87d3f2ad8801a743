#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace brennet::platform {

// A file that is closed when it goes out of scope.
class OpenFile {
 public:
  explicit OpenFile(FileSystem& system) : system_(system) {}
  ~OpenFile() { static_cast<void>(close()); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  FileError open(const Path& path, OpenFor purpose);

  [[nodiscard]] FileHandle handle() const { return handle_; }
  // What the file was when it was opened.
  [[nodiscard]] const FileFacts& facts() const { return facts_; }

  // Makes `bytes` the content of the file, to its end even if it grows meanwhile; after an error
  // they are empty. More than `limit` bytes are an error (std::errc::file_too_large). Throws
  // std::bad_alloc.
  FileError readAll(std::string& bytes, std::uint64_t limit) const;
  // Makes `bytes` the first `size` bytes of the content, or all of it if it is shorter. Throws
  // std::bad_alloc.
  FileError readStart(std::string& bytes, std::size_t size) const;
  // Writes `bytes` from the start of the file on. What follows them in the file stays.
  [[nodiscard]] FileError writeAll(std::string_view bytes) const { return writeAt(0, bytes); }
  // The same from `offset` on.
  [[nodiscard]] FileError writeAt(std::uint64_t offset, std::string_view bytes) const;
  [[nodiscard]] FileError resize(std::uint64_t size) const { return system_.resize(handle_, size); }
  [[nodiscard]] FileError reserve(std::uint64_t size) const {
    return system_.reserve(handle_, size);
  }
  [[nodiscard]] FileError lock(Sharing sharing) const { return system_.lock(handle_, sharing); }
  [[nodiscard]] FileError flush() const { return system_.flush(handle_); }
  FileError close();

 private:
  FileSystem& system_;
  FileHandle handle_ = kNoFile;
  FileFacts facts_;
};

}  // namespace brennet::platform
