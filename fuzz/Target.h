#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "fuzz/grammar/Grammar.h"

namespace brennet::fuzz {

// What a fuzz target is made of, apart from the function that libFuzzer calls.

// Ends the program, which libFuzzer reports with the input, unless `holds`.
inline void require(bool holds) {
  if (!holds) std::abort();
}

inline std::string_view bytesOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// The grammar of the target's inputs. Defined by targets that are declared with GRAMMAR, which then
// get their inputs from it as well.
const Grammar& targetGrammar();

}  // namespace brennet::fuzz
