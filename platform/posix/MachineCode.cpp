#include <dlfcn.h>
#include <sys/mman.h>

#include "platform/MachineCode.h"

namespace brennet::platform {

void* takePages(std::size_t size) {
  void* const pages =
      mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return pages == MAP_FAILED ? nullptr : pages;
}

bool makeRunnable(void* pages, std::size_t size) {
  return mprotect(pages, size, PROT_READ | PROT_EXEC) == 0;
}

const void* functionOfCLibrary(const char* name) {
  return dlsym(RTLD_DEFAULT, name);
}

}  // namespace brennet::platform
