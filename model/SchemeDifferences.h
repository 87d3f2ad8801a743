#pragma once

#include <cstdint>
#include <vector>

#include "model/HotkeyScheme.h"
#include "model/SettingTable.h"

namespace brennet {

// One value of a scheme: a key, a quick-cast mark, a switch, a choice or a phrase.
struct SettingPart {
  SettingId setting = SettingId::HeroSkillKey;
  // Which of several: for keys as in KeySlot, for quick-cast marks that of their key, for phrases
  // their number from 0.
  std::uint8_t index = 0;
  bool isQuickCast = false;  // the mark of the key, not the key

  friend constexpr bool operator==(const SettingPart&, const SettingPart&) = default;
};

// Every value that a scheme has, in the order of the settings. ComboKey3to1, which is ComboKey once
// more, is left out. Throws std::bad_alloc.
[[nodiscard]] std::vector<SettingPart> partsOfScheme();

// The values in which the two schemes differ for a player, in the order of the settings. A mark or
// a phrase that was never set is as good as one that is off or empty. Throws std::bad_alloc.
[[nodiscard]] std::vector<SettingPart> differencesOf(const HotkeyScheme& before,
                                                     const HotkeyScheme& after);

// Whether the two schemes differ in that value.
[[nodiscard]] bool differsIn(SettingPart part, const HotkeyScheme& before,
                             const HotkeyScheme& after);

}  // namespace brennet
