#include "tests/host/InUse.h"

#include <malloc.h>

#include <memory>
#include <vector>

#include "tests/support/OpenHandles.h"

#ifdef __SANITIZE_ADDRESS__
// From the sanitizer's runtime; not every compiler has its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace brennet::test {
namespace {

// For each small size, the allocator keeps some freed blocks for the thread, and counts them as in
// use. This frees as many as it keeps, so that each measurement counts the same number.
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
  // The sanitizer has an allocator of its own, which mallinfo2 does not know.
  return {.memory = __sanitizer_get_current_allocated_bytes(), .handles = openHandles()};
#else
  const struct mallinfo2 all = mallinfo2();
  return {.memory = all.uordblks + all.hblkhd, .handles = openHandles()};
#endif
}

}  // namespace brennet::test
