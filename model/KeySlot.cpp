#include "model/KeySlot.h"

#include <iterator>
#include <variant>

#include "model/KeyAssignment.h"

namespace brennet {
namespace {

struct CountKeys {
  std::size_t operator()(const KeySetting&) const { return 1; }
  std::size_t operator()(const KeyListSetting& row) const { return row.ids.size(); }
  std::size_t operator()(const RemapSetting&) const { return std::size_t{2} * kKeyRemaps; }
  std::size_t operator()(const ComboSetting&) const { return std::size(kComboKeys); }
  template <class NoKeys>
  std::size_t operator()(const NoKeys&) const {
    return 0;
  }
};

bool exists(KeySlot slot) {
  return slot.index < keyCount(slot.setting);
}

// The member of `scheme` that an existing slot names.
struct FieldOf {
  HotkeyScheme& scheme;
  std::size_t index;

  KeyWord* operator()(const KeySetting& row) const { return &(scheme.*row.field); }
  KeyWord* operator()(const KeyListSetting& row) const { return &row.keys(scheme)[index]; }
  KeyWord* operator()(const RemapSetting&) const {
    KeyRemap& remap = scheme.HotKey[index / 2];
    return index % 2 == 0 ? &remap.Src : &remap.Dest;
  }
  KeyWord* operator()(const ComboSetting&) const { return &(scheme.ComboKey.*kComboKeys[index]); }
  template <class NoKeys>
  KeyWord* operator()(const NoKeys&) const {
    return nullptr;
  }
};

KeyWord& fieldOf(HotkeyScheme& scheme, KeySlot slot) {
  return *std::visit(FieldOf{scheme, slot.index}, setting(slot.setting).kind);
}

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
    return assignKey(scheme, fieldOf(scheme, slot), key);
  }
};

}  // namespace

std::size_t keyCount(SettingId setting) {
  return std::visit(CountKeys(), brennet::setting(setting).kind);
}

KeyWord keyAt(const HotkeyScheme& scheme, KeySlot slot) {
  // Nothing is changed: only a reference to the key is looked for.
  return exists(slot) ? fieldOf(const_cast<HotkeyScheme&>(scheme), slot) : kNoKey;
}

bool assignKey(HotkeyScheme& scheme, KeySlot slot, KeyWord key) {
  return exists(slot) && std::visit(AssignKey{scheme, slot, key}, setting(slot.setting).kind);
}

void storeKey(HotkeyScheme& scheme, KeySlot slot, KeyWord key) {
  if (exists(slot)) fieldOf(scheme, slot) = key;
}

}  // namespace brennet
