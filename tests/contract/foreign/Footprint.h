// What the process holds; it grows if a library leaves something behind.
#pragma once

struct Footprint {
  unsigned handles;
  unsigned tlsIndexes;
  unsigned heapBlocks;  // in use, in all heaps of the process
  unsigned pages;       // committed, and of this process alone
};

[[nodiscard]] Footprint footprint();
