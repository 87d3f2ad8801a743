// The linker sends the calls here first (--wrap).

#include "tests/platform/FileFaults_posix.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <utility>

#include "tests/platform/FileFaults.h"

namespace brennet::test {

extern mode_t writtenModes;

FileFaults faults;
mode_t writtenModes = 0;
const int kDeviceError = EIO;
std::function<void()> beforeStatus;
Lacking lacking;
int attributeError = 0;

}  // namespace brennet::test

using brennet::test::attributeError;
using brennet::test::faults;
using brennet::test::lacking;

namespace {

int failWith(int error) {
  errno = error;
  return -1;
}

}  // namespace

extern "C" {

int __real_open(const char* path, int flags, ...);
ssize_t __real_pread(int file, void* bytes, size_t size, off_t offset);
ssize_t __real_pwrite(int file, const void* bytes, size_t size, off_t offset);
int __real_ftruncate(int file, off_t size);
int __real_fallocate(int file, int mode, off_t start, off_t size);
int __real_fsync(int file);
int __real_close(int file);
int __real_rename(const char* from, const char* to);
int __real_renameat2(int folder, const char* from, int otherFolder, const char* to, unsigned flags);
int __real_link(const char* from, const char* to);
int __real_unlink(const char* path);
int __real_fstat(int file, struct stat* status);
int __real_fchmod(int file, mode_t mode);
ssize_t __real_lgetxattr(const char* path, const char* name, void* value, size_t size);
int __real_fremovexattr(int file, const char* name);

int __wrap_open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  const bool isNew = (flags & O_EXCL) != 0;
  if ((isNew && faults.newFiles) || faults.failsNow()) return failWith(EACCES);
  return __real_open(path, flags, mode);
}
// A full disk takes part of a write before it refuses the rest.
ssize_t __wrap_pwrite(int file, const void* bytes, size_t size, off_t offset) {
  struct stat status {};
  if (__real_fstat(file, &status) == 0) brennet::test::writtenModes |= status.st_mode & 0777U;
  if (!faults.diskFull && !faults.failsNow()) return __real_pwrite(file, bytes, size, offset);
  if (size == 1) return failWith(ENOSPC);
  faults.callsUntilFailure = 0;
  return __real_pwrite(file, bytes, size / 2, offset);
}
ssize_t __wrap_pread(int file, void* bytes, size_t size, off_t offset) {
  return faults.failsNow() ? failWith(EIO) : __real_pread(file, bytes, size, offset);
}
int __wrap_ftruncate(int file, off_t size) {
  return faults.failsNow() ? failWith(EIO) : __real_ftruncate(file, size);
}
int __wrap_fallocate(int file, int mode, off_t start, off_t size) {
  if (faults.diskFull || faults.failsNow()) return failWith(ENOSPC);
  return __real_fallocate(file, mode, start, size);
}
int __wrap_fsync(int file) {
  return faults.flushing || faults.failsNow() ? failWith(EIO) : __real_fsync(file);
}
int __wrap_close(int file) {
  const int result = __real_close(file);
  return faults.closing || faults.failsNow() ? failWith(EIO) : result;
}
int __wrap_rename(const char* from, const char* to) {
  return faults.replacing || faults.failsNow() ? failWith(EBUSY) : __real_rename(from, to);
}
int __wrap_renameat2(int folder, const char* from, int otherFolder, const char* to,
                     unsigned flags) {
  if (lacking.refusal) return failWith(EINVAL);
  return __real_renameat2(folder, from, otherFolder, to, flags);
}
int __wrap_link(const char* from, const char* to) {
  return lacking.links ? failWith(EPERM) : __real_link(from, to);
}
int __wrap_unlink(const char* path) {
  return std::exchange(lacking.removal, false) ? failWith(EIO) : __real_unlink(path);
}
int __wrap_fstat(int file, struct stat* status) {
  if (const auto happens = std::exchange(brennet::test::beforeStatus, nullptr)) happens();
  return faults.failsNow() ? failWith(EIO) : __real_fstat(file, status);
}
int __wrap_fchmod(int file, mode_t mode) {
  return faults.failsNow() ? failWith(EPERM) : __real_fchmod(file, mode);
}
ssize_t __wrap_lgetxattr(const char* path, const char* name, void* value, size_t size) {
  if (attributeError != 0) return failWith(attributeError);
  return __real_lgetxattr(path, name, value, size);
}
int __wrap_fremovexattr(int file, const char* name) {
  return attributeError != 0 ? failWith(attributeError) : __real_fremovexattr(file, name);
}

}  // extern "C"
