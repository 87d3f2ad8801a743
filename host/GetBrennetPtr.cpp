// The library's only export.

#include "host/CBrennetImpl.h"
#include "platform/Export.h"

// The one object, built on the first call. The library owns it.
extern "C" BRENNET_EXPORT brennet::IBrennet* GetBrennetPtr() {
  return &brennet::CBrennetImpl::instance();
}
