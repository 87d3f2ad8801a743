#include "platform/FileSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <string>

#include "platform/FileErrors.h"
#include "platform/posix/FileRights.h"

namespace brennet::platform {
namespace {

constexpr mode_t kUsualMode = 0666;  // less the umask
constexpr mode_t kUsualFolderMode = 0777;
constexpr mode_t kPrivateMode = 0600;
constexpr mode_t kPrivateFolderMode = 0700;
constexpr long kPause = 20'000'000;            // nanoseconds
constexpr off_t kLockedByte = off_t{1} << 40;  // far beyond the end of any file of ours
constexpr int kMostLinks = 40;                 // as many as the kernel follows

Obstacle obstacleOf(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return Obstacle::Missing;
    case EEXIST:
      return Obstacle::Exists;
    case EAGAIN:  // another program has a lease on the file, and has been told to give it up
    case ETXTBSY:
      return Obstacle::Held;
    case EACCES:
    case EPERM:
    case EROFS:
      return Obstacle::Denied;
    default:
      return Obstacle::Other;
  }
}

FileError failure(int error) {
  return {obstacleOf(error), {error, std::generic_category()}};
}

// The result of a call that returns 0 or sets errno.
FileError ended(int result) {
  return result == 0 ? FileError() : failure(errno);
}

template <class Call>
auto retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

// While it exists, a file that grows beyond what this process may write gives an error: the signal
// would end the host.
class NoSizeSignal {
 public:
  NoSizeSignal() {
    sigemptyset(&signal_);
    sigaddset(&signal_, SIGXFSZ);
    sigset_t pending;
    sigpending(&pending);
    wasPending_ = sigismember(&pending, SIGXFSZ) == 1;
    pthread_sigmask(SIG_BLOCK, &signal_, &before_);
  }
  ~NoSizeSignal() {
    const int error = errno;
    constexpr timespec kNow{};
    if (!wasPending_) retried([&] { return sigtimedwait(&signal_, nullptr, &kNow); });
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
    errno = error;
  }
  NoSizeSignal(const NoSizeSignal&) = delete;
  NoSizeSignal& operator=(const NoSizeSignal&) = delete;

