#include "ui/chat/TypedPhrase.h"

#include "model/HotkeyScheme.h"

namespace brennet {

std::u16string cutTypedPhrase(std::u16string text) {
  if (text.size() <= kPhraseUnits) return text;
  const bool isOneTooLong = text.size() == kPhraseUnits + 1;
  const auto rest = static_cast<char16_t>(text[kPhraseUnits] & 0xFF00);
  text.resize(kPhraseUnits);
  if (isOneTooLong && rest != 0) text += rest;
  return text;
}

}  // namespace brennet
