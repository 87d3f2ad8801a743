#include "host/WideText.h"

#include <cstdint>
#include <string_view>

namespace brennet {
namespace {

void appendCodePoint(std::u16string& text, std::uint32_t codePoint) {
  if (codePoint > 0x10FFFF) codePoint = 0xFFFD;
  if (codePoint < 0x10000) {
    text.push_back(static_cast<char16_t>(codePoint));
    return;
  }
  const std::uint32_t offset = codePoint - 0x10000;
  text.push_back(static_cast<char16_t>(0xD800 + (offset >> 10U)));
  text.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FFU)));
}

}  // namespace

std::u16string fromWide(const wchar_t* text) {
  if (text == nullptr) return {};
  const std::wstring_view wide(text);
  if constexpr (sizeof(wchar_t) == sizeof(char16_t)) {
    return {wide.begin(), wide.end()};
  }
  std::u16string result;
  result.reserve(wide.size());
  for (const wchar_t unit : wide) appendCodePoint(result, static_cast<std::uint32_t>(unit));
  return result;
}

}  // namespace brennet
