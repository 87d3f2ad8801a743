#include <windows.h>
// shellapi.h needs windows.h first.
#include <shellapi.h>

#include <cstdint>
#include <string>

#include "platform/RegistryEditor.h"

namespace brennet::platform {

bool importRegFile(std::u16string_view folder, std::u16string_view name) {
  // The bare name: a path with spaces in it would have to be quoted.
  const std::wstring parameters = L"/s " + std::wstring(name.begin(), name.end());
  const std::wstring directory(folder.begin(), folder.end());
  const HINSTANCE result = ShellExecuteW(nullptr, L"open", L"regedit.exe", parameters.c_str(),
                                         directory.c_str(), SW_HIDE);
  constexpr std::intptr_t kLastError = 32;
  return reinterpret_cast<std::intptr_t>(result) > kLastError;
}

}  // namespace brennet::platform
