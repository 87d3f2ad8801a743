#include "model/SchemeAssignment.h"

#include <utility>

#include "model/KeyAssignment.h"

namespace brennet {
namespace {

// The keys that an assignment copies behind the choice of an item preset.
constexpr KeyWord HotkeyScheme::*kCopiedAfterPreset[] = {
    &HotkeyScheme::ShowFBlood,   &HotkeyScheme::ShowEBlood,   &HotkeyScheme::HotkeyContrl,
    &HotkeyScheme::WinLockMouse, &HotkeyScheme::QuickChatKey,
};

}  // namespace

void assignScheme(HotkeyScheme& target, const HotkeyScheme& source) {
  HotkeyScheme result = source;
  fillAbsent(result.QuickChat);
  fillAbsent(result.ChatWheel);

  // What is copied behind a choice still has the target's value when the choice is checked.
  for (KeyWord HotkeyScheme::*key : kCopiedAfterPreset) result.*key = target.*key;
  result.ChatWheelkey = target.ChatWheelkey;
  result.QuickChatIndex = target.QuickChatIndex;
  result.NumComboKeyIndex = target.NumComboKeyIndex;
  choosePreset(result, source.NumComboKeyIndex);

  for (KeyWord HotkeyScheme::*key : kCopiedAfterPreset) result.*key = source.*key;
  chooseQuickChatKeys(result, source.QuickChatIndex);

  result.ChatWheelkey = source.ChatWheelkey;
  target = std::move(result);
}

}  // namespace brennet
