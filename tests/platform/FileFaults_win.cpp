#include "tests/platform/FileFaults_win.h"

// shlwapi.h needs windows.h first.
#include <shlwapi.h>

#include <string>
#include <utility>

#include "tests/support/StandBefore_win.h"

namespace brennet::test {

FileFaults faults;
HalfwayFaults halfwayFaults;
PassingFaults passingFaults;
Interruptions interruptions;
DWORD reparseTag = 0;
bool hasFileNumbers = true;
int replacedFiles = 0;
DWORD moveFlags = ~0U;
const int kDeviceError = ERROR_IO_DEVICE;

}  // namespace brennet::test

namespace {

using brennet::test::faults;
using brennet::test::halfwayFaults;
using brennet::test::hasFileNumbers;
using brennet::test::interruptions;
using brennet::test::moveFlags;
using brennet::test::passingFaults;
using brennet::test::reparseTag;
using brennet::test::replacedFiles;
using brennet::test::systems;

BOOL failWith(DWORD error) {
  SetLastError(error);
  return FALSE;
}

// Whether a call fails, as one of the `left` calls that still do.
bool failsInPassing(int& left) {
  if (left == 0) return false;
  --left;
  SetLastError(passingFaults.error);
  return true;
}

void interrupt(std::function<void()>& action) {
  if (action) std::exchange(action, nullptr)();
}

HANDLE WINAPI createFile(LPCWSTR name, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security,
                         DWORD creation, DWORD flags, HANDLE like) {
  static auto* const real = systems<decltype(CreateFileW)>("CreateFileW");
  const bool isNew = creation == CREATE_NEW;
  if (!isNew) interrupt(interruptions.beforeOpening);
  if (!isNew && failsInPassing(passingFaults.opening)) return INVALID_HANDLE_VALUE;
  if (!isNew) passingFaults.isAboutToGo = false;
  if ((!isNew || !faults.newFiles) && !faults.failsNow()) {
    return real(name, access, sharing, security, creation, flags, like);
  }
  SetLastError(isNew ? ERROR_ACCESS_DENIED : ERROR_IO_DEVICE);
  return INVALID_HANDLE_VALUE;
}

// A full disk takes part of a write before it refuses the rest.
BOOL WINAPI writeFile(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written, OVERLAPPED* where) {
  static auto* const real = systems<decltype(WriteFile)>("WriteFile");
  if (!faults.diskFull && !faults.failsNow()) return real(file, bytes, size, written, where);
  if (size == 1) return failWith(ERROR_DISK_FULL);
  faults.callsUntilFailure = 0;
  return real(file, bytes, size / 2, written, where);
}

BOOL WINAPI flushFile(HANDLE file) {
  static auto* const real = systems<decltype(FlushFileBuffers)>("FlushFileBuffers");
  return faults.flushing || faults.failsNow() ? failWith(ERROR_IO_DEVICE) : real(file);
}

// Whether the file would become longer if it ended at its current position.
bool growsHere(HANDLE file) {
  static auto* const sizeOf = systems<decltype(GetFileSizeEx)>("GetFileSizeEx");
  LARGE_INTEGER here{};
  LARGE_INTEGER size{};
  SetFilePointerEx(file, LARGE_INTEGER{}, &here, FILE_CURRENT);
  sizeOf(file, &size);
  return here.QuadPart > size.QuadPart;
}

BOOL WINAPI setEnd(HANDLE file) {
  static auto* const real = systems<decltype(SetEndOfFile)>("SetEndOfFile");
  const bool fails = (faults.diskFull && growsHere(file)) || faults.failsNow();
  return fails ? failWith(ERROR_DISK_FULL) : real(file);
}

BOOL WINAPI factsOfFile(HANDLE file, BY_HANDLE_FILE_INFORMATION* facts) {
  static auto* const real =
      systems<decltype(GetFileInformationByHandle)>("GetFileInformationByHandle");
  if (faults.failsNow()) return failWith(ERROR_IO_DEVICE);
  const BOOL isDone = real(file, facts);
  if (reparseTag != 0) facts->dwFileAttributes |= FILE_ATTRIBUTE_REPARSE_POINT;
  if (!hasFileNumbers) facts->nFileIndexHigh = facts->nFileIndexLow = 0;
  interrupt(interruptions.afterSizing);
  return isDone;
}

// A failing device reads a part first.
BOOL WINAPI readBytes(HANDLE file, LPVOID bytes, DWORD size, LPDWORD read, OVERLAPPED* where) {
  static auto* const real = systems<decltype(ReadFile)>("ReadFile");
  if (failsInPassing(passingFaults.reading)) return FALSE;
  if (!faults.failsNow()) return real(file, bytes, size, read, where);
  real(file, bytes, size / 2, read, where);
  return failWith(ERROR_IO_DEVICE);
}

BOOL WINAPI closeHandle(HANDLE file) {
  static auto* const real = systems<decltype(CloseHandle)>("CloseHandle");
  const BOOL closed = real(file);
  return faults.closing || faults.failsNow() ? failWith(ERROR_IO_DEVICE) : closed;
}

BOOL WINAPI moveFile(LPCWSTR from, LPCWSTR to, DWORD flags) {
  static auto* const real = systems<decltype(MoveFileExW)>("MoveFileExW");
  moveFlags &= flags;
  interrupt(interruptions.beforeMoving);
  if (failsInPassing(passingFaults.moving)) return FALSE;
  const bool isNew = std::wstring(from).ends_with(L".tmp");
  if (halfwayFaults.moving || (halfwayFaults.movingTheNew && isNew) || faults.failsNow()) {
    return failWith(ERROR_INVALID_NAME);
  }
  return real(from, to, flags);
}

BOOL WINAPI replaceExistingFile(LPCWSTR replaced, LPCWSTR replacement, LPCWSTR backup, DWORD flags,
                                LPVOID exclude, LPVOID reserved) {
  static auto* const real = systems<decltype(ReplaceFileW)>("ReplaceFileW");
  static auto* const move = systems<decltype(MoveFileExW)>("MoveFileExW");
  interrupt(interruptions.beforeReplacing);
  if (failsInPassing(passingFaults.replacing)) return FALSE;
  const DWORD error = halfwayFaults.replacing;
  if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2) move(replaced, backup, 0);
  if (error != 0) return failWith(error);
  if (faults.replacing || faults.failsNow()) return failWith(ERROR_NOT_SUPPORTED);
  const BOOL isDone = real(replaced, replacement, backup, flags, exclude, reserved);
  if (isDone != FALSE) ++replacedFiles;
  return isDone;
}

