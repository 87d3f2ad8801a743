#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

#include "platform/Files.h"
#include "platform/Leftovers.h"
#include "platform/TemporaryNames.h"

namespace brennet::platform {
namespace {

constexpr mode_t kNewFileMode = 0666;  // less the umask
constexpr int kTemporaryNames = 100;

std::error_code lastError() {
  return {errno, std::generic_category()};
}

template <class Call>
auto retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

// A file descriptor that is closed when it goes out of scope.
class OpenFile {
 public:
  OpenFile(const std::string& path, int flags, mode_t mode = 0)
      : descriptor_(retried([&] { return open(path.c_str(), flags | O_CLOEXEC, mode); })) {}
  ~OpenFile() { static_cast<void>(closeNow()); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
  [[nodiscard]] int get() const { return descriptor_; }

  std::error_code closeNow() {
    if (descriptor_ < 0) return {};
    const int result = close(descriptor_);
    descriptor_ = -1;  // closed even when the call was interrupted
    return result == 0 || errno == EINTR ? std::error_code() : lastError();
  }

 private:
  int descriptor_;
};

std::error_code writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = retried([&] { return write(descriptor, bytes.data(), bytes.size()); });
    if (written < 0) return lastError();
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

// Writes, flushes and closes; the first failure counts.
std::error_code finish(OpenFile& file, std::string_view bytes) {
  if (const std::error_code error = writeAll(file.get(), bytes)) return error;
  if (retried([&] { return fsync(file.get()); }) != 0) return lastError();
  return file.closeNow();
}

// The file that `path` names in the end: a symbolic link is kept, its target is replaced. A link to
// nothing stays as it is.
std::string withoutLinks(const std::string& path) {
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return path;
  char resolved[PATH_MAX];
  return realpath(path.c_str(), resolved) != nullptr ? resolved : path;
}

bool isLink(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

// What stands at the target before it is replaced.
struct Target {
  std::error_code error;              // it cannot be written to
  std::optional<struct stat> status;  // empty where nothing is there yet
};

Target inspect(const std::string& path) {
  const OpenFile file(path, O_WRONLY | O_NONBLOCK);
  if (!file.isOpen()) {
    return {errno == ENOENT ? std::error_code() : lastError(), std::nullopt};
  }
  struct stat status {};
  if (fstat(file.get(), &status) != 0) return {lastError(), std::nullopt};
  if (!S_ISREG(status.st_mode)) {
    return {std::make_error_code(std::errc::invalid_argument), std::nullopt};
  }
  return {{}, status};
}

// Makes sure that `size` bytes fit, before a byte of the old content is touched. Not every file
// system can promise that.
std::error_code reserve(int descriptor, std::size_t size) {
  if (size == 0) return {};
  const int error = posix_fallocate(descriptor, 0, static_cast<off_t>(size));
  if (error == 0 || error == EINVAL || error == EOPNOTSUPP) return {};
  return {error, std::generic_category()};
}

// Writes `bytes` over the content of an open file.
std::error_code overwrite(OpenFile& file, std::string_view bytes) {
  if (lseek(file.get(), 0, SEEK_SET) != 0) return lastError();
  if (const std::error_code error = writeAll(file.get(), bytes)) return error;
  if (ftruncate(file.get(), static_cast<off_t>(bytes.size())) != 0) return lastError();
  return retried([&] { return fsync(file.get()); }) == 0 ? std::error_code() : lastError();
}

// For files that cannot be replaced. The old content is kept at hand and written back if the new
// one cannot be written.
std::error_code writeInPlace(const std::string& path, std::string_view bytes, bool exists) {
  std::string old;
  if (exists) {
    const std::error_code error = readFile(path, old);
    // A file that may be written but not read has to do without.
    if (error && error != std::errc::permission_denied) return error;
  }
  OpenFile file(path, O_WRONLY | O_CREAT, kNewFileMode);
  if (!file.isOpen()) return lastError();
  std::error_code error = reserve(file.get(), bytes.size());
  if (!error) error = overwrite(file, bytes);
  if (!error) return file.closeNow();
  if (exists) {
    static_cast<void>(overwrite(file, old));
  } else {
    unlink(withoutLinks(path).c_str());
  }
  return error;
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

// Gives a new file the permissions and, where the system lets us, the owner of the old one.
bool takeOver(int descriptor, const struct stat& old) {
  const bool sameOwner = old.st_uid == geteuid() && old.st_gid == getegid();
  if (!sameOwner && fchown(descriptor, old.st_uid, old.st_gid) != 0 && errno != EPERM) return false;
  return fchmod(descriptor, old.st_mode & 07777) == 0;
}

enum class Outcome { Replaced, Failed, NotReplaceable };

struct Replacement {
  Outcome outcome;
  std::error_code error;
};

// Fills the open temporary file and puts it in the place of `path`.
Replacement putInPlace(const std::string& temporary, OpenFile& file, const std::string& path,
                       const Target& target, std::string_view bytes) {
  if (target.status && !takeOver(file.get(), *target.status)) return {Outcome::NotReplaceable, {}};
  if (const std::error_code error = finish(file, bytes)) return {Outcome::Failed, error};
  const bool isThere = std::rename(temporary.c_str(), path.c_str()) == 0;
  return {isThere ? Outcome::Replaced : Outcome::NotReplaceable, {}};
}

// The same, leaving no temporary file. Takes no memory, so that it ends what it has begun.
Replacement replaceThrough(const std::string& temporary, OpenFile& file, const std::string& path,
                           const std::string& folderName, const Target& target,
                           std::string_view bytes) {
  // Flushed in the end, so that the new name is on the disk too. Not every file system can; the
  // file's content is safe either way.
  const OpenFile folder(folderName, O_RDONLY | O_DIRECTORY);
  const Replacement result = putInPlace(temporary, file, path, target, bytes);
  if (result.outcome != Outcome::Replaced) {
    unlink(temporary.c_str());
  } else if (folder.isOpen()) {
    retried([&] { return fsync(folder.get()); });
  }
  return result;
}

}  // namespace

std::error_code readFile(const Path& path, std::string& bytes) {
  bytes.clear();
  const OpenFile file(path.native(), O_RDONLY | O_NONBLOCK);
  if (!file.isOpen()) return lastError();
  struct stat status {};
  if (fstat(file.get(), &status) != 0) return lastError();
  if (S_ISDIR(status.st_mode)) return std::make_error_code(std::errc::is_a_directory);
  if (!S_ISREG(status.st_mode)) return std::make_error_code(std::errc::invalid_argument);

  // One byte more than the size tells the end of the file from a file that is still growing.
  bytes.resize(static_cast<std::size_t>(status.st_size) + 1);
  std::size_t size = 0;
  while (true) {
    const ssize_t count =
        retried([&] { return read(file.get(), bytes.data() + size, bytes.size() - size); });
    if (count < 0) {
      const std::error_code error = lastError();
      bytes.clear();
      return error;
    }
    size += static_cast<std::size_t>(count);
    if (count == 0) break;
    if (size == bytes.size()) bytes.resize(size * 2);
  }
  bytes.resize(size);
  return {};
}

std::error_code replaceFile(const Path& name, std::string_view bytes) {
  if (name.empty()) return std::make_error_code(std::errc::no_such_file_or_directory);
  const std::string path = withoutLinks(name.native());
  const Target target = inspect(path);
  if (target.error) return target.error;
  removeLeftovers(path);
  const std::string folder = folderOf(path);

  for (int number = 0; number < kTemporaryNames && !isLink(path); ++number) {
    const std::string temporary =
        temporaryName(path, static_cast<unsigned long>(getpid()), number).native();
    OpenFile file(temporary, O_WRONLY | O_CREAT | O_EXCL, kNewFileMode);
    if (file.isOpen()) {
      const Replacement result = replaceThrough(temporary, file, path, folder, target, bytes);
      if (result.outcome != Outcome::NotReplaceable) return result.error;
      break;
    }
    if (errno != EEXIST) break;
  }
  return writeInPlace(path, bytes, target.status.has_value());
}

bool pathExists(const Path& path) {
  return access(path.c_str(), F_OK) == 0;
}

bool folderExists(const Path& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool createFolder(const Path& path) {
  return mkdir(path.c_str(), 0777) == 0;
}

}  // namespace brennet::platform
