#include <windows.h>
// shlwapi.h needs windows.h first.
#include <shlwapi.h>

#include <algorithm>
#include <string>

#include "platform/Files.h"

namespace brennet::platform {
namespace {

constexpr DWORD kLargestPiece = 1U << 30U;
constexpr int kTemporaryNames = 100;

// Virus scanners and indexers hold a new file for a moment; the target may be held as well.
constexpr int kTries = 10;
constexpr DWORD kPause = 20;  // milliseconds

std::error_code errorOf(DWORD code) {
  return {static_cast<int>(code), std::system_category()};
}
std::error_code lastError() {
  return errorOf(GetLastError());
}

class OpenFile {
 public:
  OpenFile(const std::wstring& name, DWORD access, DWORD sharing, DWORD creation)
      : handle_(CreateFileW(name.c_str(), access, sharing, nullptr, creation, FILE_ATTRIBUTE_NORMAL,
                            nullptr)) {}
  ~OpenFile() { static_cast<void>(closeNow()); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  [[nodiscard]] bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  [[nodiscard]] HANDLE get() const { return handle_; }

  std::error_code closeNow() {
    if (!isOpen()) return {};
    const BOOL closed = CloseHandle(handle_);
    handle_ = INVALID_HANDLE_VALUE;
    return closed != FALSE ? std::error_code() : lastError();
  }

 private:
  HANDLE handle_;
};

std::error_code writeAll(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto piece = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kLargestPiece));
    DWORD written = 0;
    if (WriteFile(file, bytes.data(), piece, &written, nullptr) == FALSE) return lastError();
    if (written == 0) return errorOf(ERROR_DISK_FULL);
    bytes.remove_prefix(written);
  }
  return {};
}

// Writes, flushes and closes; the first failure counts.
std::error_code finish(OpenFile& file, std::string_view bytes) {
  if (const std::error_code error = writeAll(file.get(), bytes)) return error;
  if (FlushFileBuffers(file.get()) == FALSE) return lastError();
  return file.closeNow();
}

bool mayPass(DWORD error) {
  return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION ||
         error == ERROR_LOCK_VIOLATION;
}

// Calls `operation` until it succeeds or fails for good; 0 or the error.
template <class Operation>
DWORD retried(Operation operation) {
  DWORD error = 0;
  for (int i = 0; i < kTries; ++i) {
    if (operation() != FALSE) return 0;
    error = GetLastError();
    if (!mayPass(error)) return error;
    Sleep(kPause);
  }
  return error;
}

DWORD moveTo(const std::wstring& from, const std::wstring& to) {
  return retried([&] { return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH); });
}

// Puts `temporary` in the place of `path`, which is there. ReplaceFileW keeps the attributes and
// rights of the old file. Where it fails half-way, one of the two names is gone for the moment:
// what is left is put right, so that `path` is the old or the new file in the end.
DWORD replaceExisting(const std::wstring& temporary, const std::wstring& path,
                      const std::wstring& backup) {
  DWORD error = retried([&] {
    return ReplaceFileW(path.c_str(), temporary.c_str(), backup.c_str(),
                        REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr);
  });
  switch (error) {
    case 0:
      break;
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT_2:
      // The old file has the backup's name, the new one its temporary name.
      error = moveTo(temporary, path);
      if (error != 0) moveTo(backup, path);
      break;
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT:
    case ERROR_UNABLE_TO_REMOVE_REPLACED:
    default:
      break;  // both files have the names they had
  }
  if (PathFileExistsW(path.c_str()) != FALSE) DeleteFileW(backup.c_str());
  return error;
}

std::error_code writeThrough(const std::wstring& temporary, const std::wstring& backup,
                             OpenFile& file, const std::wstring& path, bool exists,
                             std::string_view bytes) {
  std::error_code error = finish(file, bytes);
  if (!error) {
    const DWORD code = exists ? replaceExisting(temporary, path, backup) : moveTo(temporary, path);
    if (code != 0) error = errorOf(code);
  }
  if (error) {
    static_cast<void>(file.closeNow());
    DeleteFileW(temporary.c_str());
  }
  return error;
}

std::error_code overwrite(const std::wstring& path, std::string_view bytes) {
  OpenFile file(path, GENERIC_WRITE, 0, CREATE_ALWAYS);
  return file.isOpen() ? finish(file, bytes) : lastError();
}

std::error_code writeInPlace(const std::wstring& path, std::string_view bytes, bool exists) {
  std::string old;
  if (exists) {
    if (const std::error_code error = readFile(path, old)) return error;
  }
  const std::error_code error = overwrite(path, bytes);
  if (error) {
    if (exists) {
      static_cast<void>(overwrite(path, old));
    } else {
      DeleteFileW(path.c_str());
    }
  }
  return error;
}

// Whether a file can be written at `path`, and whether one is there.
struct Target {
  DWORD error = 0;
  bool exists = false;
};

Target inspect(const std::wstring& path) {
  Target target;
  const DWORD error = retried([&] {
    const OpenFile file(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
    return file.isOpen() ? TRUE : FALSE;
  });
  target.exists = error == 0;
  if (error != ERROR_FILE_NOT_FOUND) target.error = error;
  return target;
}

std::wstring besideName(const std::wstring& path, int number, const wchar_t* ending) {
  return path + L"." + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(number) +
         ending;
}

}  // namespace

std::error_code readFile(const Path& path, std::string& bytes) {
  bytes.clear();
  const OpenFile file(path.native(), GENERIC_READ,
                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
  if (!file.isOpen()) return lastError();
  if (GetFileType(file.get()) != FILE_TYPE_DISK) return errorOf(ERROR_INVALID_HANDLE);
  LARGE_INTEGER fileSize{};
  if (GetFileSizeEx(file.get(), &fileSize) == FALSE) return lastError();
  if (static_cast<std::uint64_t>(fileSize.QuadPart) > bytes.max_size()) {
    return errorOf(ERROR_FILE_TOO_LARGE);
  }
  bytes.resize(static_cast<std::size_t>(fileSize.QuadPart));
  std::size_t size = 0;
  while (size < bytes.size()) {
    const auto piece =
        static_cast<DWORD>(std::min<std::size_t>(bytes.size() - size, kLargestPiece));
    DWORD count = 0;
    if (ReadFile(file.get(), bytes.data() + size, piece, &count, nullptr) == FALSE) {
      const std::error_code error = lastError();
      bytes.clear();
      return error;
    }
    if (count == 0) break;
    size += count;
  }
  bytes.resize(size);
  return {};
}

std::error_code replaceFile(const Path& name, std::string_view bytes) {
  const std::wstring& path = name.native();
  const Target target = inspect(path);
  if (target.error != 0) return errorOf(target.error);
  for (int number = 0; number < kTemporaryNames; ++number) {
    const std::wstring temporary = besideName(path, number, L".tmp");
    OpenFile file(temporary, GENERIC_WRITE, 0, CREATE_NEW);
    if (file.isOpen()) {
      const std::wstring backup = besideName(path, number, L".old");
      return writeThrough(temporary, backup, file, path, target.exists, bytes);
    }
    if (GetLastError() != ERROR_FILE_EXISTS) break;
  }
  return writeInPlace(path, bytes, target.exists);
}

bool folderExists(const Path& path) {
  return PathIsDirectoryW(path.c_str()) != FALSE;
}

bool createFolder(const Path& path) {
  return CreateDirectoryW(path.c_str(), nullptr) != FALSE;
}

}  // namespace brennet::platform
