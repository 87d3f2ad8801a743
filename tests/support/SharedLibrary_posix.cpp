#include <dlfcn.h>

#include "tests/support/SharedLibrary.h"

namespace brennet::test {

void* functionOf(const char* file, const char* name) {
  void* const library = dlopen(file, RTLD_NOW);
  return library != nullptr ? dlsym(library, name) : nullptr;
}

}  // namespace brennet::test
