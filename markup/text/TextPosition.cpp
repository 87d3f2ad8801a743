#include "markup/text/TextPosition.h"

#include <algorithm>

namespace brennet {
namespace {

bool isTrailSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

bool isLeadSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}

}  // namespace

TextPosition positionAt(std::u16string_view text, std::size_t offset) {
  TextPosition position;
  const std::size_t end = std::min(offset, text.size());
  for (std::size_t i = 0; i < end; ++i) {
    const char16_t unit = text[i];
    const char16_t next = i + 1 < text.size() ? text[i + 1] : u'\0';
    const bool endsLine = unit == u'\n' || (unit == u'\r' && next != u'\n');
    if (endsLine) {
      ++position.line;
      position.column = 1;
    } else if (!(isLeadSurrogate(unit) && isTrailSurrogate(next))) {
      ++position.column;
    }
  }
  return position;
}

}  // namespace brennet
