#include <windows.h>
// gtest.h comes after windows.h, which would undo its macros.
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/host/UnloadableLibrary.h"

namespace brennet::test {
namespace {

void* lastPlace = nullptr;

}  // namespace

UnloadableLibrary::UnloadableLibrary() : module_(LoadLibraryA(BRENNET_LIBRARY)) {
  if (module_ == nullptr) throw std::runtime_error("the library does not load");
  if (lastPlace != nullptr) VirtualFree(lastPlace, 0, MEM_RELEASE);
  const FARPROC function = GetProcAddress(static_cast<HMODULE>(module_), "GetBrennetPtr");
  brennet_ = reinterpret_cast<GetBrennetPtrFunction>(reinterpret_cast<void*>(function))();
}

UnloadableLibrary::~UnloadableLibrary() {
  FreeLibrary(static_cast<HMODULE>(module_));
  EXPECT_EQ(GetModuleHandleA(BRENNET_LIBRARY), nullptr) << "it is still loaded";
  lastPlace = VirtualAlloc(module_, 1, MEM_RESERVE, PAGE_NOACCESS);
  EXPECT_EQ(lastPlace, module_);
}

}  // namespace brennet::test
