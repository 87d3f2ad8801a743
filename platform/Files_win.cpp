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
  OpenFile() = default;
  OpenFile(const std::wstring& name, DWORD access, DWORD sharing, DWORD creation) {
    open(name, access, sharing, creation);
  }
  ~OpenFile() { static_cast<void>(closeNow()); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  bool open(const std::wstring& name, DWORD access, DWORD sharing, DWORD creation) {
    handle_ = CreateFileW(name.c_str(), access, sharing, nullptr, creation, FILE_ATTRIBUTE_NORMAL,
                          nullptr);
    return isOpen();
  }

  [[nodiscard]] bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  [[nodiscard]] HANDLE get() const { return handle_; }

  std::error_code closeNow() {
    if (!isOpen()) return {};
    const BOOL closed = CloseHandle(handle_);
    handle_ = INVALID_HANDLE_VALUE;
    return closed != FALSE ? std::error_code() : lastError();
  }

 private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
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

// Somebody else has the file open just now.
bool isHeld(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

// A file that is about to be deleted or moved denies access too.
bool mayPass(DWORD error) {
  return isHeld(error) || error == ERROR_ACCESS_DENIED;
}

// Calls `operation` until it succeeds or fails for good; 0 or the error.
template <class Operation, class Condition = bool (*)(DWORD error)>
DWORD retried(Operation operation, Condition isWorthIt = mayPass) {
  DWORD error = 0;
  for (int i = 0; i < kTries; ++i) {
    if (operation() != FALSE) return 0;
    error = GetLastError();
    if (!isWorthIt(error)) return error;
    Sleep(kPause);
  }
  return error;
}

DWORD moveTo(const std::wstring& from, const std::wstring& to) {
  return retried([&] { return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH); });
}

void removeFile(const std::wstring& path) {
  retried([&] { return DeleteFileW(path.c_str()); });
}

bool exists(const std::wstring& path) {
  return PathFileExistsW(path.c_str()) != FALSE;
}

// The names beside a file under which its new and its old content stand while it is replaced. The
// old one's is always the same, so that whoever comes next finds it if this process ends half-way.
struct BesideNames {
  std::wstring temporary;
  std::wstring backup;
};

std::wstring backupName(const std::wstring& path) {
  return path + L".brennet-old";
}

BesideNames besideNames(const std::wstring& path, int number) {
  return {path + L"." + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(number) +
              L".tmp",
          backupName(path)};
}

// While ReplaceFileW works there is no file of that name for a moment, only its backup. Whether
// that is why a file was not found.
bool isBeingReplaced(const std::wstring& path, DWORD error) {
  return error == ERROR_FILE_NOT_FOUND && (exists(backupName(path)) || exists(path));
}

// Waits for whoever is replacing a file; if nobody is any more, the backup becomes the file again.
void awaitReplacement(const std::wstring& path) {
  const std::wstring backup = backupName(path);
  for (int i = 0; i < kTries; ++i) {
    if (exists(path) || !exists(backup)) return;
    Sleep(kPause);
  }
  MoveFileExW(backup.c_str(), path.c_str(), MOVEFILE_WRITE_THROUGH);
}

// Puts the temporary file in the place of `path`, which is there. ReplaceFileW keeps the
// attributes and rights of the old file. It can fail half-way; its documentation tells the three
// states in which it leaves the files then, and in the end `path` is the old or the new file.
DWORD replaceExisting(const BesideNames& names, const std::wstring& path) {
  DWORD error = retried([&] {
    return ReplaceFileW(path.c_str(), names.temporary.c_str(), names.backup.c_str(),
                        REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr);
  });
  switch (error) {
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT_2:
      // The old file has the backup's name, the new one its temporary name.
      error = moveTo(names.temporary, path);
      if (error != 0) moveTo(names.backup, path);
      break;
    case ERROR_UNABLE_TO_REMOVE_REPLACED:
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT:
    default:
      break;  // both files have the names they had
  }
  // The last copy of the old content is not thrown away.
  if (exists(path) && exists(names.backup)) removeFile(names.backup);
  return error;
}

// Gives the temporary file the place of `path`, which may come or go under way.
DWORD takePlace(const BesideNames& names, const std::wstring& path, bool isThere) {
  if (isThere) {
    const DWORD error = replaceExisting(names, path);
    return error == ERROR_FILE_NOT_FOUND ? moveTo(names.temporary, path) : error;
  }
  const DWORD error = moveTo(names.temporary, path);
  return error == ERROR_ALREADY_EXISTS ? replaceExisting(names, path) : error;
}

enum class Outcome { Replaced, Failed, NotReplaceable };

struct Replacement {
  Outcome outcome;
  std::error_code error;
};

// Fills the open temporary file and gives it the place of `path`; leaves no temporary file.
Replacement replaceThrough(const BesideNames& names, OpenFile& file, const std::wstring& path,
                           bool isThere, std::string_view bytes) {
  Replacement result{Outcome::Replaced, finish(file, bytes)};
  if (result.error) {
    result.outcome = Outcome::Failed;
  } else if (takePlace(names, path, isThere) != 0) {
    result.outcome = Outcome::NotReplaceable;
  }
  if (result.outcome != Outcome::Replaced) {
    static_cast<void>(file.closeNow());
    removeFile(names.temporary);
  }
  return result;
}

// Makes `size` bytes the length of an open file and stands at its start.
std::error_code resize(HANDLE file, std::size_t size) {
  LARGE_INTEGER end{};
  end.QuadPart = static_cast<LONGLONG>(size);
  if (SetFilePointerEx(file, end, nullptr, FILE_BEGIN) == FALSE) return lastError();
  if (SetEndOfFile(file) == FALSE) return lastError();
  return SetFilePointerEx(file, LARGE_INTEGER{}, nullptr, FILE_BEGIN) != FALSE ? std::error_code()
                                                                               : lastError();
}

// Writes `bytes` over `oldSize` bytes of content. A file that grows gets its room first, before a
// byte of the old content is touched; one that shrinks is cut last.
std::error_code overwrite(HANDLE file, std::string_view bytes, std::size_t oldSize) {
  std::error_code error = resize(file, std::max(bytes.size(), oldSize));
  if (!error) error = writeAll(file, bytes);
  if (!error) error = resize(file, bytes.size());
  if (!error && FlushFileBuffers(file) == FALSE) error = lastError();
  return error;
}

// For files that cannot be replaced. The old content is kept at hand and written back if the new
// one cannot be written.
std::error_code writeInPlace(const std::wstring& path, std::string_view bytes, bool isThere) {
  std::string old;
  if (isThere) {
    const std::error_code error = readFile(path, old);
    // A file that may be written but not read has to do without.
    if (error && error != errorOf(ERROR_ACCESS_DENIED)) return error;
  }
  OpenFile file(path, GENERIC_WRITE, FILE_SHARE_READ, isThere ? OPEN_EXISTING : CREATE_NEW);
  if (!file.isOpen()) return lastError();
  const std::error_code error = overwrite(file.get(), bytes, old.size());
  if (!error) return file.closeNow();
  if (isThere) {
    static_cast<void>(overwrite(file.get(), old, bytes.size()));
  } else {
    static_cast<void>(file.closeNow());
    removeFile(path);
  }
  return error;
}

// Whether a file can be written at `path`, and what is there.
struct Target {
  DWORD error;  // it cannot be written; 0: it can
  bool isThere = false;
  bool isLink = false;
};

Target inspect(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  const bool isKnown = attributes != INVALID_FILE_ATTRIBUTES;
  // These do not pass; waiting for them would only hold up the host.
  constexpr DWORD kForbidden = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
  if (isKnown && (attributes & kForbidden) != 0) return {ERROR_ACCESS_DENIED};
  const DWORD error = retried([&] {
    const OpenFile file(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
    if (!file.isOpen()) return FALSE;
    if (GetFileType(file.get()) == FILE_TYPE_DISK) return TRUE;
    SetLastError(ERROR_INVALID_HANDLE);
    return FALSE;
  });
  if (error == ERROR_FILE_NOT_FOUND) return {0};
  if (error != 0) return {error};
  return {0, true, isKnown && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0};
}

}  // namespace

std::error_code readFile(const Path& path, std::string& bytes) {
  bytes.clear();
  constexpr DWORD kSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  awaitReplacement(path.native());
  OpenFile file;
  const DWORD error = retried(
      [&] {
        return file.open(path.native(), GENERIC_READ, kSharing, OPEN_EXISTING) ? TRUE : FALSE;
      },
      [&](DWORD code) { return isHeld(code) || isBeingReplaced(path.native(), code); });
  if (error != 0) return errorOf(error);
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
      const std::error_code failure = lastError();
      bytes.clear();
      return failure;
    }
    if (count == 0) break;
    size += count;
  }
  bytes.resize(size);
  return {};
}

std::error_code replaceFile(const Path& name, std::string_view bytes) {
  const std::wstring& path = name.native();
  awaitReplacement(path);
  const Target target = inspect(path);
  if (target.error != 0) return errorOf(target.error);

  for (int number = 0; number < kTemporaryNames && !target.isLink; ++number) {
    const BesideNames names = besideNames(path, number);
    OpenFile file(names.temporary, GENERIC_WRITE, 0, CREATE_NEW);
    if (file.isOpen()) {
      const Replacement result = replaceThrough(names, file, path, target.isThere, bytes);
      if (result.outcome != Outcome::NotReplaceable) return result.error;
      break;
    }
    if (GetLastError() != ERROR_FILE_EXISTS) break;
  }
  // A replacement that failed half-way may have left nothing there but a backup beside it.
  return writeInPlace(path, bytes, exists(path));
}

bool pathExists(const Path& path) {
  return exists(path.native());
}

bool folderExists(const Path& path) {
  return PathIsDirectoryW(path.c_str()) != FALSE;
}

bool createFolder(const Path& path) {
  return CreateDirectoryW(path.c_str(), nullptr) != FALSE;
}

}  // namespace brennet::platform
