#include "platform/FileCalls_win.h"

#include <windows.h>
// shlwapi.h needs windows.h first.
#include <shlwapi.h>

#include <algorithm>
#include <cstdint>

namespace brennet::platform {
namespace {

constexpr DWORD kLargestPiece = 1U << 30U;
constexpr DWORD kPause = 20;  // milliseconds

DWORD pieceOf(std::size_t size) {
  return static_cast<DWORD>(std::min<std::size_t>(size, kLargestPiece));
}

// Makes room for what the open file holds, and for one byte more: whether that comes tells the end
// of the file from a file that is still growing.
std::error_code makeRoom(HANDLE file, std::string& bytes) {
  LARGE_INTEGER size{};
  if (GetFileSizeEx(file, &size) == FALSE) return lastError();
  if (static_cast<std::uint64_t>(size.QuadPart) >= bytes.max_size()) {
    return errorOf(ERROR_FILE_TOO_LARGE);
  }
  bytes.resize(static_cast<std::size_t>(size.QuadPart) + 1);
  return {};
}

}  // namespace

void pause() {
  Sleep(kPause);
}

std::error_code errorOf(SystemError code) {
  return {static_cast<int>(code), std::system_category()};
}

SystemError lastCode() {
  return GetLastError();
}

std::error_code lastError() {
  return errorOf(lastCode());
}

bool isHeld(SystemError error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

bool mayPass(SystemError error) {
  return isHeld(error) || error == ERROR_ACCESS_DENIED;
}

bool OpenFile::open(const std::wstring& name, unsigned long access, unsigned long sharing,
                    unsigned long creation) {
  HANDLE const handle =
      CreateFileW(name.c_str(), access, sharing, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr);
  handle_ = handle == INVALID_HANDLE_VALUE ? nullptr : handle;
  return isOpen();
}

bool OpenFile::removeOnClose() {
  FILE_DISPOSITION_INFO info{TRUE};
  return SetFileInformationByHandle(handle_, FileDispositionInfo, &info, sizeof(info)) != FALSE;
}

std::error_code OpenFile::closeNow() {
  if (!isOpen()) return {};
  const BOOL closed = CloseHandle(handle_);
  handle_ = nullptr;
  return closed != FALSE ? std::error_code() : lastError();
}

std::error_code readAll(FileHandle file, std::string& bytes) {
  if (const std::error_code error = makeRoom(file, bytes)) return error;
  std::size_t size = 0;
  while (true) {
    DWORD count = 0;
    if (ReadFile(file, bytes.data() + size, pieceOf(bytes.size() - size), &count, nullptr) ==
        FALSE) {
      return lastError();
    }
    size += count;
    if (count == 0) break;
    if (size == bytes.size()) bytes.resize(size * 2);
  }
  bytes.resize(size);
  return {};
}

std::error_code writeAll(FileHandle file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD written = 0;
    if (WriteFile(file, bytes.data(), pieceOf(bytes.size()), &written, nullptr) == FALSE) {
      return lastError();
    }
    if (written == 0) return errorOf(ERROR_DISK_FULL);
    bytes.remove_prefix(written);
  }
  return {};
}

bool exists(const std::wstring& path) {
  return PathFileExistsW(path.c_str()) != FALSE;
}

bool isFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

SystemError moveTo(const std::wstring& from, const std::wstring& to) {
  return retried([&] { return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH); });
}

void removeFile(const std::wstring& path) {
  retried([&] { return DeleteFileW(path.c_str()); });
}

}  // namespace brennet::platform
