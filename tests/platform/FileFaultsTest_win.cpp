// Every system call on the way to a new file fails once, one after the other, and ReplaceFileW
// fails in the three half-way states that its documentation names. Whatever fails, the disk holds
// the whole old or the whole new content and no temporary file.

#include <windows.h>
// gtest.h comes after windows.h, which would undo its macros.
#include <gtest/gtest.h>

#include <string>

#include "platform/Files.h"
#include "tests/support/TempFolder.h"

namespace {

// The number of calls until the one that fails; negative: none fails.
int callsUntilFailure = -1;

// What every call of these fails with; 0: it works.
DWORD newFilesFailWith = 0;
DWORD replacingFailsWith = 0;

// The temporary file, or no file at all, can be moved to where the replaced file was.
bool movingTheNewFileFails = false;
bool movingFails = false;

// What is written cannot be brought to the disk.
bool flushingFails = false;
bool closingFails = false;

bool failsNow() {
  if (callsUntilFailure < 0) return false;
  return callsUntilFailure-- == 0;
}

BOOL failWith(DWORD error) {
  SetLastError(error);
  return FALSE;
}

// The system's own function behind one that a test stands before.
template <class Function>
Function* systems(const char* name) {
  return reinterpret_cast<Function*>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), name)));
}

HANDLE WINAPI createFile(LPCWSTR name, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security,
                         DWORD creation, DWORD flags, HANDLE like) {
  static auto* const real = systems<decltype(CreateFileW)>("CreateFileW");
  DWORD error = creation == CREATE_NEW ? newFilesFailWith : 0;
  if (error == 0 && failsNow()) error = ERROR_DISK_FULL;
  if (error == 0) return real(name, access, sharing, security, creation, flags, like);
  SetLastError(error);
  return INVALID_HANDLE_VALUE;
}

// A full disk takes a part before it refuses the rest.
BOOL WINAPI writeFile(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written, OVERLAPPED* where) {
  static auto* const real = systems<decltype(WriteFile)>("WriteFile");
  if (!failsNow()) return real(file, bytes, size, written, where);
  if (size == 1) return failWith(ERROR_DISK_FULL);
  callsUntilFailure = 0;
  return real(file, bytes, size / 2, written, where);
}

BOOL WINAPI flushFile(HANDLE file) {
  static auto* const real = systems<decltype(FlushFileBuffers)>("FlushFileBuffers");
  return flushingFails || failsNow() ? failWith(ERROR_IO_DEVICE) : real(file);
}

BOOL WINAPI setEnd(HANDLE file) {
  static auto* const real = systems<decltype(SetEndOfFile)>("SetEndOfFile");
  return failsNow() ? failWith(ERROR_DISK_FULL) : real(file);
}

BOOL WINAPI closeHandle(HANDLE file) {
  static auto* const real = systems<decltype(CloseHandle)>("CloseHandle");
  const BOOL closed = real(file);
  return closingFails || failsNow() ? failWith(ERROR_IO_DEVICE) : closed;
}

BOOL WINAPI moveFile(LPCWSTR from, LPCWSTR to, DWORD flags) {
  static auto* const real = systems<decltype(MoveFileExW)>("MoveFileExW");
  const bool isNew = std::wstring(from).ends_with(L".tmp");
  if (movingFails || (movingTheNewFileFails && isNew) || failsNow())
    return failWith(ERROR_INVALID_NAME);
  return real(from, to, flags);
}

BOOL WINAPI replaceExistingFile(LPCWSTR replaced, LPCWSTR replacement, LPCWSTR backup, DWORD flags,
                                LPVOID exclude, LPVOID reserved) {
  static auto* const real = systems<decltype(ReplaceFileW)>("ReplaceFileW");
  static auto* const move = systems<decltype(MoveFileExW)>("MoveFileExW");
  if (replacingFailsWith == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2) move(replaced, backup, 0);
  if (replacingFailsWith != 0) return failWith(replacingFailsWith);
  if (failsNow()) return failWith(ERROR_UNABLE_TO_REMOVE_REPLACED);
  return real(replaced, replacement, backup, flags, exclude, reserved);
}

}  // namespace

// Calls of the system go through these pointers. The linker takes them from here before it looks
// into the import library.
#define STAND_BEFORE(function, symbol, ours)                                        \
  extern decltype(&function) const standBefore##function __asm__("__imp__" symbol); \
  decltype(&function) const standBefore##function __attribute__((used)) = &ours

STAND_BEFORE(CreateFileW, "CreateFileW@28", createFile);
STAND_BEFORE(WriteFile, "WriteFile@20", writeFile);
STAND_BEFORE(FlushFileBuffers, "FlushFileBuffers@4", flushFile);
STAND_BEFORE(SetEndOfFile, "SetEndOfFile@4", setEnd);
STAND_BEFORE(CloseHandle, "CloseHandle@4", closeHandle);
STAND_BEFORE(MoveFileExW, "MoveFileExW@12", moveFile);
STAND_BEFORE(ReplaceFileW, "ReplaceFileW@24", replaceExistingFile);

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

constexpr char kOld[] = "the old content";
constexpr char kNew[] = "the new content, which is longer";
constexpr char kShort[] = "short";
constexpr int kMoreCallsThanAnyWrite = 40;

class FileFaults : public testing::Test {
 protected:
  ~FileFaults() override {
    callsUntilFailure = -1;
    newFilesFailWith = 0;
    replacingFailsWith = 0;
    movingTheNewFileFails = false;
    movingFails = false;
    flushingFails = false;
    closingFails = false;
  }

