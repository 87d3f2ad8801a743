#include "model/HotkeyScheme.h"

#include <algorithm>

namespace brennet {

void fillAbsent(Phrases& phrases) {
  for (std::optional<std::u16string>& phrase : phrases) {
    if (!phrase) phrase.emplace();
  }
}

Phrases HotkeyScheme::emptyPhrases() {
  Phrases phrases;
  fillAbsent(phrases);
  return phrases;
}

std::optional<std::size_t> itemSlotIndex(int slotCode) {
  const auto slot = std::find(kItemSlotCodes.begin(), kItemSlotCodes.end(), slotCode);
  if (slot == kItemSlotCodes.end()) return std::nullopt;
  return static_cast<std::size_t>(slot - kItemSlotCodes.begin());
}

std::u16string_view cutPhrase(std::u16string_view text) {
  if (text.size() <= kPhraseUnits) return text;
  const char16_t last = text[kPhraseUnits - 1];
  const bool cutsPair = last >= 0xD800 && last < 0xDC00;
  return text.substr(0, cutsPair ? kPhraseUnits - 1 : kPhraseUnits);
}

}  // namespace brennet
