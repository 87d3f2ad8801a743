#include <cstdlib>

#include "platform/Folders.h"

namespace brennet::platform {

std::string profileFolder() {
  const char* home = std::getenv("HOME");
  return home != nullptr ? home : "";
}

const char* gamePreferencesSuffix() {
  return "/Documents/Warcraft III/War3Preferences.txt";
}

}  // namespace brennet::platform
