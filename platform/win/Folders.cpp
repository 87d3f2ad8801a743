#include <windows.h>
// shlobj.h needs windows.h first.
#include <shlobj.h>

#include "platform/Folders.h"

namespace brennet::platform {

std::string profileFolder() {
  char folder[MAX_PATH] = {};
  const HRESULT result = SHGetFolderPathA(nullptr, CSIDL_PROFILE, nullptr, 0, folder);
  return SUCCEEDED(result) ? std::string(folder) : std::string();
}

const char* gamePreferencesSuffix() {
  return "\\Documents\\Warcraft III\\War3Preferences.txt";
}

}  // namespace brennet::platform
