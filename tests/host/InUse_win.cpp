#include "tests/host/InUse.h"

#include <windows.h>

#include <cstdint>

#include "tests/support/OpenHandles.h"

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

// Each C runtime may have a heap of its own.
std::size_t bytesOfAllHeaps() {
  constexpr DWORD kMostHeaps = 64;
  HANDLE heaps[kMostHeaps] = {};
  const DWORD count = GetProcessHeaps(kMostHeaps, heaps);
  std::size_t bytes = 0;
  for (DWORD i = 0; i < count && i < kMostHeaps; ++i) bytes += bytesOf(heaps[i]);
  return bytes;
}

// Pens, bitmaps, fonts and so on. Wine counts none, but knows each by the lower half of its handle.
std::size_t drawingObjects() {
  constexpr std::uintptr_t kLastObject = 0xFFFF;
  std::size_t count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  for (std::uintptr_t object = 1; object <= kLastObject; ++object) {
    if (GetObjectType(reinterpret_cast<HGDIOBJ>(object)) != 0) ++count;
  }
  return count;
}

BOOL CALLBACK countWindow(HWND /*window*/, LPARAM count) {
  ++*reinterpret_cast<std::size_t*>(count);
  return TRUE;
}

// The top-level windows of this thread, and all objects of that kind that the system counts.
std::size_t windowObjects() {
  std::size_t count = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&count));
  return count;
}

}  // namespace

InUse inUse() {
  return {.memory = bytesOfAllHeaps(),
          .handles = openHandles(),
          .drawingObjects = drawingObjects(),
          .windowObjects = windowObjects()};
}

}  // namespace brennet::test
