#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace brennet {

inline constexpr char16_t kReplacementUnit = 0xFFFD;
inline constexpr char32_t kLastCodePoint = 0x10FFFF;

constexpr bool isSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDFFF;
}
constexpr bool isHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool isLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}
// Whether `codePoint` is a Unicode scalar value: a code point that stands for itself.
constexpr bool isScalarValue(char32_t codePoint) {
  return codePoint <= kLastCodePoint && !isSurrogate(codePoint);
}

// A code point read from UTF-16 text, and how many units it took there (1 or 2).
struct Utf16Character {
  char32_t codePoint;
  std::size_t units;
};

// The character at `at`, which must be inside `text`. An unpaired surrogate is returned as it is.
constexpr Utf16Character characterAt(std::u16string_view text, std::size_t at) {
  const char32_t unit = text[at];
  if (!isHighSurrogate(unit) || at + 1 == text.size() || !isLowSurrogate(text[at + 1])) {
    return {unit, 1};
  }
  return {0x10000 + ((unit - 0xD800) << 10U) + (text[at + 1] - 0xDC00U), 2};
}

// Writes the scalar value `codePoint` to `out`, which has room for two units. Returns how many
// units it took.
constexpr std::size_t writeCharacter(char32_t codePoint, char16_t* out) {
  if (codePoint < 0x10000) {
    out[0] = static_cast<char16_t>(codePoint);
    return 1;
  }
  out[0] = static_cast<char16_t>(0xD800 + ((codePoint - 0x10000) >> 10U));
  out[1] = static_cast<char16_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FFU));
  return 2;
}

// Whether every surrogate in `text` is part of a pair.
[[nodiscard]] bool isWellFormedUtf16(std::u16string_view text);

}  // namespace brennet