 private:
  sigset_t signal_;
  sigset_t before_;
  bool wasPending_;
};

FileFacts factsOf(const struct stat& status) {
  FileFacts facts;
  if (S_ISREG(status.st_mode)) {
    facts.kind = FileFacts::Kind::File;
  } else if (S_ISDIR(status.st_mode)) {
    facts.kind = FileFacts::Kind::Folder;
  } else {
    facts.kind = S_ISLNK(status.st_mode) ? FileFacts::Kind::Link : FileFacts::Kind::Other;
  }
  facts.size = static_cast<std::uint64_t>(status.st_size);
  facts.links = status.st_nlink;
  const std::time_t age = std::time(nullptr) - status.st_mtime;
  facts.age = age > 0 ? static_cast<std::uint64_t>(age) : 0;
  return facts;
}

int flagsFor(OpenFor purpose) {
  switch (purpose) {
    case OpenFor::Reading:
      return O_RDONLY;
    case OpenFor::Writing:
      return O_WRONLY;
    case OpenFor::Creating:
    case OpenFor::New:
    case OpenFor::NewAndPrivate:
      return O_WRONLY | O_CREAT | O_EXCL;
    case OpenFor::Keeping:
      return O_RDWR | O_CREAT | O_NOFOLLOW;
  }
  return O_RDONLY;
}

mode_t modeFor(OpenFor purpose) {
  return purpose == OpenFor::New || purpose == OpenFor::Creating ? kUsualMode : kPrivateMode;
}

// Whether the open file is still what stands at `path`.
bool isStillAt(const Path& path, const struct stat& opened) {
  struct stat now {};
  return lstat(path.c_str(), &now) == 0 && now.st_dev == opened.st_dev &&
         now.st_ino == opened.st_ino;
}

// Refuses what is not a file, and a file to be kept that somebody else keeps or has just removed.
FileError check(int file, const Path& path, OpenFor purpose, FileFacts& facts) {
  if ((flagsFor(purpose) & O_EXCL) != 0) {  // it is new
    facts = {FileFacts::Kind::File};
    return {};
  }
  struct stat status {};
  if (fstat(file, &status) != 0) return failure(errno);
  facts = factsOf(status);
  if (facts.kind == FileFacts::Kind::Folder) return failure(EISDIR);
  if (facts.kind != FileFacts::Kind::File) return failure(EINVAL);
  if (purpose != OpenFor::Keeping) return {};
  if (retried([&] { return flock(file, LOCK_EX | LOCK_NB); }) != 0) return failure(errno);
  return isStillAt(path, status) ? FileError() : failure(EAGAIN);
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

// Gives the file the name `to`, if that is free, before the name `from` is removed.
FileError moveInTwoSteps(const Path& from, const Path& to) {
  if (::link(from.c_str(), to.c_str()) == 0) {
    if (unlink(from.c_str()) == 0) return {};
    const FileError error = failure(errno);
    unlink(to.c_str());
    return error;
  }
  const FileError error = failure(errno);
  if (error.obstacle == Obstacle::Missing || error.obstacle == Obstacle::Exists) return error;
  // A file system without second names. A file that appears at `to` in this very moment is lost.
  struct stat status {};
  if (lstat(to.c_str(), &status) == 0) return failure(EEXIST);
  return ended(std::rename(from.c_str(), to.c_str()));
}

class PosixFileSystem final : public FileSystem {
 public:
  FileError open(const Path& path, OpenFor purpose, FileHandle& file, FileFacts& facts) override {
    // Without waiting for a lease, or for the other end of a pipe.
    const int flags = flagsFor(purpose) | O_NONBLOCK | O_CLOEXEC;
    const int opened = retried([&] { return ::open(path.c_str(), flags, modeFor(purpose)); });
    if (opened < 0) return failure(errno);
    const FileError error = check(opened, path, purpose, facts);
    if (error) {
      ::close(opened);
    } else {
      file = opened;
    }
    return error;
  }

  FileError read(FileHandle file, std::uint64_t offset, char* bytes, std::size_t size,
                 std::size_t& count) override {
    const ssize_t result = retried(
        [&] { return pread(static_cast<int>(file), bytes, size, static_cast<off_t>(offset)); });
    if (result < 0) return failure(errno);
    count = static_cast<std::size_t>(result);
    return {};
  }

  FileError write(FileHandle file, std::uint64_t offset, std::string_view bytes,
                  std::size_t& count) override {
    const NoSizeSignal quiet;
    const ssize_t result = retried([&] {
      return pwrite(static_cast<int>(file), bytes.data(), bytes.size(), static_cast<off_t>(offset));
    });
    if (result <= 0) return failure(result == 0 ? ENOSPC : errno);
    count = static_cast<std::size_t>(result);
    return {};
  }

  FileError resize(FileHandle file, std::uint64_t size) override {
    const NoSizeSignal quiet;
    return ended(
        retried([&] { return ftruncate(static_cast<int>(file), static_cast<off_t>(size)); }));
  }

  FileError reserve(FileHandle file, std::uint64_t size) override {
    const NoSizeSignal quiet;
    const int result = retried([&] {
      return fallocate(static_cast<int>(file), FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(size));
    });
    // EINVAL also if there is nothing to reserve.
    if (result == 0 || errno == EOPNOTSUPP || errno == EINVAL || errno == ENOSYS) return {};
    return failure(errno);
  }

  FileError flush(FileHandle file) override {
    return ended(retried([&] { return fsync(static_cast<int>(file)); }));
  }

  // The lock belongs to the open file, not to the process: threads lock files separately, and
  // closing the file through another handle does not unlock it.
  FileError lock(FileHandle file, Sharing sharing) override {
    struct flock range {};
    range.l_type = sharing == Sharing::Alone ? F_WRLCK : F_RDLCK;
    range.l_whence = SEEK_SET;
    range.l_start = kLockedByte;
    range.l_len = 1;
    if (retried([&] { return fcntl(static_cast<int>(file), F_OFD_SETLK, &range); }) == 0) return {};
    const bool isLocked = errno == EAGAIN || errno == EACCES;
    return isLocked ? failure(EAGAIN) : FileError();
  }

  FileError close(FileHandle file) override {
    // Closed even when the call was interrupted.
    const int result = ::close(static_cast<int>(file));
    return result == 0 || errno == EINTR ? FileError() : failure(errno);
  }

  void copyRights(const Path& path, FileHandle file) override {
    copyFileRights(path, static_cast<int>(file));
  }

  FileFacts look(const Path& path) override {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 ? factsOf(status) : FileFacts();
  }

  FileError move(const Path& from, const Path& to) override {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return {};
    // Not every file system can refuse a name that is taken.
    if (errno != EINVAL && errno != ENOSYS) return failure(errno);
    return moveInTwoSteps(from, to);
  }

  FileError exchange(const Path& replacement, const Path& path, const Path& /*backup*/) override {
    return ended(std::rename(replacement.c_str(), path.c_str()));
  }

  FileError link(const Path& path, const Path& second) override {
    return ended(::link(path.c_str(), second.c_str()));
  }

  bool isSameFile(const Path& a, const Path& b) override {
    struct stat first {};
    return lstat(a.c_str(), &first) == 0 && isStillAt(b, first);
  }

  FileError remove(const Path& path) override { return ended(unlink(path.c_str())); }

  FileError removeKept(FileHandle /*file*/, const Path& path) override { return remove(path); }

  // Files are never moved to a backup here: one that exists comes from another system that shares
  // the disk.
  FileError removeBackup(const Path& backup, const Path& path) override {
    return look(path).kind == FileFacts::Kind::File ? remove(backup) : FileError();
  }

  FileError createFolder(const Path& path) override {
    return ended(mkdir(path.c_str(), kUsualFolderMode));
  }

  FileError createPrivateFolder(const Path& path) override {
    const FileError error = ended(mkdir(path.c_str(), kPrivateFolderMode));
    return error.obstacle == Obstacle::Exists ? checkPrivateFolder(path) : error;
  }

  FileError checkPrivateFolder(const Path& path) override {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) {
      const bool canBeNone = errno == ELOOP || errno == ENAMETOOLONG;
      return failure(canBeNone ? ENOENT : errno);
    }
    const bool isOwn =
        S_ISDIR(status.st_mode) && status.st_uid == geteuid() && (status.st_mode & 077U) == 0;
    return isOwn ? FileError() : failure(EACCES);
  }

  void removeFolder(const Path& path) override { rmdir(path.c_str()); }

  FileError flushFolder(const Path& path) override {
    const char* const name = path.empty() ? "." : path.c_str();
    const int folder = retried([&] { return ::open(name, O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (folder < 0) return failure(errno);
    const FileError error = flush(folder);
    ::close(folder);
    // Not every file system can flush a folder.
    return error.code == std::errc::invalid_argument ? FileError() : error;
  }

  // Not with std::filesystem: its functions that report errors without exceptions end the process
  // when memory runs out.
  FileError list(const Path& folder, const std::function<void(const Path& name)>& visit) override {
    struct Close {
      void operator()(DIR* stream) const { closedir(stream); }
    };
    const std::unique_ptr<DIR, Close> entries(opendir(folder.empty() ? "." : folder.c_str()));
    if (entries == nullptr) return failure(errno);
    while (true) {
      errno = 0;
      const dirent* const entry = readdir(entries.get());
      if (entry == nullptr) return errno == 0 ? FileError() : failure(errno);
      visit(entry->d_name);
    }
  }

  bool isSameName(std::string_view a, std::string_view b) override { return a == b; }

  Path resolved(const Path& path) override {
    std::string name = path.native();
    char target[PATH_MAX];
    for (int i = 0; i < kMostLinks; ++i) {
      const ssize_t size = readlink(name.c_str(), target, sizeof(target));
      if (size < 0) return name;
      const std::string_view text(target, static_cast<std::size_t>(size));
      name = text.starts_with('/') ? std::string(text) : folderOf(name).append("/").append(text);
    }
    return path;
  }

  Path identity(const Path& path) override {
    char folder[PATH_MAX];
    if (realpath(folderOf(path.native()).c_str(), folder) == nullptr) return {};
    return Path(folder) / path.filename();
  }

  Path privateFolder() override {
    // Unlike /tmp, /var/tmp outlives a restart; a folder that the user has chosen may not.
    const char* const chosen = std::getenv("TMPDIR");
    const Path folder = chosen != nullptr && *chosen == '/' ? chosen : "/var/tmp";
    return folder / ("brennet-" + std::to_string(geteuid()));
  }

  unsigned long process() override { return static_cast<unsigned long>(getpid()); }

  bool isRunning(unsigned long process) override {
    constexpr unsigned long kLargest = INT_MAX;
    if (process == 0 || process > kLargest) return false;
    return kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
  }

  std::int64_t wallTime() override {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    return localtime_r(&now, &local) != nullptr ? now + local.tm_gmtoff : now;
  }

  std::uint64_t clock() override {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<std::uint64_t>(now.tv_sec) * 1000 +
           static_cast<std::uint64_t>(now.tv_nsec) / 1'000'000;
  }

  void pause() override {
    const timespec duration{0, kPause};
    nanosleep(&duration, nullptr);
  }
};

}  // namespace

bool isMissing(const std::error_code& error) {
  return error.category() == std::generic_category() &&
         obstacleOf(error.value()) == Obstacle::Missing;
}

FileSystem& operatingSystem() {
  static PosixFileSystem system;
  return system;
}

}  // namespace brennet::platform