BOOL WINAPI deleteFile(LPCWSTR name) {
  static auto* const real = systems<decltype(DeleteFileW)>("DeleteFileW");
  return failsInPassing(passingFaults.deleting) ? FALSE : real(name);
}

BOOL WINAPI makeFolder(LPCWSTR name, SECURITY_ATTRIBUTES* security) {
  static auto* const real = systems<decltype(CreateDirectoryW)>("CreateDirectoryW");
  return failsInPassing(passingFaults.making) ? FALSE : real(name, security);
}

BOOL WINAPI openToken(HANDLE process, DWORD access, PHANDLE token) {
  static auto* const real = systems<decltype(OpenProcessToken)>("OpenProcessToken", L"advapi32");
  return failsInPassing(passingFaults.asking) ? FALSE : real(process, access, token);
}

DWORD WINAPI attributesOf(LPCWSTR name) {
  static auto* const real = systems<decltype(GetFileAttributesW)>("GetFileAttributesW");
  if (passingFaults.isAboutToGo) {
    SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_FILE_ATTRIBUTES;
  }
  const DWORD attributes = real(name);
  if (reparseTag == 0 || !std::wstring(name).ends_with(L"\\f")) return attributes;
  // A link to nothing has attributes too.
  return (attributes == INVALID_FILE_ATTRIBUTES ? 0 : attributes) | FILE_ATTRIBUTE_REPARSE_POINT;
}

BOOL WINAPI pathExists(LPCWSTR path) {
  return attributesOf(path) != INVALID_FILE_ATTRIBUTES ? TRUE : FALSE;
}

HANDLE WINAPI findFirst(LPCWSTR name, WIN32_FIND_DATAW* data) {
  static auto* const real = systems<decltype(FindFirstFileW)>("FindFirstFileW");
  HANDLE const search = real(reparseTag == 0 ? name : L"*", data);
  if (reparseTag != 0) data->dwReserved0 = reparseTag;
  return search;
}

}  // namespace

STAND_BEFORE(CreateFileW, "CreateFileW@28", createFile);
STAND_BEFORE(WriteFile, "WriteFile@20", writeFile);
STAND_BEFORE(FlushFileBuffers, "FlushFileBuffers@4", flushFile);
STAND_BEFORE(SetEndOfFile, "SetEndOfFile@4", setEnd);
STAND_BEFORE(GetFileInformationByHandle, "GetFileInformationByHandle@8", factsOfFile);
STAND_BEFORE(ReadFile, "ReadFile@20", readBytes);
STAND_BEFORE(DeleteFileW, "DeleteFileW@4", deleteFile);
STAND_BEFORE(CreateDirectoryW, "CreateDirectoryW@8", makeFolder);
STAND_BEFORE(OpenProcessToken, "OpenProcessToken@12", openToken);
STAND_BEFORE(GetFileAttributesW, "GetFileAttributesW@4", attributesOf);
STAND_BEFORE(PathFileExistsW, "PathFileExistsW@4", pathExists);
STAND_BEFORE(FindFirstFileW, "FindFirstFileW@8", findFirst);
STAND_BEFORE(CloseHandle, "CloseHandle@4", closeHandle);
STAND_BEFORE(MoveFileExW, "MoveFileExW@12", moveFile);
STAND_BEFORE(ReplaceFileW, "ReplaceFileW@24", replaceExistingFile);
