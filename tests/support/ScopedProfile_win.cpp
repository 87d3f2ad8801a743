#include <windows.h>
// shlobj.h needs windows.h first.
#include <shlobj.h>

#include <cstdlib>
#include <stdexcept>

#include "tests/support/ScopedProfile.h"

namespace brennet::test {
namespace {

namespace fs = std::filesystem;

// For Wine, the profile folder is the one below C:\users that this variable names.
constexpr wchar_t kVariable[] = L"WINEUSERNAME";
constexpr wchar_t kProfiles[] = L"C:\\users";

fs::path profileNow() {
  wchar_t folder[MAX_PATH] = {};
  const HRESULT result = SHGetFolderPathW(nullptr, CSIDL_PROFILE, nullptr, 0, folder);
  return SUCCEEDED(result) ? fs::path(folder) : fs::path();
}

}  // namespace

ScopedProfile::ScopedProfile(const fs::path& folder) {
  const wchar_t* before = _wgetenv(kVariable);
  before_ = before != nullptr ? before : L"";
  const fs::path name = folder.empty() ? L"no such user" : folder.lexically_relative(kProfiles);
  _wputenv_s(kVariable, name.c_str());
  if (profileNow() != folder) {
    _wputenv_s(kVariable, before_.c_str());
    throw std::runtime_error("this system keeps its own profile folder; run the tests under Wine");
  }
}

ScopedProfile::~ScopedProfile() {
  _wputenv_s(kVariable, before_.c_str());
}

}  // namespace brennet::test
