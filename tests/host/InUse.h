#pragma once

#include <cstddef>

namespace brennet::test {

// What the process holds at the moment.
struct InUse {
  std::size_t memory = 0;  // bytes that were allocated and not freed
  // Of the system; none outside Windows.
  unsigned long handles = 0;
  unsigned long drawingObjects = 0;
  unsigned long windowObjects = 0;
};

[[nodiscard]] InUse inUse();

}  // namespace brennet::test
