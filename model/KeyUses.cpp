#include "model/KeyUses.h"

#include "model/SettingTable.h"

namespace brennet {

std::vector<KeySlot> usesOf(const HotkeyScheme& scheme, KeyWord key) {
  std::vector<KeySlot> uses;
  if (!key.isSet()) return uses;
  for (std::size_t id = 0; id < kSettingCount; ++id) {
    KeySlot slot{static_cast<SettingId>(id)};
    if (slot.setting == SettingId::ComboKey3to1) continue;
    for (const std::size_t count = keyCount(slot.setting); slot.index < count; ++slot.index) {
      if (keyAt(scheme, slot).sameKey(key)) uses.push_back(slot);
    }
  }
  return uses;
}

}  // namespace brennet
