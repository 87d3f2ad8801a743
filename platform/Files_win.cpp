#include "platform/Files.h"

#include <windows.h>
// shlwapi.h needs windows.h first.
#include <shlwapi.h>

#include <algorithm>
#include <string>

#include "platform/FileCalls_win.h"
#include "platform/Leftovers.h"
#include "platform/Replacement_win.h"
#include "platform/TemporaryNames.h"

namespace brennet::platform {
namespace {

constexpr int kTemporaryNames = 100;

// Writes, flushes and closes; the first failure counts.
std::error_code finish(OpenFile& file, std::string_view bytes) {
  if (const std::error_code error = writeAll(file.get(), bytes)) return error;
  if (FlushFileBuffers(file.get()) == FALSE) return lastError();
  return file.closeNow();
}

enum class Outcome { Replaced, Failed, NotReplaceable };

struct Replacement {
  Outcome outcome;
  std::error_code error;
};

// Fills the open temporary file and gives it the place of the other; leaves no temporary file.
Replacement replaceThrough(const ReplacementNames& names, OpenFile& file, bool isThere,
                           std::string_view bytes) {
  Replacement result{Outcome::Replaced, finish(file, bytes)};
  if (result.error) {
    result.outcome = Outcome::Failed;
  } else if (const SystemError error = takePlace(names, isThere); error != 0) {
    // Where the old content has no other place than the backup, nothing is written in place, so
    // that nobody takes that for the file and removes the backup.
    const bool isAway = isMovedAway(names);
    result = {isAway ? Outcome::Failed : Outcome::NotReplaceable, errorOf(error)};
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

// Whether a file can be written at `path`, and what is there.
struct Target {
  SystemError error;  // it cannot be written; 0: it can
  bool isThere = false;
  bool isLink = false;
};

// Whether the file itself is only a name for another. Other files than links have reparse points,
// too: deduplicated ones, and those that are kept elsewhere.
bool isSymbolicLink(const std::wstring& path, DWORD attributes) {
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return false;
  WIN32_FIND_DATAW data{};
  HANDLE const search = FindFirstFileW(path.c_str(), &data);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  return data.dwReserved0 == IO_REPARSE_TAG_SYMLINK;
}

Target inspect(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  const bool isKnown = attributes != INVALID_FILE_ATTRIBUTES;
  // These do not pass; waiting for them would only hold up the host.
  constexpr DWORD kForbidden = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
  if (isKnown && (attributes & kForbidden) != 0) return {ERROR_ACCESS_DENIED};
  const SystemError error = retried([&] {
    const OpenFile file(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
    if (!file.isOpen()) return false;
    if (GetFileType(file.get()) == FILE_TYPE_DISK) return true;
    SetLastError(ERROR_INVALID_HANDLE);
    return false;
  });
  if (error != 0 && error != ERROR_FILE_NOT_FOUND) return {error};
  return {0, error == 0, isKnown && isSymbolicLink(path, attributes)};
}

// The content before it is written over. A file that may be written but not read has to do without.
std::error_code readOld(const std::wstring& path, std::string& old) {
  const std::error_code error = readFile(path, old);
  return error == errorOf(ERROR_ACCESS_DENIED) ? std::error_code() : error;
}

// For files that cannot be replaced. The old content is kept at hand and written back if the new
// one cannot be written.
std::error_code writeInPlace(const std::wstring& path, std::string_view bytes, bool isLink) {
  bool isThere = exists(path);
  std::string old;
  if (isThere) {
    const std::error_code error = readOld(path, old);
    // A link to nothing: the name is there, the file is not.
    isThere = !isLink || error != errorOf(ERROR_FILE_NOT_FOUND);
    if (isThere && error) return error;
  }
  const DWORD creation = isThere ? OPEN_EXISTING : isLink ? OPEN_ALWAYS : CREATE_NEW;
  const DWORD access = isThere ? GENERIC_WRITE : GENERIC_WRITE | DELETE;
  OpenFile file;
  const SystemError failure =
      retried([&] { return file.open(path, access, FILE_SHARE_READ, creation); });
  if (failure != 0) return errorOf(failure);
  const std::error_code error = overwrite(file.get(), bytes, old.size());
  if (!error) return file.closeNow();
  if (isThere) {
    static_cast<void>(overwrite(file.get(), old, bytes.size()));
  } else {
    static_cast<void>(file.removeOnClose());
  }
  return error;
}

}  // namespace

std::error_code readFile(const Path& path, std::string& bytes) {
  bytes.clear();
  constexpr DWORD kSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  if (const SystemError error = awaitReplacement(path.native()); error != 0) return errorOf(error);
  OpenFile file;
  const SystemError error = retried(
      [&] { return file.open(path.native(), GENERIC_READ, kSharing, OPEN_EXISTING); },
      [&](SystemError code) { return isHeld(code) || isBeingReplaced(path.native(), code); });
  if (error != 0) return errorOf(error);
  if (GetFileType(file.get()) != FILE_TYPE_DISK) return errorOf(ERROR_INVALID_HANDLE);
  const std::error_code failure = readAll(file.get(), bytes);
  if (failure) bytes.clear();
  return failure;
}

std::error_code replaceFile(const Path& name, std::string_view bytes) {
  const std::wstring& path = name.native();
  if (const SystemError error = awaitReplacement(path); error != 0) return errorOf(error);
  const Target target = inspect(path);
  if (target.error != 0) return errorOf(target.error);
  removeLeftovers(name);

  ReplacementNames names{path, backupName(path), {}};
  for (int number = 0; number < kTemporaryNames && !target.isLink; ++number) {
    names.temporary = temporaryName(name, GetCurrentProcessId(), number).native();
    OpenFile file(names.temporary, GENERIC_WRITE, 0, CREATE_NEW);
    if (file.isOpen()) {
      const Replacement result = replaceThrough(names, file, target.isThere, bytes);
      if (result.outcome != Outcome::NotReplaceable) return result.error;
      break;
    }
    // Access is denied to a name, too, whose file somebody has open who removed it.
    const SystemError error = lastCode();
    if (error != ERROR_FILE_EXISTS && error != ERROR_ACCESS_DENIED) break;
  }
  return writeInPlace(path, bytes, target.isLink);
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
