#include "platform/Replacement_win.h"

#include <windows.h>

namespace brennet::platform {
namespace {

// Removes the backup, unless it is the last copy; whether it can be removed. While it is held open
// here nobody can give its name to another file, so no replacement can begin after the look at
// `path`.
bool dropBackup(const std::wstring& path, const std::wstring& backup) {
  OpenFile file(backup, DELETE, 0, OPEN_EXISTING);
  return file.isOpen() && (!isFile(path) || file.removeOnClose());
}

// Besides the errors that pass for every call: these two leave both files with the names they had,
// and are what ReplaceFileW often tells when somebody has one of them open.
bool mayReplaceLater(SystemError error) {
  return mayPass(error) || error == ERROR_UNABLE_TO_REMOVE_REPLACED ||
         error == ERROR_UNABLE_TO_MOVE_REPLACEMENT;
}

// Puts the temporary file in the place of one that is there. ReplaceFileW keeps the rights of the
// old file, as far as this process may set them. It can fail half-way; its documentation tells the
// three states in which it leaves the files then.
SystemError replaceExisting(const ReplacementNames& names) {
  SystemError error = retried(
      [&] {
        return ReplaceFileW(names.path.c_str(), names.temporary.c_str(), names.backup.c_str(),
                            REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr);
      },
      mayReplaceLater);
  if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2) {
    // The old file has the backup's name, the new one its temporary name.
    error = moveTo(names.temporary, names.path);
    if (error != 0) static_cast<void>(moveTo(names.backup, names.path));
  }
  // What cannot be removed now goes another time.
  if (isFile(names.backup)) retried([&] { return dropBackup(names.path, names.backup); });
  return error;
}

}  // namespace

std::wstring backupName(const std::wstring& path) {
  return path + L".brennet-old";
}

SystemError awaitReplacement(const std::wstring& path) {
  const std::wstring backup = backupName(path);
  for (int i = 0; i < kTries; ++i) {
    if (!isFile(backup)) return 0;
    if (exists(path)) {
      static_cast<void>(dropBackup(path, backup));
      return 0;
    }
    pause();
  }
  const SystemError error = moveTo(backup, path);
  // Somebody else did it.
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_ALREADY_EXISTS ? 0 : error;
}

bool isBeingReplaced(const std::wstring& path, SystemError error) {
  return error == ERROR_FILE_NOT_FOUND && (isFile(backupName(path)) || exists(path));
}

SystemError takePlace(const ReplacementNames& names, bool isThere) {
  SystemError error = 0;
  for (int i = 0; i < kTries; ++i) {
    error = isThere ? replaceExisting(names) : moveTo(names.temporary, names.path);
    const SystemError otherwise = isThere ? ERROR_FILE_NOT_FOUND : ERROR_ALREADY_EXISTS;
    if (error != otherwise) break;
    // Another process is replacing the file at this moment; or it came or went for good.
    if (isMovedAway(names)) {
      pause();
    } else {
      isThere = !isThere;
    }
  }
  return error;
}

bool isMovedAway(const ReplacementNames& names) {
  return isFile(names.backup) && !exists(names.path);
}

}  // namespace brennet::platform
