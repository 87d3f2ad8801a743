#pragma once

#include <string>

namespace brennet::check {

// What differs, on this thread, from the state that compilers and libraries rely on: exceptions
// masked, rounding to the nearest, at least 53 bits. Empty if nothing does, and on processors other
// than x86.
[[nodiscard]] std::string floatingPointFault();

}  // namespace brennet::check
