#include "platform/FileSystem.h"

#include <windows.h>
// shlwapi.h needs windows.h first.
#include <shlwapi.h>

#include <algorithm>
#include <bit>
#include <string>

#include "platform/FileErrors.h"
#include "platform/win/FileRights.h"
#include "platform/win/OpenForFacts.h"

namespace brennet::platform {
namespace {

constexpr DWORD kLargestPiece = 1U << 30U;
constexpr std::uint64_t kLockedByte = std::uint64_t{1} << 40U;  // far beyond the end of any file
constexpr DWORD kPause = 20;                                    // milliseconds
constexpr std::uint64_t kTicksPerSecond = 10'000'000;           // the unit of file times
constexpr std::uint64_t kSecondsBefore1970 = 11'644'473'600;    // since 1601, their start

Obstacle obstacleOf(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      return Obstacle::Missing;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return Obstacle::Exists;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return Obstacle::Held;
    case ERROR_ACCESS_DENIED:
      return Obstacle::Denied;
    default:
      return Obstacle::Other;
  }
}

// Whether the error says that no file or folder can have such a path.
bool canBeNone(DWORD error) {
  return error == ERROR_INVALID_NAME || error == ERROR_BAD_PATHNAME ||
         error == ERROR_FILENAME_EXCED_RANGE || error == ERROR_DIRECTORY;
}

FileError failure(DWORD error) {
  return {obstacleOf(error), {static_cast<int>(error), std::system_category()}};
}

// The result of a call that returns 0 where it fails, with the error in GetLastError.
FileError ended(BOOL result) {
  return result != FALSE ? FileError() : failure(GetLastError());
}

// The same for calls that are also denied access while a file is about to go or to be moved.
FileError endedOrHeld(BOOL result) {
  FileError error = ended(result);
  if (error.obstacle == Obstacle::Denied) error.obstacle = Obstacle::Held;
  return error;
}

DWORD pieceOf(std::size_t size) {
  return static_cast<DWORD>(std::min<std::size_t>(size, kLargestPiece));
}

OVERLAPPED at(std::uint64_t offset) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(offset);
  place.OffsetHigh = static_cast<DWORD>(offset >> 32U);
  return place;
}

HANDLE handleOf(FileHandle file) {
  return std::bit_cast<HANDLE>(file);
}

std::uint64_t joined(DWORD high, DWORD low) {
  return (std::uint64_t{high} << 32U) | low;
}

std::uint64_t ticksNow() {
  FILETIME now{};
  GetSystemTimeAsFileTime(&now);
  return joined(now.dwHighDateTime, now.dwLowDateTime);
}

std::uint64_t ageOf(const FILETIME& written) {
  const std::uint64_t then = joined(written.dwHighDateTime, written.dwLowDateTime);
  const std::uint64_t now = ticksNow();
  return now > then ? (now - then) / kTicksPerSecond : 0;
}

// Whether the name itself is a symbolic link. Files that are not links can have reparse points too:
// deduplicated ones, and those that are stored elsewhere.
bool isSymbolicLink(const std::wstring& path, DWORD attributes) {
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return false;
  WIN32_FIND_DATAW data{};
  HANDLE const search = FindFirstFileW(path.c_str(), &data);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  return data.dwReserved0 == IO_REPARSE_TAG_SYMLINK;
}

// How CreateFileW is to open a file.
struct Opening {
  DWORD access;
  DWORD sharing;
  DWORD creation;
};

Opening openingFor(OpenFor purpose) {
  constexpr DWORD kAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  switch (purpose) {
    case OpenFor::Reading:
      return {GENERIC_READ, kAll, OPEN_EXISTING};
    // As the C runtime opens it: another program may have it open for writing, if that program
    // shares it.
    case OpenFor::Writing:
      return {GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING};
    case OpenFor::Creating:
      return {GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_ALWAYS};
    case OpenFor::New:
      return {GENERIC_WRITE, 0, CREATE_NEW};
    case OpenFor::NewAndPrivate:
      return {GENERIC_WRITE | WRITE_DAC, 0, CREATE_NEW};
    case OpenFor::Keeping:
      return {GENERIC_READ | GENERIC_WRITE | DELETE, FILE_SHARE_READ, OPEN_ALWAYS};
  }
  return {};
}

