#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <stdexcept>

#include "tests/host/UnloadableLibrary.h"

namespace brennet::test {
namespace {

constexpr std::size_t kPage = 4096;

void* lastPlace = nullptr;

}  // namespace

UnloadableLibrary::UnloadableLibrary() : module_(dlopen(BRENNET_LIBRARY, RTLD_NOW)) {
  if (module_ == nullptr) throw std::runtime_error(dlerror());
  if (lastPlace != nullptr) munmap(lastPlace, kPage);
  void* const function = dlsym(module_, "GetBrennetPtr");
  brennet_ = reinterpret_cast<GetBrennetPtrFunction>(function)();
}

UnloadableLibrary::~UnloadableLibrary() {
  Dl_info info = {};
  // The object's table of functions is in the library.
  dladdr(*reinterpret_cast<void**>(brennet_), &info);
  dlclose(module_);
  EXPECT_EQ(dlopen(BRENNET_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr) << "it is still loaded";
  lastPlace = mmap(info.dli_fbase, kPage, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  EXPECT_EQ(lastPlace, info.dli_fbase);
}

}  // namespace brennet::test
