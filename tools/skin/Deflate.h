#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace brennet::skin {

// A zlib stream of the bytes. It is made here, because compression libraries differ in what they
// make of the same bytes.
[[nodiscard]] std::string compress(const std::vector<std::uint8_t>& bytes);

}  // namespace brennet::skin