  [[nodiscard]] Path path() const { return folder_ / "f"; }

  std::error_code replaceWithFailure(int failingCall, const char* bytes = kNew) {
    callsUntilFailure = failingCall;
    const std::error_code error = replaceFile(path(), bytes);
    callsUntilFailure = -1;
    return error;
  }

  TempFolder folder_;
};

TEST_F(FileFaults, LeaveTheWholeOldOrTheWholeNewContent) {
  int failures = 0;
  for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
    writeBytes(path(), kOld);
    const std::error_code error = replaceWithFailure(call);
    EXPECT_EQ(readBytes(path()), error ? kOld : kNew) << "failing call " << call;
    EXPECT_EQ(folder_.listing(), "f\n") << "failing call " << call;
    failures += error ? 1 : 0;
  }
  EXPECT_GE(failures, 3) << "a failing open, flush and close are all reported";
}

TEST_F(FileFaults, OfFlushingAndClosingAreReported) {
  for (bool* const fails : {&flushingFails, &closingFails}) {
    writeBytes(path(), kOld);
    *fails = true;
    const std::error_code error = replaceFile(path(), kNew);
    *fails = false;
    EXPECT_EQ(error.value(), ERROR_IO_DEVICE);
    EXPECT_EQ(readBytes(path()), kOld);
    EXPECT_EQ(folder_.listing(), "f\n");
  }
}

TEST_F(FileFaults, LeaveNothingWhereNothingWas) {
  for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
    std::filesystem::remove(path());
    const std::error_code error = replaceWithFailure(call);
    EXPECT_EQ(folder_.listing(), error ? "" : "f\n") << "failing call " << call;
    EXPECT_EQ(readBytes(path()), error ? "" : kNew) << "failing call " << call;
  }
}

TEST_F(FileFaults, LeaveTheOldContentOfAFileThatIsWrittenInPlace) {
  for (DWORD* const cause : {&newFilesFailWith, &replacingFailsWith}) {
    *cause = ERROR_PATH_NOT_FOUND;
    for (const char* const bytes : {kNew, kShort}) {
      int failures = 0;
      for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
        writeBytes(path(), kOld);
        const std::error_code error = replaceWithFailure(call, bytes);
        // A file whose closing fails has been written and flushed before.
        const std::string content = readBytes(path());
        EXPECT_TRUE(content == (error ? kOld : bytes) || content == bytes) << "call " << call;
        EXPECT_EQ(folder_.listing(), "f\n") << "failing call " << call;
        failures += error ? 1 : 0;
      }
      EXPECT_GE(failures, 4);
    }
    *cause = 0;
  }
}

TEST_F(FileFaults, OfAReplacementThatLeftBothNamesAreGotRoundInPlace) {
  for (const DWORD error : {ERROR_UNABLE_TO_REMOVE_REPLACED, ERROR_UNABLE_TO_MOVE_REPLACEMENT}) {
    writeBytes(path(), kOld);
    replacingFailsWith = error;
    EXPECT_FALSE(replaceFile(path(), kNew)) << error;
    EXPECT_EQ(readBytes(path()), kNew) << error;
    EXPECT_EQ(folder_.listing(), "f\n") << error;
  }
}

TEST_F(FileFaults, OfAReplacementThatTookTheOldNameAwayAreMadeGood) {
  writeBytes(path(), kOld);
  replacingFailsWith = ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
  EXPECT_FALSE(replaceFile(path(), kNew));
  EXPECT_EQ(readBytes(path()), kNew);
  EXPECT_EQ(folder_.listing(), "f\n");

  // Where the new file cannot be moved, the old one comes back and is written in place.
  movingTheNewFileFails = true;
  EXPECT_FALSE(replaceFile(path(), kShort));
  EXPECT_EQ(readBytes(path()), kShort);
  EXPECT_EQ(folder_.listing(), "f\n");
}

TEST_F(FileFaults, OfAReplacementThatCannotBeMadeGoodLeaveTheOldFileUnderItsBackupName) {
  writeBytes(path(), kOld);
  replacingFailsWith = ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
  movingFails = true;
  EXPECT_FALSE(replaceFile(path(), kNew));
  EXPECT_EQ(readBytes(path()), kNew);
  const std::string backup = "f." + std::to_string(GetCurrentProcessId()) + "-0.old";
  EXPECT_EQ(folder_.listing(), "f\n" + backup + "\n");
  EXPECT_EQ(readBytes(folder_ / backup), kOld);
}

TEST_F(FileFaults, LeaveNoHandleOpen) {
  writeBytes(path(), kOld);
  static_cast<void>(replaceWithFailure(0));  // what the system keeps for itself is there now
  DWORD before = 0;
  DWORD after = 0;
  GetProcessHandleCount(GetCurrentProcess(), &before);
  for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
    static_cast<void>(replaceWithFailure(call));
  }
  GetProcessHandleCount(GetCurrentProcess(), &after);
  EXPECT_EQ(after, before);
}

TEST_F(FileFaults, OfAReadGiveNoBytes) {
  writeBytes(path(), kOld);
  callsUntilFailure = 0;
  std::string bytes = "before";
  EXPECT_TRUE(readFile(path(), bytes));
  callsUntilFailure = -1;
  EXPECT_EQ(bytes, "");
}

}  // namespace
}  // namespace brennet::platform
