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

// The one object, built on the first call. The library owns it.
extern "C" BRENNET_EXPORT brennet::IBrennet* GetBrennetPtr() {
  return &brennet::CBrennetImpl::instance();
}
