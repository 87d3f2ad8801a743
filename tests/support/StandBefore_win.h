#pragma once

#include <windows.h>

// Lets a test take the place of a system function. Calls of the system go through pointers, which
// the linker takes from the test before it looks into the import library:
//   STAND_BEFORE(ReadFile, "ReadFile@20", ours);
// The name in quotes is the function's, with the size of its arguments in bytes. The macro is used
// outside all namespaces.
#define STAND_BEFORE(function, symbol, ours)                                        \
  extern decltype(&function) const standBefore##function __asm__("__imp__" symbol); \
  decltype(&function) const standBefore##function __attribute__((used)) = &ours

namespace brennet::test {

// The function of the system whose place a test takes: systems<decltype(ReadFile)>("ReadFile").
template <class Function>
Function* systems(const char* name, const wchar_t* library = L"kernel32") {
  return reinterpret_cast<Function*>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(library), name)));
}

}  // namespace brennet::test
