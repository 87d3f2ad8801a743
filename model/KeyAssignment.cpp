#include "model/KeyAssignment.h"

#include <algorithm>
#include <variant>

#include "model/KeyConflicts.h"

namespace brennet {
namespace {

// The checked change of one key of an existing slot.
struct AssignKey {
  HotkeyScheme& scheme;
  KeySlot slot;
  KeyWord key;

  bool operator()(const RemapSetting&) const {
    KeyRemap& field = scheme.HotKey[slot.index / 2U];
    KeyRemap remap = field;
    (slot.index % 2 == 0 ? remap.Src : remap.Dest) = key;
    return assignRemap(scheme, field, remap);
  }
  bool operator()(const ComboSetting&) const {
    ComboKeys keys = scheme.ComboKey;
    keys.*kComboKeys[slot.index] = key;
    return assignCombo(scheme, keys);
  }
  template <class PlainKeys>
  bool operator()(const PlainKeys&) const {
    return assignKey(scheme, *keyField(scheme, slot), key);
  }
};

}  // namespace

bool assignKey(const HotkeyScheme& scheme, KeyWord& field, KeyWord key) {
  if (field.sameKey(key)) return true;
  if (!isKeyAssignable(scheme, key)) return false;
  field = key;
  return true;
}

bool assignKey(HotkeyScheme& scheme, KeySlot slot, KeyWord key) {
  return keyField(scheme, slot) != nullptr &&
         std::visit(AssignKey{scheme, slot, key}, setting(slot.setting).kind);
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
