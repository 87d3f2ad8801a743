// The library's only export.

#include "host/CBrennetImpl.h"
#include "platform/Export.h"
#include "platform/Runtime.h"

namespace {

// Runs before anything else uses the shared libraries.
struct OnLoad {
  OnLoad() { brennet::platform::keepSharedLibraries(); }
};
const OnLoad onLoad;

}  // namespace

// The one object, built on the first call. The library owns it. Building it allocates nothing, so
// it throws nothing, and null is never returned.
extern "C" BRENNET_EXPORT brennet::IBrennet* GetBrennetPtr() noexcept {
  static brennet::CBrennetImpl brennet;
  return &brennet;
}
