#pragma once

#include <windows.h>

#include "platform/Paths.h"

namespace brennet::platform {

// A file or folder that is opened only to see what it is, which no program that has it open can
// refuse. A link itself is opened, not what it leads to, and the handle stays with it whatever
// becomes of the name.
struct OpenForFacts {
  explicit OpenForFacts(const Path& path, DWORD more = 0)
      : handle(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES | more,
                           FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                           OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT,
                           nullptr)) {
    const bool isOpen =
        handle != INVALID_HANDLE_VALUE && GetFileInformationByHandle(handle, &info) != FALSE;
    if (!isOpen) error = GetLastError();
  }
  ~OpenForFacts() {
    if (handle != INVALID_HANDLE_VALUE) CloseHandle(handle);
  }
  OpenForFacts(const OpenForFacts&) = delete;
  OpenForFacts& operator=(const OpenForFacts&) = delete;

  HANDLE handle;
  BY_HANDLE_FILE_INFORMATION info{};
  DWORD error = ERROR_SUCCESS;  // why `info` says nothing
};

}  // namespace brennet::platform
