#include "model/KeyConflicts.h"

#include <algorithm>
#include <span>
#include <utility>

namespace brennet {
namespace {

// Virtual keys that edit or close a capture field and cannot be chosen there.
constexpr std::uint8_t kBackspace = 0x08;
constexpr std::uint8_t kEnter = 0x0D;
constexpr std::uint8_t kDelete = 0x2E;

struct SingleKey {
  SettingId setting;
  KeyWord HotkeyScheme::*key;
};
constexpr SingleKey kSingleKeys[] = {
    {SettingId::ShowFBlood, &HotkeyScheme::ShowFBlood},
    {SettingId::ShowEBlood, &HotkeyScheme::ShowEBlood},
    {SettingId::HotkeyContrl, &HotkeyScheme::HotkeyContrl},
    {SettingId::WinLockMouse, &HotkeyScheme::WinLockMouse},
    {SettingId::QuickChatKey, &HotkeyScheme::QuickChatKey},
    {SettingId::ChatWheelkey, &HotkeyScheme::ChatWheelkey},
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

// The keys that no other setting may have, group by group: calls `look` with the slot of the first
// key, the distance of the slots, the group, and the way from one of its elements to the key.
template <class Look>
void lookAtGuardedKeys(const HotkeyScheme& scheme, Look look) {
  constexpr auto itself = [](KeyWord key) { return key; };
  constexpr auto sent = [](const KeyRemap& remap) { return remap.Dest; };
  look(KeySlot{SettingId::HeroSkillKey}, 1, scheme.HeroSkillKey, itself);
  look(KeySlot{SettingId::ItemKey}, 1, scheme.ItemKey, itself);
  look(remapDestination(0), 2, scheme.HotKey, sent);
  look(kComboTarget, 1, std::span(&scheme.ComboKey.Key_D, 1), itself);
  look(KeySlot{SettingId::SecretaryKey}, 1, scheme.SecretaryKey, itself);
  for (const SingleKey& single : kSingleKeys) {
    look(KeySlot{single.setting}, 1, std::span(&(scheme.*single.key), 1), itself);
  }
}

// The place of `key` among `keys`, a fixed set; nothing when it is none of them.
template <class Keys>
std::optional<std::uint8_t> placeAmong(const Keys& keys, KeyWord key) {
  const auto found =
      std::find_if(keys.begin(), keys.end(), [key](KeyWord one) { return one.sameKey(key); });
  if (found == keys.end()) return std::nullopt;
  return static_cast<std::uint8_t>(found - keys.begin());
}

// Why `key` is not assignable; nothing when it is.
std::optional<KeyConflict> conflictOfNew(const HotkeyScheme& scheme, KeyWord key) {
  using Reason = KeyConflict::Reason;
  if (!canBeBound(key)) return KeyConflict{Reason::CannotBeBound};
  if (const auto holder = holderOf(scheme, key)) return KeyConflict{Reason::Held, *holder};
  if (const ItemPreset* preset = chosenItemPreset(scheme)) {
    if (const auto place = placeAmong(*preset, key)) {
      return KeyConflict{Reason::ItemPresetKey,
                         {SettingId::NumComboKeyIndex, *place},
                         static_cast<std::uint8_t>(scheme.NumComboKeyIndex)};
    }
  }
  if (const auto place = placeAmong(chosenQuickChatKeys(scheme), key)) {
    return KeyConflict{Reason::QuickChatSetKey,
                       {SettingId::QuickChatIndex, *place},
                       static_cast<std::uint8_t>(scheme.QuickChatIndex == 0 ? 0 : 1)};
  }
  return std::nullopt;
}

}  // namespace

bool isKeyFree(const HotkeyScheme& scheme, KeyWord key) {
  if (!canBeBound(key)) return false;
  bool taken = false;
  lookAtGuardedKeys(scheme, [&](KeySlot, int, const auto& keys, auto keyOf) {
    taken = taken || anyOf(keys, [&](const auto& one) { return keyOf(one).sameKey(key); });
  });
  return !taken;
}

std::optional<KeySlot> holderOf(const HotkeyScheme& scheme, KeyWord key) {
  std::optional<KeySlot> holder;
  if (!key.isSet()) return holder;
  lookAtGuardedKeys(scheme, [&](KeySlot slot, int step, const auto& keys, auto keyOf) {
    for (const auto& one : keys) {
      if (!holder && keyOf(one).sameKey(key)) holder = slot;
      slot.index = static_cast<std::uint8_t>(slot.index + step);
    }
  });
  return holder;
}

std::optional<KeyConflict> conflictOf(const HotkeyScheme& scheme, KeySlot slot, KeyWord key) {
  const bool isPressed = slot.setting == SettingId::HotKey && slot.index % 2 == 0;
  if (isPressed || slot.index >= keyCount(slot.setting)) return std::nullopt;
  const bool isCombo =
      slot.setting == SettingId::ComboKey || slot.setting == SettingId::ComboKey3to1;
  if (isCombo) {
    ComboKeys keys = scheme.ComboKey;
    keys.*kComboKeys[slot.index] = key;
    return conflictOf(scheme, keys);
  }
  if (keyAt(scheme, slot).sameKey(key)) return std::nullopt;
  return conflictOfNew(scheme, key);
}

std::optional<KeyConflict> conflictOf(const HotkeyScheme& scheme, const ComboKeys& keys) {
  const auto isFreeAndSent = [&](KeyWord pressed) {
    return pressed.sameKey(keys.Key_D) && isKeyFree(scheme, pressed);
  };
  for (const auto& [pressed, index] : {std::pair{keys.Key_B, 1}, std::pair{keys.Key_C, 2}}) {
    if (!isFreeAndSent(pressed)) continue;
    return KeyConflict{KeyConflict::Reason::SentByItself,
                       {SettingId::ComboKey, static_cast<std::uint8_t>(index)}};
  }
  if (scheme.ComboKey.Key_D.sameKey(keys.Key_D)) return std::nullopt;
  return conflictOfNew(scheme, keys.Key_D);
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
         anyOf(kSingleKeys, [&](const SingleKey& single) { return uses(scheme.*single.key); });
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
