#include "model/KeySlot.h"

#include <iterator>
#include <string_view>
#include <variant>
#include <vector>

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

// The names of the keys, as the row of the setting has them.
struct KeyNames {
  template <class Row>
  std::string_view operator()(const Row& row) const {
    if constexpr (requires { row.keyNames; }) {
      return row.keyNames;
    } else {
      return {};
    }
  }
};

std::vector<std::string_view> cutAtBars(std::string_view names) {
  std::vector<std::string_view> parts;
  for (std::size_t bar = names.find('|'); bar != std::string_view::npos; bar = names.find('|')) {
    parts.push_back(names.substr(0, bar));
    names.remove_prefix(bar + 1);
  }
  parts.push_back(names);
  return parts;
}

}  // namespace

std::string keyName(KeySlot slot) {
  if (slot.index >= keyCount(slot.setting)) return {};
  constexpr std::string_view kNumber = "%1";
  const auto names = cutAtBars(std::visit(KeyNames(), setting(slot.setting).kind));
  std::string name(names[slot.index % names.size()]);
  const std::size_t at = name.find(kNumber);
  if (at == std::string::npos) return name;
  return name.replace(at, kNumber.size(), std::to_string(slot.index / names.size() + 1));
}

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