// Folders and read-only files deny access for good.
bool isForbidden(const Path& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  constexpr DWORD kForbidden = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & kForbidden) != 0;
}

// A file that is about to go (its deletion is pending) does not even give its attributes.
bool isAboutToGo(const Path& path) {
  return GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES &&
         obstacleOf(GetLastError()) == Obstacle::Denied;
}

// Whether the call that has just failed was denied access to `path`, although nothing is there.
// GetLastError() stays as it was.
bool isDeniedToNothing(const Path& path) {
  const DWORD error = GetLastError();
  if (obstacleOf(error) != Obstacle::Denied) return false;
  const bool isThere = GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES ||
                       obstacleOf(GetLastError()) != Obstacle::Missing;
  SetLastError(error);
  return !isThere;
}

// Access is also denied to a file that is about to go: until it has gone, no new file can have its
// name (Exists), and others have to wait (Held). Any other denial is for good: by the access list
// of the file, or by a folder that takes no new file.
FileError openingError(const Path& path, OpenFor purpose) {
  FileError error = failure(GetLastError());
  if (error.obstacle != Obstacle::Denied || purpose == OpenFor::Reading) return error;
  if (!isAboutToGo(path)) return error;
  const bool isNew = purpose == OpenFor::New || purpose == OpenFor::NewAndPrivate;
  error.obstacle = isNew ? Obstacle::Exists : Obstacle::Held;
  return error;
}

class WindowsFileSystem final : public FileSystem {
 public:
  FileError open(const Path& path, OpenFor purpose, FileHandle& file, FileFacts& facts) override {
    // Checked first: the system may open such a file for an administrator all the same.
    if (purpose == OpenFor::Writing && isForbidden(path)) return failure(ERROR_ACCESS_DENIED);
    const bool isPrivate = purpose == OpenFor::NewAndPrivate || purpose == OpenFor::Keeping;
    const Opening opening = openingFor(purpose);
    // CREATE_NEW refuses the name of a link anyway.
    const bool followsLinks = purpose != OpenFor::Keeping;
    const auto create = [&] {
      return CreateFileW(path.c_str(), opening.access, opening.sharing,
                         isPrivate ? ownAttributes() : nullptr, opening.creation,
                         FILE_ATTRIBUTE_NORMAL | (followsLinks ? 0 : FILE_FLAG_OPEN_REPARSE_POINT),
                         nullptr);
    };
    HANDLE opened = create();
    // What was about to go may have gone by now.
    if (opened == INVALID_HANDLE_VALUE && opening.creation != OPEN_EXISTING &&
        isDeniedToNothing(path)) {
      opened = create();
    }
    if (opened == INVALID_HANDLE_VALUE) return openingError(path, purpose);
    const bool isNew = opening.creation == CREATE_NEW ||
                       (opening.creation == OPEN_ALWAYS && GetLastError() != ERROR_ALREADY_EXISTS);
    facts = {FileFacts::Kind::File};
    const FileError error = isNew ? FileError() : factsOf(opened, facts, followsLinks);
    if (error) {
      CloseHandle(opened);
    } else {
      file = reinterpret_cast<FileHandle>(opened);
    }
    return error;
  }

  FileError read(FileHandle file, std::uint64_t offset, char* bytes, std::size_t size,
                 std::size_t& count) override {
    OVERLAPPED place = at(offset);
    DWORD result = 0;
    if (ReadFile(handleOf(file), bytes, pieceOf(size), &result, &place) == FALSE) {
      const DWORD error = GetLastError();
      if (error != ERROR_HANDLE_EOF) return failure(error);
    }
    count = result;
    return {};
  }

