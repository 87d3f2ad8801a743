#pragma once

#include <cstdlib>
#include <string_view>

#include "platform/Paths.h"

namespace brennet::platform {

inline constexpr std::u16string_view kUserRoot = u"HKEY_CURRENT_USER";

// The file that stands for the registry; empty where there is none.
inline Path registryPath() {
  const char* const name = std::getenv("BRENNET_REGISTRY");
  return name != nullptr ? Path(name) : Path();
}

}  // namespace brennet::platform
