#include <dlfcn.h>

#include "platform/Runtime.h"

namespace brennet::platform {

// The loader unloads nothing that is still in use, and the host uses the same C++ runtime.
void keepSharedLibraries() {}

Path fileOfCode(const void* address) {
  Dl_info info = {};
  return dladdr(address, &info) != 0 ? Path(info.dli_fname) : Path();
}

bool mayUnloadOthers() {
  return true;
}

void tellDebugger(const char* /*text*/) {}

}  // namespace brennet::platform
