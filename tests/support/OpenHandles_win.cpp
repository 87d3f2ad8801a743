#include <windows.h>

#include <cstdint>

#include "tests/support/OpenHandles.h"

namespace brennet::test {

// Wine does not count handles. They are multiples of 4, and a free one is reused before a larger
// one is given.
std::size_t openHandles() {
  constexpr std::uintptr_t kMoreThanAnyTestOpens = 0x10000;
  std::size_t count = 0;
  for (std::uintptr_t value = 4; value < kMoreThanAnyTestOpens; value += 4) {
    DWORD flags = 0;
    count += GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) != FALSE ? 1U : 0U;
  }
  return count;
}

}  // namespace brennet::test
