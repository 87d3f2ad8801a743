// Every system call on the way to a new file fails once, one after the other. Whatever fails, the
// disk holds the whole old or the whole new content and no temporary file.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <string>

#include "platform/Files.h"
#include "tests/support/TempFolder.h"

namespace {

// The number of calls until the one that fails; negative: none fails.
int callsUntilFailure = -1;

// The folder takes no new files, or no new names for old ones.
bool newFilesFail = false;
bool renamesFail = false;

// What is written cannot be brought to the disk.
bool flushingFails = false;
bool closingFails = false;

bool failsNow() {
  if (callsUntilFailure < 0) return false;
  return callsUntilFailure-- == 0;
}

int failWith(int error) {
  errno = error;
  return -1;
}

}  // namespace

extern "C" {

int __real_open(const char* path, int flags, ...);
ssize_t __real_write(int file, const void* bytes, size_t size);
int __real_fsync(int file);
int __real_close(int file);
int __real_rename(const char* from, const char* to);
int __real_fstat(int file, struct stat* status);
int __real_fchmod(int file, mode_t mode);

int __wrap_open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  if (newFilesFail && (flags & O_EXCL) != 0) return failWith(EACCES);
  return failsNow() ? failWith(EACCES) : __real_open(path, flags, mode);
}
// A full disk takes a part before it refuses the rest.
ssize_t __wrap_write(int file, const void* bytes, size_t size) {
  if (!failsNow()) return __real_write(file, bytes, size);
  if (size == 1) return failWith(ENOSPC);
  callsUntilFailure = 0;
  return __real_write(file, bytes, size / 2);
}
int __wrap_fsync(int file) {
  return flushingFails || failsNow() ? failWith(EIO) : __real_fsync(file);
}
int __wrap_close(int file) {
  const int result = __real_close(file);
  return closingFails || failsNow() ? failWith(EIO) : result;
}
int __wrap_rename(const char* from, const char* to) {
  return renamesFail || failsNow() ? failWith(EBUSY) : __real_rename(from, to);
}
int __wrap_fstat(int file, struct stat* status) {
  return failsNow() ? failWith(EIO) : __real_fstat(file, status);
}
int __wrap_fchmod(int file, mode_t mode) {
  return failsNow() ? failWith(EPERM) : __real_fchmod(file, mode);
}

}  // extern "C"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

constexpr char kOld[] = "the old content";
constexpr char kNew[] = "the new content, which is longer";
constexpr int kMoreCallsThanAnyWrite = 40;

std::error_code replaceWithFailure(const Path& path, int failingCall) {
  callsUntilFailure = failingCall;
  const std::error_code error = replaceFile(path, kNew);
  callsUntilFailure = -1;
  return error;
}

TEST(FileFaults, LeaveTheWholeOldOrTheWholeNewContent) {
  int failures = 0;
  for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
    const TempFolder folder;
    writeBytes(folder / "f", kOld);
    const std::error_code error = replaceWithFailure(folder / "f", call);
    EXPECT_EQ(readBytes(folder / "f"), error ? kOld : kNew) << "failing call " << call;
    EXPECT_EQ(folder.listing(), "f\n") << "failing call " << call;
    failures += error ? 1 : 0;
  }
  EXPECT_GE(failures, 3) << "a failing open, flush and close are all reported";
}

TEST(FileFaults, OfFlushingAndClosingAreReported) {
  for (bool* const fails : {&flushingFails, &closingFails}) {
    const TempFolder folder;
    writeBytes(folder / "f", kOld);
    *fails = true;
    const std::error_code error = replaceFile(folder / "f", kNew);
    *fails = false;
    EXPECT_EQ(error.value(), EIO);
    EXPECT_EQ(readBytes(folder / "f"), kOld);
    EXPECT_EQ(folder.listing(), "f\n");
  }
}

TEST(FileFaults, LeaveNothingWhereNothingWas) {
  for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
    const TempFolder folder;
    const std::error_code error = replaceWithFailure(folder / "f", call);
    EXPECT_EQ(folder.listing(), error ? "" : "f\n") << "failing call " << call;
    EXPECT_EQ(readBytes(folder / "f"), error ? "" : kNew) << "failing call " << call;
  }
}

TEST(FileFaults, LeaveTheOldContentOfAFileThatIsWrittenInPlace) {
  for (bool* const cause : {&newFilesFail, &renamesFail}) {
    int failures = 0;
    *cause = true;
    for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
      const TempFolder folder;
      writeBytes(folder / "f", kOld);
      const std::error_code error = replaceWithFailure(folder / "f", call);
      // A file whose closing fails has been written and flushed before.
      const std::string content = readBytes(folder / "f");
      EXPECT_TRUE(content == (error ? kOld : kNew) || content == kNew) << "failing call " << call;
      EXPECT_EQ(folder.listing(), "f\n") << "failing call " << call;
      failures += error ? 1 : 0;
    }
    *cause = false;
    EXPECT_GE(failures, 4);
  }
}

TEST(FileFaults, LeaveNoDescriptorOpen) {
  const TempFolder folder;
  const int before = __real_open("/dev/null", O_RDONLY);
  __real_close(before);
  for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
    static_cast<void>(replaceWithFailure(folder / "f", call));
  }
  const int after = __real_open("/dev/null", O_RDONLY);
  __real_close(after);
  EXPECT_EQ(after, before);
}

TEST(FileFaults, OfAReadGiveNoBytes) {
  const TempFolder folder;
  writeBytes(folder / "f", kOld);
  for (int call = 0; call < 2; ++call) {  // open, fstat
    callsUntilFailure = call;
    std::string bytes = "before";
    EXPECT_TRUE(readFile(folder / "f", bytes)) << "failing call " << call;
    callsUntilFailure = -1;
    EXPECT_EQ(bytes, "") << "failing call " << call;
  }
}

}  // namespace
}  // namespace brennet::platform
