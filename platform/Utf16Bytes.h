#pragma once

#include <string>
#include <string_view>

namespace brennet::platform {

// Appends UTF-16 text as bytes, the lower one of each unit first.
inline void appendUtf16Bytes(std::u16string_view text, std::string& bytes) {
  bytes.reserve(bytes.size() + 2 * text.size());
  for (const char16_t unit : text) {
    bytes.push_back(static_cast<char>(unit & 0xFFU));
    bytes.push_back(static_cast<char>(unit >> 8U));
  }
}

// The reverse. An odd byte at the end is ignored.
[[nodiscard]] inline std::u16string utf16FromBytes(std::string_view bytes) {
  std::u16string text;
  text.reserve(bytes.size() / 2);
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const auto low = static_cast<unsigned char>(bytes[at]);
    const auto high = static_cast<unsigned char>(bytes[at + 1]);
    text.push_back(static_cast<char16_t>(high << 8U | low));
  }
  return text;
}

}  // namespace brennet::platform
