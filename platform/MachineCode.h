#pragma once

#include <cstddef>

namespace brennet::platform {

// Takes `size` bytes of memory of their own pages from the system, writable and zeroed. Nobody
// gives them back: they may hold code that outlives this library. Null if there are none.
[[nodiscard]] void* takePages(std::size_t size);

// Makes code of what was written there; it can be run and no longer be written. False if the system
// does not allow that.
[[nodiscard]] bool makeRunnable(void* pages, std::size_t size);

// The function of the C library that has this name, at an address that holds even when this library
// is unloaded; null if there is none.
[[nodiscard]] const void* functionOfCLibrary(const char* name);

}  // namespace brennet::platform
