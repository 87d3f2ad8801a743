#include "tests/host/InUse.h"

#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
// Of the sanitizer's runtime; not every compiler brings its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace brennet::test {

InUse inUse() {
#ifdef __SANITIZE_ADDRESS__
  // The sanitizer has an allocator of its own, of which the library knows nothing.
  return {.memory = __sanitizer_get_current_allocated_bytes()};
#else
  const struct mallinfo2 all = mallinfo2();
  return {.memory = all.uordblks + all.hblkhd};
#endif
}

}  // namespace brennet::test
