#pragma once

// sketch
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace brennet {

// Number of bytes that `text` takes in UTF-8; unpaired surrogates count as U+FFFD.
std::size_t utf8Length(std::u16string_view text);

// Writes as many whole characters of `text` as fit into `out`; returns the number of bytes written. Never allocates.
std::size_t utf16ToUtf8(std::u16string_view text, std::span<char> out);

// Strict; each maximal bad part becomes U+FFFD. Appends.
void utf8ToUtf16(std::string_view bytes, std::u16string& out);

}  // namespace brennet
