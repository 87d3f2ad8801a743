#include <windows.h>

#include <cstdint>

#include "platform/MemoryProbe.h"

namespace brennet::platform {
namespace {

// IsBadWritePtr and IsBadReadPtr touch the pages: they would set off the guard page at the end of a
// stack.
bool hasGuardPage(const char* first, const char* last) {
  MEMORY_BASIC_INFORMATION region{};
  for (const char* at = first; VirtualQuery(at, &region, sizeof(region)) != 0;) {
    if (region.State == MEM_COMMIT && (region.Protect & PAGE_GUARD) != 0) return true;
    const auto* const start = static_cast<const char*>(region.BaseAddress);
    // The last byte of the region: the address after it may be 0.
    const char* const end = start + (region.RegionSize - 1);
    if (end >= last) return false;
    at = end + 1;
  }
  return false;
}

}  // namespace

// IsBadWritePtr is obsolete for good reasons, but it is the contract with the host: an answer, not
// a fault, for memory that does not exist. It does not handle ranges that wrap around.
Writability probeMemory(void* address, std::size_t size) {
  if (size == 0) return Writability::Writable;
  const auto first = reinterpret_cast<std::uintptr_t>(address);
  if (first + (size - 1) < first) return Writability::NotWritable;
  const auto* const bytes = static_cast<const char*>(address);
  const bool isWritable =
      !hasGuardPage(bytes, bytes + (size - 1)) && IsBadWritePtr(address, size) == FALSE;
  return isWritable ? Writability::Writable : Writability::NotWritable;
}

bool isReadable(const void* address, std::size_t size) {
  if (size == 0) return true;
  const auto first = reinterpret_cast<std::uintptr_t>(address);
  if (first + (size - 1) < first) return false;
  const auto* const bytes = static_cast<const char*>(address);
  return !hasGuardPage(bytes, bytes + (size - 1)) && IsBadReadPtr(address, size) == FALSE;
}

}  // namespace brennet::platform
