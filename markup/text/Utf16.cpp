#include "markup/text/Utf16.h"

#include <algorithm>

namespace brennet {

bool isWellFormedUtf16(std::u16string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    // Texts have few surrogates; a run without any is scanned in one plain loop.
    const std::u16string_view run = text.substr(at, 64);
    const auto surrogates =
        std::count_if(run.begin(), run.end(), [](char16_t unit) { return isSurrogate(unit); });
    const std::size_t end = at + run.size();
    if (surrogates == 0) at = end;
    while (at < end) {
      const Utf16Character character = characterAt(text, at);
      if (isSurrogate(character.codePoint)) return false;
      at += character.units;
    }
  }
  return true;
}

}  // namespace brennet
