// The library's only export.

#include "host/CBrennetImpl.h"

#if defined(_WIN32)
#define BRENNET_EXPORT __declspec(dllexport)
#else
#define BRENNET_EXPORT __attribute__((visibility("default")))
#endif

extern "C" BRENNET_EXPORT brennet::IBrennet* GetBrennetPtr() {
  return &brennet::CBrennetImpl::instance();
}
