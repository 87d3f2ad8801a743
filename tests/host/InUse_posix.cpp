#include "tests/host/InUse.h"

#include <malloc.h>

#include <memory>
#include <vector>

#include "tests/support/OpenHandles.h"

#ifdef __SANITIZE_ADDRESS__
// Of the sanitizer's runtime; not every compiler brings its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace brennet::test {
namespace {

// The allocator keeps some freed blocks of each small size for the thread, and counts them as in
// use. Here it gets as many as it keeps, so that they are the same for each measurement.
void fillFreeLists() {
  constexpr std::size_t kLargest = 1032;  // bytes
  constexpr std::size_t kStep = 16;
  std::vector<std::unique_ptr<char[]>> blocks;
  for (std::size_t size = 8; size <= kLargest; size += kStep) {
    for (int n = 0; n < 16; ++n) blocks.push_back(std::make_unique<char[]>(size));
  }
}

}  // namespace

InUse inUse() {
  fillFreeLists();
#ifdef __SANITIZE_ADDRESS__
  // The sanitizer has an allocator of its own, of which the library knows nothing.
  return {.memory = __sanitizer_get_current_allocated_bytes(), .handles = openHandles()};
#else
  const struct mallinfo2 all = mallinfo2();
  return {.memory = all.uordblks + all.hblkhd, .handles = openHandles()};
#endif
}

}  // namespace brennet::test
