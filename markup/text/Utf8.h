#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace brennet {

// The number of bytes that `text` takes in UTF-8; unpaired surrogates count as U+FFFD.
[[nodiscard]] std::size_t utf8Length(std::u16string_view text);

// Writes as many whole characters of `text` as fit into `out` and returns the number of bytes
// written; unpaired surrogates are written as U+FFFD. Bytes of `out` behind those may have been
// written to as well. Never allocates.
std::size_t utf16ToUtf8(std::u16string_view text, std::span<char> out);

// `text` in UTF-8, with U+FFFD for unpaired surrogates.
[[nodiscard]] std::string utf8Of(std::u16string_view text);

// Appends `bytes`, read as UTF-8, to `out`. Strict: overlong forms, surrogates and values above
// U+10FFFF are errors. Each maximal part that cannot begin a character becomes U+FFFD.
void utf8ToUtf16(std::string_view bytes, std::u16string& out);

// What is at one place of a text in UTF-8.
struct Utf8Character {
  enum class State {
    Good,
    Bad,     // not a character: the bytes before the one that makes it invalid
    CutOff,  // the beginning of a character that the end of the text cuts off
  };
  State state;
  std::size_t bytes;   // 1 to 4
  char32_t codePoint;  // U+FFFD unless the state is Good
};

// The character at the front of `bytes`, which must not be empty.
[[nodiscard]] Utf8Character firstUtf8Character(std::string_view bytes);

// The length of `bytes` without a character that the end cuts off.
[[nodiscard]] std::size_t wholeUtf8Length(std::string_view bytes);

}  // namespace brennet
