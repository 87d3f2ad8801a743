#pragma once

#include <cstddef>
#include <span>
#include <string_view>

// The system's own conversions of texts, which ours are measured beside: ICU's, or those of
// kernel32 under Windows. They return how much of `to` they have filled, and end the program if the
// text cannot be converted or does not fit.

namespace brennet::bench {

extern const char* const kSystemText;  // whose they are, as the report shows it

std::size_t decodeGb2312BySystem(std::string_view bytes, std::span<char16_t> to);
std::size_t encodeGb2312BySystem(std::u16string_view text, std::span<char> to);
std::size_t gb2312ToUtf8BySystem(std::string_view bytes, std::span<char> to);
std::size_t utf8BySystem(std::u16string_view text, std::span<char> to);

}  // namespace brennet::bench
