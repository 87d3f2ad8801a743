#pragma once

#include <string>

namespace brennet {

// What is stored of a phrase that was typed or dropped into a field.
//
// A phrase has kPhraseUnits units. What is too long is cleared from there on, but byte by byte for
// as many bytes as there are units too many: all longer texts end there, except one that is a
// single unit too long. Of that unit the low byte alone is cleared, and it stays unless nothing is
// left of it. Players' files hold phrases that were cut in this way.
[[nodiscard]] std::u16string cutTypedPhrase(std::u16string text);

}  // namespace brennet
