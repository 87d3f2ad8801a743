#include "tests/faults/FailingCalls_posix.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>

namespace brennet::test {

FailingCall failingCall;

}  // namespace brennet::test

namespace {

using brennet::test::failingCall;
using Kind = brennet::test::FailingCall::Kind;

template <class Function>
Function* systems(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

void endProcess() {
  raise(SIGKILL);
}

// Whether the next call is the faulty one; ends the process if it is to end before it.
bool isFaulty() {
  if (failingCall.number < 0) return false;
  const int call = failingCall.calls++;
  const bool isIt = call == failingCall.number ||
                    (call > failingCall.number && failingCall.kind == Kind::FailsForGood);
  if (isIt && failingCall.kind == Kind::EndsBefore) endProcess();
  return isIt;
}

// Makes the call, or does what is to happen instead; `part` is what a call does that ends in the
// middle.
template <class Call, class Part>
auto passed(Call call, Part part) -> decltype(call()) {
  if (!isFaulty()) return call();
  if (failingCall.kind == Kind::Fails || failingCall.kind == Kind::FailsForGood) {
    errno = failingCall.error;
    return -1;
  }
  if (failingCall.kind == Kind::EndsInside) {
    static_cast<void>(part());
  } else {
    static_cast<void>(call());
  }
  endProcess();
  return -1;
}

template <class Call>
auto passed(Call call) -> decltype(call()) {
  return passed(call, call);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  static auto* const real = systems<int(const char*, int, ...)>("open");
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return passed([&] { return real(path, flags, mode); });
}

ssize_t pread(int file, void* bytes, size_t size, off_t offset) {
  static auto* const real = systems<ssize_t(int, void*, size_t, off_t)>("pread");
  return passed([&] { return real(file, bytes, size, offset); });
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
  static auto* const real = systems<ssize_t(int, const void*, size_t, off_t)>("pwrite");
  return passed([&] { return real(file, bytes, size, offset); },
                [&] { return real(file, bytes, size / 2, offset); });
}

int ftruncate(int file, off_t size) noexcept {
  static auto* const real = systems<int(int, off_t)>("ftruncate");
  return passed([&] { return real(file, size); });
}

int fallocate(int file, int mode, off_t offset, off_t size) {
  static auto* const real = systems<int(int, int, off_t, off_t)>("fallocate");
  return passed([&] { return real(file, mode, offset, size); });
}

int fsync(int file) {
  static auto* const real = systems<int(int)>("fsync");
  return passed([&] { return real(file); });
}

// The file is closed even if the call is to fail.
int close(int file) {
  static auto* const real = systems<int(int)>("close");
  const bool closesFirst =
      failingCall.kind == Kind::Fails || failingCall.kind == Kind::FailsForGood;
  if (!closesFirst || failingCall.number < 0) return passed([&] { return real(file); });
  const int result = real(file);
  return passed([&] { return result; });
}

int rename(const char* from, const char* to) noexcept {
  static auto* const real = systems<int(const char*, const char*)>("rename");
  return passed([&] { return real(from, to); });
}

int renameat2(int folder, const char* from, int otherFolder, const char* to,
              unsigned flags) noexcept {
  static auto* const real = systems<int(int, const char*, int, const char*, unsigned)>("renameat2");
  return passed([&] { return real(folder, from, otherFolder, to, flags); });
}

int link(const char* from, const char* to) noexcept {
  static auto* const real = systems<int(const char*, const char*)>("link");
  return passed([&] { return real(from, to); });
}

int unlink(const char* path) noexcept {
  static auto* const real = systems<int(const char*)>("unlink");
  return passed([&] { return real(path); });
}

int mkdir(const char* path, mode_t mode) noexcept {
  static auto* const real = systems<int(const char*, mode_t)>("mkdir");
  return passed([&] { return real(path, mode); });
}

int rmdir(const char* path) noexcept {
  static auto* const real = systems<int(const char*)>("rmdir");
  return passed([&] { return real(path); });
}

int fstat(int file, struct stat* status) noexcept {
  static auto* const real = systems<int(int, struct stat*)>("fstat");
  return passed([&] { return real(file, status); });
}

int lstat(const char* path, struct stat* status) noexcept {
  static auto* const real = systems<int(const char*, struct stat*)>("lstat");
  return passed([&] { return real(path, status); });
}

int fchmod(int file, mode_t mode) noexcept {
  static auto* const real = systems<int(int, mode_t)>("fchmod");
  return passed([&] { return real(file, mode); });
}

}  // extern "C"
