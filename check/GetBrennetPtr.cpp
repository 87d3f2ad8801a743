// The layer's only export, the same as the library's.

#include "check/Layer.h"
#include "platform/Export.h"

extern "C" BRENNET_EXPORT brennet::IBrennet* GetBrennetPtr() {
  static brennet::check::Layer layer;
  return layer.object();
}
