#include "platform/Replacement_win.h"

#include <windows.h>

namespace brennet::platform {
namespace {

std::wstring backupName(const std::wstring& path) {
  return path + L".brennet-old";
}

// Removes the backup, unless it is the last copy. While it is held open here nobody can give its
// name to another file, so no replacement can begin after the look at `path`.
void dropBackup(const std::wstring& path) {
  const std::wstring backup = backupName(path);
  if (!isFile(backup)) return;
  OpenFile file;
  if (retried([&] { return file.open(backup, DELETE, 0, OPEN_EXISTING); }) != 0) {
    return;
  }
  if (!isFile(path)) return;
  FILE_DISPOSITION_INFO info{TRUE};
  SetFileInformationByHandle(file.get(), FileDispositionInfo, &info, sizeof(info));
}

// Besides the errors that pass for every call: these two leave both files with the names they had,
// and are what ReplaceFileW often tells when somebody has one of them open.
bool mayReplaceLater(SystemError error) {
  return mayPass(error) || error == ERROR_UNABLE_TO_REMOVE_REPLACED ||
         error == ERROR_UNABLE_TO_MOVE_REPLACEMENT;
}

// Puts the temporary file in the place of `path`, which is there. ReplaceFileW keeps the rights of
// the old file, as far as this process may set them. It can fail half-way; its documentation tells
// the three states in which it leaves the files then.
SystemError replaceExisting(const std::wstring& temporary, const std::wstring& path) {
  const std::wstring backup = backupName(path);
  SystemError error = retried(
      [&] {
        return ReplaceFileW(path.c_str(), temporary.c_str(), backup.c_str(),
                            REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr);
      },
      mayReplaceLater);
  if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2) {
    // The old file has the backup's name, the new one its temporary name.
    error = moveTo(temporary, path);
    if (error != 0) static_cast<void>(moveTo(backup, path));
  }
  dropBackup(path);
  return error;
}

}  // namespace

void awaitReplacement(const std::wstring& path) {
  const std::wstring backup = backupName(path);
  for (int i = 0; i < kTries; ++i) {
    if (!isFile(backup)) return;
    if (exists(path)) return dropBackup(path);
    pause();
  }
  static_cast<void>(moveTo(backup, path));
}

bool isBeingReplaced(const std::wstring& path, SystemError error) {
  return error == ERROR_FILE_NOT_FOUND && (isFile(backupName(path)) || exists(path));
}

SystemError takePlace(const std::wstring& temporary, const std::wstring& path, bool isThere) {
  if (isThere) {
    const SystemError error = replaceExisting(temporary, path);
    return error == ERROR_FILE_NOT_FOUND ? moveTo(temporary, path) : error;
  }
  const SystemError error = moveTo(temporary, path);
  return error == ERROR_ALREADY_EXISTS ? replaceExisting(temporary, path) : error;
}

}  // namespace brennet::platform
