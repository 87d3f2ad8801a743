#include "model/KeySlot.h"

#include <iterator>
#include <variant>

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

}  // namespace

std::size_t keyCount(SettingId setting) {
  return std::visit(CountKeys(), brennet::setting(setting).kind);
}

KeyWord* keyField(HotkeyScheme& scheme, KeySlot slot) {
  if (slot.index >= keyCount(slot.setting)) return nullptr;
  return std::visit(FieldOf{scheme, slot.index}, setting(slot.setting).kind);
}

KeyWord keyAt(const HotkeyScheme& scheme, KeySlot slot) {
  // Nothing is changed: the key is only looked up.
  const KeyWord* const key = keyField(const_cast<HotkeyScheme&>(scheme), slot);
  return key != nullptr ? *key : kNoKey;
}

void storeKey(HotkeyScheme& scheme, KeySlot slot, KeyWord key) {
  if (KeyWord* const field = keyField(scheme, slot)) *field = key;
}

}  // namespace brennet
