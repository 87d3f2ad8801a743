#include "platform/Paths.h"

namespace brennet::platform {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool isLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

// The code point that starts at `at`; moves `at` past it.
char32_t nextCodePoint(std::u16string_view text, std::size_t& at) {
  const char16_t unit = text[at++];
  if (!isHighSurrogate(unit) && !isLowSurrogate(unit)) return unit;
  if (isLowSurrogate(unit) || at == text.size() || !isLowSurrogate(text[at])) return kReplacement;
  return 0x10000 + ((static_cast<char32_t>(unit) - 0xD800) << 10U) +
         (static_cast<char32_t>(text[at++]) - 0xDC00);
}

void appendUtf8(std::string& bytes, char32_t codePoint) {
  const auto append = [&](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
  if (codePoint < 0x80) return append(codePoint);
  if (codePoint < 0x800) {
    append(0xC0 | codePoint >> 6U);
  } else if (codePoint < 0x10000) {
    append(0xE0 | codePoint >> 12U);
    append(0x80 | (codePoint >> 6U & 0x3FU));
  } else {
    append(0xF0 | codePoint >> 18U);
    append(0x80 | (codePoint >> 12U & 0x3FU));
    append(0x80 | (codePoint >> 6U & 0x3FU));
  }
  append(0x80 | (codePoint & 0x3FU));
}

}  // namespace

Path pathFromUtf16(std::u16string_view name) {
  std::string bytes;
  bytes.reserve(name.size());
  for (std::size_t at = 0; at < name.size();) appendUtf8(bytes, nextCodePoint(name, at));
  return {bytes};
}

Path pathFromNarrow(std::string_view name) {
  return {std::string(name)};
}

}  // namespace brennet::platform
