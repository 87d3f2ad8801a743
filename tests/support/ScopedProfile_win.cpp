#include <windows.h>
// shlobj.h needs windows.h first.
#include <shlobj.h>

#include <cstdlib>
#include <stdexcept>

#include "tests/support/ScopedProfile.h"

namespace brennet::test {
namespace {

namespace fs = std::filesystem;

// Wine takes the profile folder to be the one of this name below C:\users.
constexpr char kVariable[] = "WINEUSERNAME";
constexpr wchar_t kProfiles[] = L"C:\\users";

fs::path profileNow() {
  char folder[MAX_PATH] = {};
  const HRESULT result = SHGetFolderPathA(nullptr, CSIDL_PROFILE, nullptr, 0, folder);
  return SUCCEEDED(result) ? fs::path(folder) : fs::path();
}

}  // namespace

ScopedProfile::ScopedProfile(const fs::path& folder) {
  const char* before = std::getenv(kVariable);
  before_ = before != nullptr ? before : "";
  const fs::path name = folder.empty() ? "no such user" : folder.lexically_relative(kProfiles);
  _putenv_s(kVariable, name.string().c_str());
  if (profileNow() != folder) {
    _putenv_s(kVariable, before_.c_str());
    throw std::runtime_error("this system keeps its own profile folder; run the tests under Wine");
  }
}

ScopedProfile::~ScopedProfile() {
  _putenv_s(kVariable, before_.c_str());
}

}  // namespace brennet::test
