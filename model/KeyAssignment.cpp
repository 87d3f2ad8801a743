#include "model/KeyAssignment.h"

#include <algorithm>

#include "model/KeyConflicts.h"

namespace brennet {

bool assignKey(const HotkeyScheme& scheme, KeyWord& field, KeyWord key) {
  if (field.sameKey(key)) return true;
  if (!isKeyAssignable(scheme, key)) return false;
  field = key;
  return true;
}

bool assignRemap(const HotkeyScheme& scheme, KeyRemap& field, const KeyRemap& remap) {
  if (!field.Dest.sameKey(remap.Dest) && !isKeyAssignable(scheme, remap.Dest)) return false;
  field = remap;
  return true;
}

bool assignCombo(HotkeyScheme& scheme, const ComboKeys& keys) {
  if (conflictOf(scheme, keys)) return false;
  scheme.ComboKey = keys;
  return true;
}

bool choosePreset(HotkeyScheme& scheme, std::int32_t preset) {
  if (preset < HotkeyScheme::kItemKeysFromMap || preset >= kItemPresets) return false;
  if (preset != HotkeyScheme::kItemKeysFromMap) {
    const ItemPreset& keys = kItemPresetKeys[static_cast<std::size_t>(preset)];
    const bool available = std::all_of(keys.begin(), keys.end(), [&](KeyWord key) {
      return isKeyFree(scheme, key) && !isQuickChatKey(scheme, key);
    });
    if (!available) return false;
  }
  scheme.NumComboKeyIndex = preset;
  return true;
}

bool chooseQuickChatKeys(HotkeyScheme& scheme, std::uint32_t set) {
  if (set >= kQuickChatKeySets.size()) return false;
  const QuickChatKeySet& keys = kQuickChatKeySets[set];
  const bool available = std::all_of(keys.begin(), keys.end(), [&](KeyWord key) {
    return isKeyFree(scheme, key) && !isItemPresetKey(scheme, key);
  });
  if (available) scheme.QuickChatIndex = set;
  return available;
}

}  // namespace brennet
