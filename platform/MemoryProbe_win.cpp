#include <windows.h>

#include <cstdint>

#include "platform/MemoryProbe.h"

namespace brennet::platform {

// IsBadWritePtr is obsolete for good reasons, but it is the contract with the host: an answer, not
// a fault, for memory that is not there. It does not look at ranges that wrap around.
bool isWritable(void* address, std::size_t size) {
  if (size == 0) return true;
  const auto first = reinterpret_cast<std::uintptr_t>(address);
  if (first + (size - 1) < first) return false;
  return IsBadWritePtr(address, size) == FALSE;
}

}  // namespace brennet::platform
