#include "tests/host/InUse.h"

#include <windows.h>

namespace brennet::test {
namespace {

std::size_t bytesOf(HANDLE heap) {
  std::size_t bytes = 0;
  PROCESS_HEAP_ENTRY entry = {};
  HeapLock(heap);
  while (HeapWalk(heap, &entry) != 0) {
    if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) bytes += entry.cbData;
  }
  HeapUnlock(heap);
  return bytes;
}

// Each runtime of C may have one of its own.
std::size_t bytesOfAllHeaps() {
  constexpr DWORD kMostHeaps = 64;
  HANDLE heaps[kMostHeaps] = {};
  const DWORD count = GetProcessHeaps(kMostHeaps, heaps);
  std::size_t bytes = 0;
  for (DWORD i = 0; i < count && i < kMostHeaps; ++i) bytes += bytesOf(heaps[i]);
  return bytes;
}

}  // namespace

InUse inUse() {
  const HANDLE process = GetCurrentProcess();
  DWORD handles = 0;
  GetProcessHandleCount(process, &handles);
  return {.memory = bytesOfAllHeaps(),
          .handles = handles,
          .drawingObjects = GetGuiResources(process, GR_GDIOBJECTS),
          .windowObjects = GetGuiResources(process, GR_USEROBJECTS)};
}

}  // namespace brennet::test
