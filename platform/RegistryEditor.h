#pragma once

#include <string_view>

namespace brennet::platform {

// Has the .reg file `name` in `folder` imported into the registry, without showing anything to the
// user.
//
// On Windows regedit.exe is started with the folder as its working directory; nobody waits for it
// or learns what comes of it. Elsewhere the file is carried out on the file that stands for the
// registry (Registry.h), which is created if it is missing, before the call returns. `folder` ends
// in a separator. Returns whether the import was started.
bool importRegFile(std::u16string_view folder, std::u16string_view name);

}  // namespace brennet::platform
