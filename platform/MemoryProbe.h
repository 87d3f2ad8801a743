#pragma once

#include <cstddef>

namespace brennet::platform {

// Whether this process may read and write the `size` bytes at `address`; true for no bytes.
// Never faults and leaves the bytes as they are. False where the system gives no means to ask.
[[nodiscard]] bool isWritable(void* address, std::size_t size);

}  // namespace brennet::platform