  FileError write(FileHandle file, std::uint64_t offset, std::string_view bytes,
                  std::size_t& count) override {
    OVERLAPPED place = at(offset);
    DWORD result = 0;
    if (WriteFile(handleOf(file), bytes.data(), pieceOf(bytes.size()), &result, &place) == FALSE) {
      return failure(GetLastError());
    }
    count = result;
    return result != 0 ? FileError() : failure(ERROR_DISK_FULL);
  }

  FileError resize(FileHandle file, std::uint64_t size) override {
    LARGE_INTEGER end{};
    end.QuadPart = static_cast<LONGLONG>(size);
    const FileError error = ended(SetFilePointerEx(handleOf(file), end, nullptr, FILE_BEGIN));
    return error ? error : ended(SetEndOfFile(handleOf(file)));
  }

  FileError reserve(FileHandle file, std::uint64_t size) override {
    FILE_ALLOCATION_INFO room{};
    room.AllocationSize.QuadPart = static_cast<LONGLONG>(size);
    LARGE_INTEGER now{};
    if (GetFileSizeEx(handleOf(file), &now) == FALSE) return failure(GetLastError());
    // Less room than the file has would truncate it.
    if (room.AllocationSize.QuadPart <= now.QuadPart) return {};
    const FileError error =
        ended(SetFileInformationByHandle(handleOf(file), FileAllocationInfo, &room, sizeof(room)));
    return error.code.value() == ERROR_DISK_FULL ? error : FileError();
  }

  FileError flush(FileHandle file) override { return ended(FlushFileBuffers(handleOf(file))); }

  FileError lock(FileHandle file, Sharing sharing) override {
    OVERLAPPED place = at(kLockedByte);
    const DWORD alone = sharing == Sharing::Alone ? LOCKFILE_EXCLUSIVE_LOCK : 0;
    if (LockFileEx(handleOf(file), alone | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) != FALSE) {
      return {};
    }
    const DWORD error = GetLastError();
    const bool isLocked = error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING;
    return isLocked ? failure(ERROR_LOCK_VIOLATION) : FileError();
  }

  // A failed write may not show before this call.
  FileError close(FileHandle file) override { return ended(CloseHandle(handleOf(file))); }

  void copyRights(const Path& path, FileHandle file) override {
    copyFileRights(path, handleOf(file));
  }

