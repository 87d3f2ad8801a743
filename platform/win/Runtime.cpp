#include <windows.h>

#include "platform/Runtime.h"

namespace brennet::platform {

// Libraries that are not loaded need no keeping. Nothing is loaded here, so this may be called
// while a library is being loaded.
void keepSharedLibraries() {
  constexpr const wchar_t* kShared[] = {
      L"libgcc_s_dw2-1.dll", L"libstdc++-6.dll", L"libwinpthread-1.dll",
      L"Qt5Core.dll",        L"Qt5Gui.dll",      L"Qt5Widgets.dll",
  };
  for (const wchar_t* const name : kShared) {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN, name, &module);
  }
}

}  // namespace brennet::platform
