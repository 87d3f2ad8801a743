// The library's only export.

#include "host/CBrennetImpl.h"
#include "platform/Export.h"
#include "platform/Runtime.h"

namespace {

// Before anything else of what is shared is used.
struct OnLoad {
  OnLoad() { brennet::platform::keepSharedLibraries(); }
};
const OnLoad onLoad;

}  // namespace

// The one object, built on the first call. The library owns it. Building it takes no memory, so
// there is nothing to be thrown, and no null to be returned.
extern "C" BRENNET_EXPORT brennet::IBrennet* GetBrennetPtr() noexcept {
  static brennet::CBrennetImpl brennet;
  return &brennet;
}
