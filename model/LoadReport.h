#pragma once

#include <optional>
#include <string>
#include <vector>

#include "markup/text/TextPosition.h"
#include "model/KeyConflicts.h"
#include "model/KeySlot.h"

namespace brennet {

// A key of a settings file that the load could not use: its slot has no key, though the file names
// one there.
struct DroppedKey {
  int scheme = 0;  // 0 to 2
  // What has no key now. For a refused remap it is the destination, for a combination key D; all
  // its keys are gone then.
  KeySlot slot{};
  SettingId element = SettingId::HeroSkillKey;  // as slot.setting, or ComboKey3to1 for ComboKey
  KeyWord key;                                  // as it was understood
  std::u16string text;                          // as the file has it
  // Why the scheme refused it, in the state in which the load left it; nothing if the text is
  // damaged: it is not a number of 16 bits, so no key can be made of it.
  std::optional<KeyConflict> conflict;
  TextPosition position;  // of the element that holds the text, in the text of the file

  friend bool operator==(const DroppedKey&, const DroppedKey&) = default;
};

// A choice of keys that the load could not make: the item preset, or the quick-chat keys. The
// choice is then the default.
struct DroppedChoice {
  int scheme = 0;  // 0 to 2
  SettingId setting = SettingId::NumComboKeyIndex;
  std::u16string text;  // as the file has it
  // Which of its keys were taken, and by what, when the file named it; empty if there is no such
  // choice.
  std::vector<TakenKey> taken;

  friend bool operator==(const DroppedChoice&, const DroppedChoice&) = default;
};

// What a load reports besides its result. Empty if it failed.
struct LoadReport {
  // Each scheme by scheme, in the order of the file.
  std::vector<DroppedKey> droppedKeys;
  std::vector<DroppedChoice> droppedChoices;
};

}  // namespace brennet
