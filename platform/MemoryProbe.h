#pragma once

#include <cstddef>

namespace brennet::platform {

enum class Writability {
  Writable,
  NotWritable,
  Unknown,  // the system gave no means to find out just now
};

// Whether this process may read and write the `size` bytes at `address`; Writable for no bytes.
// Never faults and leaves the bytes as they are.
[[nodiscard]] Writability probeMemory(void* address, std::size_t size);

}  // namespace brennet::platform
