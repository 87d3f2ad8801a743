#include "model/HotkeyScheme.h"

#include <algorithm>
#include <utility>

#include "model/KeyAssignment.h"

namespace brennet {
namespace {

// The keys that an assignment copies behind the choice of an item preset.
constexpr KeyWord HotkeyScheme::*kCopiedAfterPreset[] = {
    &HotkeyScheme::ShowFBlood,   &HotkeyScheme::ShowEBlood,   &HotkeyScheme::HotkeyContrl,
    &HotkeyScheme::WinLockMouse, &HotkeyScheme::QuickChatKey,
};

void fillAbsent(Phrases& phrases) {
  for (std::optional<std::u16string>& phrase : phrases) {
    if (!phrase) phrase.emplace();
  }
}

}  // namespace

void HotkeyScheme::reset() {
  HotkeyScheme fresh;
  fresh.QuickChat = std::move(QuickChat);
  fresh.HeroSkillAutocast = HeroSkillAutocast;
  fresh.ItemAutocast = ItemAutocast;
  fresh.DisableLeftAlt = DisableLeftAlt;
  fresh.DisableLeftAltShowHP = DisableLeftAltShowHP;
  *this = std::move(fresh);
}

void HotkeyScheme::assign(const HotkeyScheme& source) {
  HotkeyScheme result = source;
  fillAbsent(result.QuickChat);
  fillAbsent(result.ChatWheel);

  // What is copied behind a choice still has this scheme's value when the choice is checked.
  for (KeyWord HotkeyScheme::*key : kCopiedAfterPreset) result.*key = this->*key;
  result.ChatWheelkey = ChatWheelkey;
  result.QuickChatIndex = QuickChatIndex;
  result.NumComboKeyIndex = NumComboKeyIndex;
  choosePreset(result, source.NumComboKeyIndex);

  for (KeyWord HotkeyScheme::*key : kCopiedAfterPreset) result.*key = source.*key;
  chooseQuickChatKeys(result, source.QuickChatIndex);

  result.ChatWheelkey = source.ChatWheelkey;
  *this = std::move(result);
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
