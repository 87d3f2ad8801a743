#include "tests/markup/text/NaiveDecoding.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace brennet::test {
namespace {

using namespace std::string_view_literals;

constexpr char32_t kBad = 0xFFFD;

std::uint8_t byteAt(std::string_view bytes, std::size_t at) {
  return static_cast<std::uint8_t>(bytes[at]);
}

// Zero units are left out.
void append(char32_t character, std::u16string& text) {
  if (character >= 0x10000) {
    text += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10U));
    text += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FFU));
  } else if (character != 0) {
    text += static_cast<char16_t>(character);
  }
}

// The well-formed sequences of UTF-8, as the Unicode standard lists them (table 3-7): the ranges of
// the first and the second byte, and the number of bytes. All further bytes are 80 to BF.
struct Sequence {
  std::uint8_t first, firstLast, second, secondLast;
  std::size_t length;
};
constexpr Sequence kSequences[] = {
    {0x00, 0x7F, 0x00, 0x00, 1}, {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3},
    {0xE1, 0xEC, 0x80, 0xBF, 3}, {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3},
    {0xF0, 0xF0, 0x90, 0xBF, 4}, {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4},
};

struct Read {
  std::size_t length;  // bytes that belong together
  bool isWhole;
};

Read firstOf(std::string_view bytes) {
  for (const Sequence& sequence : kSequences) {
    if (byteAt(bytes, 0) < sequence.first || byteAt(bytes, 0) > sequence.firstLast) continue;
    std::size_t length = 1;
    while (length < sequence.length && length < bytes.size()) {
      const std::uint8_t low = length == 1 ? sequence.second : std::uint8_t{0x80};
      const std::uint8_t high = length == 1 ? sequence.secondLast : std::uint8_t{0xBF};
      if (byteAt(bytes, length) < low || byteAt(bytes, length) > high) break;
      ++length;
    }
    return {length, length == sequence.length};
  }
  return {1, false};
}

char32_t valueOf(std::string_view sequence) {
  constexpr unsigned kBitsOfFirst[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  char32_t value = byteAt(sequence, 0) & kBitsOfFirst[sequence.size()];
  for (std::size_t i = 1; i < sequence.size(); ++i) {
    value = value << 6U | (byteAt(sequence, i) & 0x3FU);
  }
  return value;
}

// Nothing if `mustBeWhole` and a sequence is not whole, unless the end cuts it off.
std::optional<std::u16string> fromUtf8(std::string_view bytes, bool mustBeWhole) {
  std::u16string text;
  while (!bytes.empty()) {
    const Read read = firstOf(bytes);
    const bool isCutOff =
        read.length == bytes.size() && byteAt(bytes, 0) >= 0xC2 && byteAt(bytes, 0) <= 0xF4;
    if (mustBeWhole && !read.isWhole && !isCutOff) return std::nullopt;
    append(read.isWhole ? valueOf(bytes.substr(0, read.length)) : kBad, text);
    bytes.remove_prefix(read.length);
  }
  return text;
}

char32_t unitOf(std::string_view bytes, bool isBigEndian) {
  char32_t unit = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    unit = unit << 8U | byteAt(bytes, isBigEndian ? i : bytes.size() - 1 - i);
  }
  return unit;
}

// Units of two bytes are taken as they are, even surrogates without their other half.
std::u16string fromUnits(std::string_view bytes, std::size_t size, bool isBigEndian) {
  std::u16string text;
  for (; bytes.size() >= size; bytes.remove_prefix(size)) {
    const char32_t unit = unitOf(bytes.substr(0, size), isBigEndian);
    const bool isCharacter = unit < 0xD800 || (unit > 0xDFFF && unit <= 0x10FFFF);
    append(size == 2 || isCharacter ? unit : kBad, text);
  }
  if (!bytes.empty()) append(kBad, text);
  return text;
}

bool isAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) == 0; });
}

}  // namespace

std::optional<std::u16string> decodedNaively(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF"sv)) {
    // Bytes that zeros separate may belong together.
    if (bytes.find('\0') != std::string_view::npos && !isAscii(bytes.substr(3)))
      return std::nullopt;
    return fromUtf8(bytes.substr(3), false);
  }
  if (bytes.starts_with("\xFF\xFE\0\0"sv)) return fromUnits(bytes.substr(4), 4, false);
  if (bytes.starts_with("\0\0\xFE\xFF"sv)) return fromUnits(bytes.substr(4), 4, true);
  if (bytes.starts_with("\xFF\xFE"sv)) return fromUnits(bytes.substr(2), 2, false);
  if (bytes.starts_with("\xFE\xFF"sv)) return fromUnits(bytes.substr(2), 2, true);
  // Zeros may mean UTF-16 without a mark, and a declaration may name another encoding.
  if (bytes.find('\0') != std::string_view::npos) return std::nullopt;
  const bool mayDeclare = bytes.find('<') != std::string_view::npos;
  if (mayDeclare && !isAscii(bytes)) return std::nullopt;
  return fromUtf8(bytes, true);
}

}  // namespace brennet::test
