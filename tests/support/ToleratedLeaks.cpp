#include "tests/support/ToleratedLeaks.h"

// GCC has a macro for it, clang a feature.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define BRENNET_HAS_LEAK_SANITIZER
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define BRENNET_HAS_LEAK_SANITIZER
#endif
#ifdef BRENNET_HAS_LEAK_SANITIZER
#include <sanitizer/lsan_interface.h>
#endif

namespace brennet::test {

#ifdef BRENNET_HAS_LEAK_SANITIZER
ToleratedLeaks::ToleratedLeaks() {
  __lsan_disable();
}
ToleratedLeaks::~ToleratedLeaks() {
  __lsan_enable();
}
#else
ToleratedLeaks::ToleratedLeaks() = default;
ToleratedLeaks::~ToleratedLeaks() = default;
#endif

}  // namespace brennet::test
