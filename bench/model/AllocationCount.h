#pragma once

#include <cstddef>

namespace brennet::bench {

// How many times operator new was called in this program so far.
std::size_t allocationCount();

}  // namespace brennet::bench
