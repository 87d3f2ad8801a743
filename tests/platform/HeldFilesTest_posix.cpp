// Files that another program keeps from being opened for a moment, and files that must not grow.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <string>

#include "platform/Files.h"
#include "tests/support/ScopedFileLimit_posix.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

constexpr useconds_t kAMoment = 60'000;  // microseconds
constexpr unsigned kForever = 10;        // seconds

// Another process with a lease on a file. The system tells it to give the lease up as soon as
// somebody wants to open the file, and refuses to open it until then.
class Leaser {
 public:
  enum class Manner { GivesUp, Keeps };

  Leaser(const Path& path, int kind, Manner manner) {
    int ready[2];
    EXPECT_EQ(pipe(ready), 0);
    child_ = fork();
    if (child_ == 0) hold(path, kind, manner, ready[1]);
    char byte = 0;
    EXPECT_EQ(::read(ready[0], &byte, 1), 1);
    hasLease_ = byte == 'y';
    close(ready[0]);
    close(ready[1]);
  }
  ~Leaser() {
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
  }
  Leaser(const Leaser&) = delete;
  Leaser& operator=(const Leaser&) = delete;

  // Not every file system has leases.
  [[nodiscard]] bool hasLease() const { return hasLease_; }

 private:
  [[noreturn]] static void hold(const Path& path, int kind, Manner manner, int ready) {
    sigset_t asked;
    sigemptyset(&asked);
    sigaddset(&asked, SIGIO);
    sigprocmask(SIG_BLOCK, &asked, nullptr);
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const char answer = fcntl(file, F_SETLEASE, kind) == 0 ? 'y' : 'n';
    if (::write(ready, &answer, 1) != 1) _exit(1);
    int signal = 0;
    sigwait(&asked, &signal);
    if (manner == Manner::Keeps) sleep(kForever);
    usleep(kAMoment);
    fcntl(file, F_SETLEASE, F_UNLCK);
    sleep(kForever);
    _exit(0);
  }

  pid_t child_ = -1;
  bool hasLease_ = false;
};

TEST(HeldFilesReadFile, WaitsForALeaseThatIsGivenUp) {
  const TempFolder folder;
  writeBytes(folder / "f", "bytes");
  const Leaser leaser(folder / "f", F_WRLCK, Leaser::Manner::GivesUp);
  std::string read;
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
  EXPECT_EQ(read, "bytes");
}

TEST(HeldFilesReadFile, TellsOfALeaseThatIsNot) {
  const TempFolder folder;
  writeBytes(folder / "f", "bytes");
  const Leaser leaser(folder / "f", F_WRLCK, Leaser::Manner::Keeps);
  std::string read;
  const std::error_code error = readFile(folder / "f", read, kAnySize);
  EXPECT_EQ(static_cast<bool>(error), leaser.hasLease());
  EXPECT_FALSE(isMissing(error)) << "taken for a missing file";
}

TEST(HeldFilesReplaceFile, WaitsForALeaseThatIsGivenUp) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  const Leaser leaser(folder / "f", F_RDLCK, Leaser::Manner::GivesUp);
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
}

TEST(HeldFilesReadFile, TellsAMissingFileFromOneThatIsThere) {
  const TempFolder folder;
  writeBytes(folder / "f", "bytes");
  std::string read;
  EXPECT_TRUE(isMissing(readFile(folder / "missing", read, kAnySize)));
  EXPECT_TRUE(isMissing(readFile(folder / "missing/f", read, kAnySize)));
  EXPECT_TRUE(isMissing(readFile(folder / "f/f", read, kAnySize)));
  EXPECT_TRUE(isMissing(readFile(Path(), read, kAnySize)));
  EXPECT_FALSE(isMissing(readFile(folder.path(), read, kAnySize)));
  EXPECT_FALSE(isMissing(std::error_code()));
}

// The system would end the process by a signal.
TEST(HeldFilesReplaceFile, OutlivesALimitForFiles) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  ASSERT_EQ(link((folder / "f").c_str(), (folder / "second").c_str()), 0);
  const std::string large(5000, 'n');
  for (const char* const name : {"f", "other"}) {
    const test::ScopedFileLimit limit(1000);
    EXPECT_EQ(replaceFile(folder / name, large), std::errc::file_too_large) << name;
  }
  EXPECT_EQ(folder.listing(), "f\nsecond\n");
  EXPECT_EQ(readBytes(folder / "f"), "old");
  sigset_t pending;
  sigpending(&pending);
  EXPECT_EQ(sigismember(&pending, SIGXFSZ), 0);
}

}  // namespace
}  // namespace brennet::platform
