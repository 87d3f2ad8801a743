#pragma once

#include <cstddef>

namespace brennet::test {

// What the process holds at the moment.
struct InUse {
  std::size_t memory = 0;  // bytes that were allocated and not freed
  std::size_t handles = 0;
  // None outside Windows.
  unsigned long drawingObjects = 0;
  unsigned long windowObjects = 0;
};

[[nodiscard]] InUse inUse();

// Expects that nothing but up to `slack` bytes has come since `before`.
void expectNoMoreInUse(const InUse& before, std::size_t slack);

}  // namespace brennet::test
