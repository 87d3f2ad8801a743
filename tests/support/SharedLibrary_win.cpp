#include <windows.h>

#include "tests/support/SharedLibrary.h"

namespace brennet::test {

void* functionOf(const char* file, const char* name) {
  const HMODULE library = LoadLibraryA(file);
  if (library == nullptr) return nullptr;
  return reinterpret_cast<void*>(GetProcAddress(library, name));
}

}  // namespace brennet::test
