#include "model/KeyConflicts.h"

namespace brennet {
namespace {

// Virtual keys that edit or close a capture field and cannot be chosen there.
constexpr std::uint8_t kBackspace = 0x08;
constexpr std::uint8_t kEnter = 0x0D;
constexpr std::uint8_t kDelete = 0x2E;

constexpr KeyWord HotkeyScheme::*kSingleKeys[] = {
    &HotkeyScheme::ShowFBlood,   &HotkeyScheme::ShowEBlood,   &HotkeyScheme::HotkeyContrl,
    &HotkeyScheme::WinLockMouse, &HotkeyScheme::QuickChatKey, &HotkeyScheme::ChatWheelkey,
};

bool canBeBound(KeyWord key) {
  const std::uint8_t vk = key.virtualKey();
  return key.isSet() && vk != kBackspace && vk != kDelete && vk != kEnter;
}

// Looks at all of the few keys instead of stopping at the first: no branches, and the compiler
// compares several at a time.
template <class Keys, class Predicate>
bool anyOf(const Keys& keys, Predicate predicate) {
  bool any = false;
  for (const auto& key : keys) any |= predicate(key);
  return any;
}

}  // namespace

bool isKeyFree(const HotkeyScheme& scheme, KeyWord key) {
  if (!canBeBound(key)) return false;
  const auto same = [key](KeyWord other) { return other.sameKey(key); };
  return !(anyOf(scheme.HeroSkillKey, same) || anyOf(scheme.ItemKey, same) ||
           anyOf(scheme.HotKey, [&](const KeyRemap& remap) { return same(remap.Dest); }) ||
           same(scheme.ComboKey.Key_D) || anyOf(scheme.SecretaryKey, same) ||
           anyOf(kSingleKeys, [&](auto member) { return same(scheme.*member); }));
}

bool isItemPresetKey(const HotkeyScheme& scheme, KeyWord key) {
  const ItemPreset* preset = chosenItemPreset(scheme);
  return preset != nullptr && anyOf(*preset, [key](KeyWord other) { return other.sameKey(key); });
}

bool isQuickChatKey(const HotkeyScheme& scheme, KeyWord key) {
  return anyOf(chosenQuickChatKeys(scheme), [key](KeyWord other) { return other.sameKey(key); });
}

bool isKeyAssignable(const HotkeyScheme& scheme, KeyWord key) {
  return isKeyFree(scheme, key) && !isItemPresetKey(scheme, key) && !isQuickChatKey(scheme, key);
}

bool isKeyUsed(const HotkeyScheme& scheme, std::uint8_t vk) {
  const auto uses = [vk](KeyWord key) { return key.isSet() && key.virtualKey() == vk; };
  const ItemPreset* preset = chosenItemPreset(scheme);
  return anyOf(scheme.HeroSkillKey, uses) ||
         anyOf(preset != nullptr ? *preset : scheme.ItemKey, uses) ||
         anyOf(scheme.HotKey,
               [&](const KeyRemap& remap) { return remap.Dest.isSet() && uses(remap.Src); }) ||
         uses(scheme.ComboKey.Key_D) || anyOf(scheme.MouseKey, uses) ||
         anyOf(scheme.SecretaryKey, uses) ||
         anyOf(kSingleKeys, [&](auto member) { return uses(scheme.*member); });
}

const ItemPreset* chosenItemPreset(const HotkeyScheme& scheme) {
  const std::int32_t preset = scheme.NumComboKeyIndex;
  if (preset < 0 || preset >= kItemPresets) return nullptr;
  return &kItemPresetKeys[static_cast<std::size_t>(preset)];
}

const QuickChatKeySet& chosenQuickChatKeys(const HotkeyScheme& scheme) {
  return kQuickChatKeySets[scheme.QuickChatIndex == 0 ? 0 : 1];
}

}  // namespace brennet
