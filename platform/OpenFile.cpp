#include "platform/OpenFile.h"

#include <algorithm>

namespace brennet::platform {
namespace {

FileError tooLarge() {
  return {Obstacle::Other, std::make_error_code(std::errc::file_too_large)};
}

}  // namespace

FileError OpenFile::open(const Path& path, OpenFor purpose) {
  return system_.open(path, purpose, handle_, facts_);
}

FileError OpenFile::readAll(std::string& bytes, std::uint64_t limit) const {
  bytes.clear();
  if (facts_.size > limit || facts_.size >= bytes.max_size()) return tooLarge();
  // One byte more than the size tells the end of the file from a file that is still growing.
  bytes.resize(static_cast<std::size_t>(facts_.size) + 1);
  std::size_t size = 0;
  while (true) {
    std::size_t count = 0;
    FileError error = system_.read(handle_, size, bytes.data() + size, bytes.size() - size, count);
    size += count;
    if (!error && size > limit) error = tooLarge();
    if (error) {
      bytes.clear();
      return error;
    }
    if (count == 0) break;
    if (size == bytes.size()) bytes.resize(size * 2);
  }
  bytes.resize(size);
  return {};
}

FileError OpenFile::readStart(std::string& bytes, std::size_t size) const {
  bytes.assign(size, '\0');
  std::size_t done = 0;
  while (done < size) {
    std::size_t count = 0;
    if (const FileError error =
            system_.read(handle_, done, bytes.data() + done, size - done, count)) {
      bytes.clear();
      return error;
    }
    if (count == 0) break;
    done += count;
  }
  bytes.resize(done);
  return {};
}

FileError OpenFile::writeAt(std::uint64_t offset, std::string_view bytes) const {
  while (!bytes.empty()) {
    std::size_t count = 0;
    if (const FileError error = system_.write(handle_, offset, bytes, count)) return error;
    bytes.remove_prefix(count);
    offset += count;
  }
  return {};
}

FileError OpenFile::close() {
  if (handle_ == kNoFile) return {};
  const FileError error = system_.close(handle_);
  handle_ = kNoFile;
  return error;
}

}  // namespace brennet::platform
