#pragma once

#include <string>

namespace brennet::platform {

// The user's profile folder, without a separator at its end: CSIDL_PROFILE (id 40) on Windows, in
// the ANSI code page and at most 259 bytes long; $HOME elsewhere. Empty when the system does not
// know it.
[[nodiscard]] std::string profileFolder();

// Where the game keeps its preferences below the profile folder, with this system's separators
// and a leading one.
[[nodiscard]] const char* gamePreferencesSuffix();

}  // namespace brennet::platform
