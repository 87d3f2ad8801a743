#include "Footprint.h"

#include "Kernel32.h"
#include "Report.h"

namespace {

// Handles are multiples of 4, and a free one is reused before a larger one is given. A process like
// this has a few dozen.
constexpr unsigned kLastHandle = 16384;

unsigned openHandles() {
  unsigned count = 0;
  for (unsigned value = 4; value <= kLastHandle; value += 4) {
    unsigned flags = 0;
    if (GetHandleInformation(reinterpret_cast<Handle>(value), &flags) != 0) ++count;
  }
  return count;
}

// The smallest free index is given first, so it says how many are taken.
unsigned tlsIndexes() {
  const unsigned index = TlsAlloc();
  require(index != ~0U, kTlsGrows);
  TlsFree(index);
  return index;
}

unsigned blocksInUse(Handle heap) {
  unsigned count = 0;
  HeapEntry entry = {};
  while (HeapWalk(heap, &entry) != 0) {
    if ((entry.flags & kHeapEntryBusy) != 0) ++count;
  }
  return count;
}

unsigned heapBlocks() {
  constexpr unsigned kMostHeaps = 64;
  Handle heaps[kMostHeaps];
  const unsigned count = GetProcessHeaps(kMostHeaps, heaps);
  require(count != 0 && count <= kMostHeaps, kNoCount);
  unsigned blocks = 0;
  for (unsigned i = 0; i < count; ++i) blocks += blocksInUse(heaps[i]);
  return blocks;
}

unsigned privatePages() {
  unsigned pages = 0;
  unsigned at = 0;
  MemoryRange range;
  while (VirtualQuery(reinterpret_cast<Address>(at), &range, sizeof(range)) != 0) {
    const bool counts = range.state == kMemCommit && range.type == kMemPrivate;
    if (counts) pages += range.size / kPageSize;
    const unsigned next = reinterpret_cast<unsigned>(range.base) + range.size;
    if (next <= at) break;
    at = next;
  }
  return pages;
}

}  // namespace

Footprint footprint() {
  const Footprint now = {openHandles(), tlsIndexes(), heapBlocks(), privatePages()};
  require(now.handles != 0 && now.heapBlocks != 0 && now.pages != 0, kNoCount);
  return now;
}
