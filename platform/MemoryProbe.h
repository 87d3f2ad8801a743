#pragma once

#include <cstddef>

namespace brennet::platform {

enum class Writability {
  Writable,
  NotWritable,
  Unknown,  // the system could not find out just now
};

// Whether this process may read and write the `size` bytes at `address`; Writable if `size` is 0.
// Never faults, and leaves the bytes as they are.
[[nodiscard]] Writability probeMemory(void* address, std::size_t size);

// Whether this process may read the `size` bytes at `address`. Never faults. True as well if the
// system could not find out just now.
[[nodiscard]] bool isReadable(const void* address, std::size_t size);

}  // namespace brennet::platform
