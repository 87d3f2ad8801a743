#pragma once

#include <cstdint>
#include <string_view>

namespace brennet::platform {

inline constexpr std::uint64_t kChecksumOfNothing = 14695981039346656037ULL;

// FNV-1a. Tells whole bytes from damaged ones, and makes short names for long ones; it is no
// protection against forgery. `sum` is the checksum of the bytes before these.
[[nodiscard]] constexpr std::uint64_t checksum(std::string_view bytes,
                                               std::uint64_t sum = kChecksumOfNothing) {
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211ULL;
  return sum;
}

// Appends `sum` as 16 hexadecimal digits, the lowest first.
template <class Text>
void appendDigits(std::uint64_t sum, Text& text) {
  constexpr int kDigits = 16;
  for (int i = 0; i < kDigits; ++i, sum >>= 4U) text.push_back("0123456789abcdef"[sum & 15U]);
}

}  // namespace brennet::platform
