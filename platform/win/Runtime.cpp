#include <windows.h>

#include <string>

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

Path fileOfCode(const void* address) {
  if (address == nullptr) return {};  // it would stand for the program
  HMODULE module = nullptr;
  constexpr DWORD kFlags =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  if (GetModuleHandleExW(kFlags, static_cast<const wchar_t*>(address), &module) == FALSE) return {};
  // A name that does not fit is cut; the system knows none longer than that.
  constexpr DWORD kMostUnits = 0x8000;
  std::wstring name(kMostUnits, L'\0');
  name.resize(GetModuleFileNameW(module, name.data(), kMostUnits));
  return name;
}

bool mayUnloadOthers() {
  using IsEnding = BOOLEAN(WINAPI*)();
  HMODULE const system = GetModuleHandleW(L"ntdll.dll");
  const auto isEnding = reinterpret_cast<IsEnding>(
      reinterpret_cast<void*>(GetProcAddress(system, "RtlDllShutdownInProgress")));
  return isEnding != nullptr && isEnding() == FALSE;
}

void tellDebugger(const char* text) {
  OutputDebugStringA(text);
}

}  // namespace brennet::platform
