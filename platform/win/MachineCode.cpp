#include <windows.h>

#include "platform/MachineCode.h"

namespace brennet::platform {

void* takePages(std::size_t size) {
  return VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
}

bool makeRunnable(void* pages, std::size_t size) {
  DWORD before = 0;
  return VirtualProtect(pages, size, PAGE_EXECUTE_READ, &before) != FALSE &&
         FlushInstructionCache(GetCurrentProcess(), pages, size) != FALSE;
}

// An address of our own would be that of a jump in this library.
const void* functionOfCLibrary(const char* name) {
  HMODULE const library = GetModuleHandleW(L"msvcrt.dll");
  return reinterpret_cast<const void*>(GetProcAddress(library, name));
}

}  // namespace brennet::platform
