#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/allocator_interface.h>
#endif

#include "tests/host/InUse.h"

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
