#pragma once

#include <cstddef>

namespace brennet::test {

// How many files and other objects of the system this process has open.
[[nodiscard]] std::size_t openHandles();

}  // namespace brennet::test
