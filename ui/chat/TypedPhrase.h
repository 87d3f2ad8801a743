#pragma once

#include <string>

namespace brennet {

// The part of a typed or dropped phrase that is stored.
//
// A phrase has kPhraseUnits units. What is too long is cleared from there on, but only as many
// bytes as there are units too many: all longer texts end there, except one that is a single unit
// too long. Of that unit only the low byte is cleared, and it stays unless nothing is left of it.
// Players' files hold phrases that were cut in this way.
[[nodiscard]] std::u16string cutTypedPhrase(std::u16string text);

}  // namespace brennet