  FileFacts look(const Path& path) override {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    FileFacts facts;
    if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) == FALSE) return facts;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return facts;
    facts.kind = kindOf(path, attributes);
    facts.size = joined(data.nFileSizeHigh, data.nFileSizeLow);
    facts.age = ageOf(data.ftLastWriteTime);
    return facts;
  }

  FileError move(const Path& from, const Path& to) override {
    return endedOrHeld(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH));
  }

  // ReplaceFileW keeps the rights, attributes and streams of the old file, as far as this process
  // may set them. It can fail half-way; its documentation says in which states it may leave the
  // files.
  FileError exchange(const Path& replacement, const Path& path, const Path& backup) override {
    FileError error = endedOrHeld(ReplaceFileW(path.c_str(), replacement.c_str(), backup.c_str(),
                                               REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr));
    switch (error.code.value()) {
      case ERROR_UNABLE_TO_MOVE_REPLACEMENT_2:
        error.obstacle = Obstacle::Halfway;
        break;
      // Both files have the names they had. Often the error when somebody has one of them open.
      case ERROR_UNABLE_TO_REMOVE_REPLACED:
      case ERROR_UNABLE_TO_MOVE_REPLACEMENT:
        error.obstacle = Obstacle::Held;
        break;
      default:
        break;
    }
    return error;
  }

  // Fails if the name could not be removed again, because another program lets nobody delete the
  // file, or if the name cannot be brought to the disk, for which the file itself has to be
  // flushed.
  FileError link(const Path& path, const Path& second) override {
    constexpr DWORD kAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE const file = CreateFileW(path.c_str(), DELETE | GENERIC_WRITE, kAll, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (file == INVALID_HANDLE_VALUE) return failure(GetLastError());
    FileError error = ended(CreateHardLinkW(second.c_str(), path.c_str(), nullptr));
    if (!error) {
      error = ended(FlushFileBuffers(file));
      if (error) DeleteFileW(second.c_str());
    }
    CloseHandle(file);
    return error;
  }

  // Both are open at the same time, because the number of a file may be reused once it is closed.
  // File systems without such numbers give 0 for all files.
  bool isSameFile(const Path& a, const Path& b) override {
    const OpenForFacts first(a);
    const OpenForFacts second(b);
    return first.error == ERROR_SUCCESS && second.error == ERROR_SUCCESS &&
           (first.info.nFileIndexHigh != 0 || first.info.nFileIndexLow != 0) &&
           first.info.dwVolumeSerialNumber == second.info.dwVolumeSerialNumber &&
           first.info.nFileIndexHigh == second.info.nFileIndexHigh &&
           first.info.nFileIndexLow == second.info.nFileIndexLow;
  }

  FileError remove(const Path& path) override { return endedOrHeld(DeleteFileW(path.c_str())); }

  FileError removeKept(FileHandle file, const Path& /*path*/) override {
    return ended(removeWhenClosed(handleOf(file)));
  }

  // While the backup is held open here, nobody can give its name to another file, so no replacement
  // can begin after the look at `path`.
  FileError removeBackup(const Path& backup, const Path& path) override {
    HANDLE const file = CreateFileW(backup.c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return endedOrHeld(FALSE);
    const bool isLast = look(path).kind != FileFacts::Kind::File;
    const FileError error = isLast ? FileError() : endedOrHeld(removeWhenClosed(file));
    CloseHandle(file);
    return error;
  }

  FileError createFolder(const Path& path) override {
    return ended(CreateDirectoryW(path.c_str(), nullptr));
  }

  FileError createPrivateFolder(const Path& path) override {
    const auto create = [&] { return CreateDirectoryW(path.c_str(), ownAttributes()); };
    BOOL isDone = create();
    // What was about to go may have gone by now.
    if (isDone == FALSE && isDeniedToNothing(path)) isDone = create();
    FileError error = ended(isDone);
    if (error.obstacle == Obstacle::Exists) return checkPrivateFolder(path);
    if (error.obstacle == Obstacle::Denied && isAboutToGo(path)) error.obstacle = Obstacle::Missing;
    return error;
  }

  FileError checkPrivateFolder(const Path& path) override {
    const auto isThere = [&] {
      return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
    };
    // Usually it does not exist, and this is the faster way to find out.
    const FileError unseen = isThere() ? FileError() : failure(GetLastError());
    if (unseen.obstacle == Obstacle::Missing) return unseen;
    const DWORD error = own_.check(path);
    if (error == ERROR_SUCCESS) return {};
    FileError failed = failure(error);
    // Access is also denied to what is about to go, or has gone by now.
    const bool isGoing = failed.obstacle == Obstacle::Denied && !isThere();
    if (isGoing || canBeNone(error)) failed.obstacle = Obstacle::Missing;
    return failed;
  }

  void removeFolder(const Path& path) override { RemoveDirectoryW(path.c_str()); }

  // Moves write through, and links are flushed.
  FileError flushFolder(const Path& /*path*/) override { return {}; }

  FileError list(const Path& folder, const std::function<void(const Path& name)>& visit) override {
    struct Search {
      ~Search() {
        if (handle != INVALID_HANDLE_VALUE) FindClose(handle);
      }
      HANDLE handle;
    };
    WIN32_FIND_DATAW data{};
    const Search search{FindFirstFileW((folder / L"*").c_str(), &data)};
    if (search.handle == INVALID_HANDLE_VALUE) return failure(GetLastError());
    do {
      visit(data.cFileName);
    } while (FindNextFileW(search.handle, &data) != FALSE);
    const DWORD error = GetLastError();
    return error == ERROR_NO_MORE_FILES ? FileError() : failure(error);
  }

  // The case of names does not count here.
  bool isSameName(std::wstring_view a, std::wstring_view b) override {
    return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(),
                                static_cast<int>(b.size()), TRUE) == CSTR_EQUAL;
  }

  Path resolved(const Path& path) override { return path; }

  Path identity(const Path& path) override {
    const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    const DWORD length = GetFullPathNameW(path.c_str(), size, full.data(), nullptr);
    if (length == 0 || length >= size) return {};
    full.resize(length);
    CharUpperBuffW(full.data(), length);
    return full;
  }

  Path privateFolder() override {
    wchar_t folder[MAX_PATH + 1] = {};
    const DWORD length = GetTempPathW(MAX_PATH + 1, folder);
    if (length == 0 || length > MAX_PATH) return {};
    return Path(folder) / L"brennet-kept";
  }

  unsigned long process() override { return GetCurrentProcessId(); }

  bool isRunning(unsigned long process) override {
    HANDLE const opened = OpenProcess(SYNCHRONIZE, FALSE, process);
    if (opened == nullptr) return GetLastError() != ERROR_INVALID_PARAMETER;
    const bool isRunning = WaitForSingleObject(opened, 0) == WAIT_TIMEOUT;
    CloseHandle(opened);
    return isRunning;
  }

  std::int64_t wallTime() override {
    FILETIME now{};
    FILETIME local{};
    GetSystemTimeAsFileTime(&now);
    if (FileTimeToLocalFileTime(&now, &local) == FALSE) local = now;
    const std::uint64_t seconds =
        joined(local.dwHighDateTime, local.dwLowDateTime) / kTicksPerSecond;
    return static_cast<std::int64_t>(seconds - kSecondsBefore1970);
  }

  std::uint64_t clock() override { return GetTickCount64(); }

  void pause() override { Sleep(kPause); }

 private:
  static FileFacts::Kind kindOf(const Path& path, DWORD attributes) {
    if (isSymbolicLink(path.native(), attributes)) return FileFacts::Kind::Link;
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FileFacts::Kind::Folder
                                                        : FileFacts::Kind::File;
  }

  static FileError factsOf(HANDLE file, FileFacts& facts, bool mayBeLink) {
    if (GetFileType(file) != FILE_TYPE_DISK) return failure(ERROR_INVALID_HANDLE);
    BY_HANDLE_FILE_INFORMATION info{};
    if (GetFileInformationByHandle(file, &info) == FALSE) return failure(GetLastError());
    if (!mayBeLink && (info.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
      return failure(ERROR_ACCESS_DENIED);
    }
    facts = {FileFacts::Kind::File, joined(info.nFileSizeHigh, info.nFileSizeLow),
             info.nNumberOfLinks, ageOf(info.ftLastWriteTime)};
    return {};
  }

  // The file goes when it is closed, under whatever name it has then.
  static BOOL removeWhenClosed(HANDLE file) {
    FILE_DISPOSITION_INFO info{TRUE};
    return SetFileInformationByHandle(file, FileDispositionInfo, &info, sizeof(info));
  }

  [[nodiscard]] SECURITY_ATTRIBUTES* ownAttributes() const {
    return static_cast<SECURITY_ATTRIBUTES*>(own_.attributes());
  }

  OwnRights own_;
};

}  // namespace

bool isMissing(const std::error_code& error) {
  return (error.category() == std::system_category() &&
          obstacleOf(static_cast<DWORD>(error.value())) == Obstacle::Missing) ||
         error == std::make_error_code(std::errc::no_such_file_or_directory);
}

FileSystem& operatingSystem() {
  static WindowsFileSystem system;
  return system;
}

}  // namespace brennet::platform
