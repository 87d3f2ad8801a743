#pragma once

#include <string>

#include "platform/FileCalls_win.h"

// How a file takes the place of another. ReplaceFileW moves the old file to a backup's name for a
// moment, which is always the same, so that whoever comes next finds it if this process ends then.
namespace brennet::platform {

// Waits for whoever is replacing a file at the moment; if nobody is any more, a backup becomes the
// file again where there is none, and goes where there is one.
void awaitReplacement(const std::wstring& path);

// Whether a file was not found (`error`) because it is being replaced.
[[nodiscard]] bool isBeingReplaced(const std::wstring& path, SystemError error);

// Gives the file `temporary` the place of `path`, which may come or go under way; `isThere` is what
// was last seen. 0 or the error; then either `path` is as it was and `temporary` too, or `path` is
// missing and its old content stands under the backup's name.
[[nodiscard]] SystemError takePlace(const std::wstring& temporary, const std::wstring& path,
                                    bool isThere);

}  // namespace brennet::platform
