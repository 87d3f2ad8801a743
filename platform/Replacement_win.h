#pragma once

#include <string>

#include "platform/FileCalls_win.h"

// How a file takes the place of another. ReplaceFileW moves the old file to a backup's name for a
// moment, which is always the same, so that whoever comes next finds it if this process ends then.
namespace brennet::platform {

// The names of a replacement. They are made first: once something has changed, no memory is taken.
struct ReplacementNames {
  std::wstring path;
  std::wstring backup;
  std::wstring temporary;
};

[[nodiscard]] std::wstring backupName(const std::wstring& path);

// Waits for whoever is replacing a file at the moment; if nobody is any more, a backup becomes the
// file again where there is none, and goes where there is one. 0, or why a backup that is the only
// copy cannot become the file again.
[[nodiscard]] SystemError awaitReplacement(const std::wstring& path);

// Whether a file was not found (`error`) because it is being replaced.
[[nodiscard]] bool isBeingReplaced(const std::wstring& path, SystemError error);

// Gives the temporary file the place of the other, which may come or go under way; `isThere` is
// what was last seen. 0 or the error; then the temporary file still is one, and either the other is
// as it was, or isMovedAway.
[[nodiscard]] SystemError takePlace(const ReplacementNames& names, bool isThere);

// Whether the old file has the backup's name and nothing its own.
[[nodiscard]] bool isMovedAway(const ReplacementNames& names);

}  // namespace brennet::platform
