#include "model/KeyConflicts.h"

#include <algorithm>
#include <functional>
#include <span>
#include <type_traits>
#include <utility>

#include "model/SettingTable.h"

namespace brennet {
namespace {

// Virtual keys that edit or close a capture field and cannot be chosen there.
constexpr std::uint8_t kBackspace = 0x08;
constexpr std::uint8_t kEnter = 0x0D;
constexpr std::uint8_t kDelete = 0x2E;

bool canBeBound(KeyWord key) {
  const std::uint8_t vk = key.virtualKey();
  return key.isSet() && vk != kBackspace && vk != kDelete && vk != kEnter;
}

// Looks at all of the few keys instead of stopping at a match: without branches, the compiler
// compares several at a time.
template <class Keys, class Predicate>
bool anyOf(const Keys& keys, Predicate predicate) {
  bool any = false;
  for (const auto& key : keys) any |= predicate(key);
  return any;
}

// The keys of a row, as many as the compiler can see.
template <SettingId Id>
auto keysOf(const HotkeyScheme& scheme) {
  constexpr std::size_t kCount = kKindOf<Id>.ids.size();
  return std::span<const KeyWord, kCount>(kKindOf<Id>.keysOf(scheme));
}

// For each row of keys that no other setting may have, calls `look` with the slot of the first key,
// the distance from one slot to the next, the elements with the keys, and a function that returns
// the key of an element.
template <class Look>
void lookAtGuardedKeys(const HotkeyScheme& scheme, Look look) {
  constexpr auto sent = [](const KeyRemap& remap) { return remap.Dest; };
  forEachSetting([&](auto id) {
    if constexpr (setting(id).role == KeyRole::Guarded) {
      constexpr const auto& row = kKindOf<id>;
      using Row = std::remove_cvref_t<decltype(row)>;
      if constexpr (std::is_same_v<Row, KeyListSetting>) {
        look(KeySlot{id}, 1, keysOf<id>(scheme), std::identity());
      } else if constexpr (std::is_same_v<Row, RemapSetting>) {
        look(remapDestination(0), 2, scheme.*row.field, sent);
      } else if constexpr (std::is_same_v<Row, ComboSetting>) {
        look(kComboTarget, 1, std::span<const KeyWord, 1>(&(scheme.*row.field).Key_D, 1),
             std::identity());
      } else {
        look(KeySlot{id}, 1, std::span<const KeyWord, 1>(&(scheme.*row.field), 1), std::identity());
      }
    }
  });
}

// Whether `uses` is true for any key of a row that the player can press.
template <SettingId Id, class Uses>
bool isPressed(const HotkeyScheme& scheme, Uses uses) {
  constexpr const auto& row = kKindOf<Id>;
  using Row = std::remove_cvref_t<decltype(row)>;
  if constexpr (std::is_same_v<Row, KeyListSetting>) {
    const ItemPreset* const preset = row.followsPreset ? chosenItemPreset(scheme) : nullptr;
    return preset != nullptr ? anyOf(*preset, uses) : anyOf(keysOf<Id>(scheme), uses);
  } else if constexpr (std::is_same_v<Row, RemapSetting>) {
    return anyOf(scheme.*row.field,
                 [&](const KeyRemap& remap) { return remap.Dest.isSet() && uses(remap.Src); });
  } else if constexpr (std::is_same_v<Row, ComboSetting>) {
    return uses((scheme.*row.field).Key_D);
  } else {
    return uses(scheme.*row.field);
  }
}

// The place of `key` in `keys`, a fixed set; nothing if it is not there.
template <class Keys>
std::optional<std::uint8_t> placeAmong(const Keys& keys, KeyWord key) {
  const auto found =
      std::find_if(keys.begin(), keys.end(), [key](KeyWord one) { return one.sameKey(key); });
  if (found == keys.end()) return std::nullopt;
  return static_cast<std::uint8_t>(found - keys.begin());
}

// Calls `visit` with each conflict that keeps `key` from being assignable.
template <class Visit>
void forEachHolder(const HotkeyScheme& scheme, KeyWord key, Visit visit) {
  using Reason = KeyConflict::Reason;
  if (!canBeBound(key)) return visit(KeyConflict{Reason::CannotBeBound});
  lookAtGuardedKeys(scheme, [&](KeySlot slot, int step, const auto& keys, auto keyOf) {
    for (const auto& one : keys) {
      if (keyOf(one).sameKey(key)) visit(KeyConflict{Reason::Held, slot});
      slot.index = static_cast<std::uint8_t>(slot.index + step);
    }
  });
  if (const ItemPreset* preset = chosenItemPreset(scheme)) {
    if (const auto place = placeAmong(*preset, key)) {
      visit(KeyConflict{Reason::ItemPresetKey,
                        {SettingId::NumComboKeyIndex, *place},
                        static_cast<std::uint8_t>(scheme.NumComboKeyIndex)});
    }
  }
  if (const auto place = placeAmong(chosenQuickChatKeys(scheme), key)) {
    visit(KeyConflict{Reason::QuickChatSetKey,
                      {SettingId::QuickChatIndex, *place},
                      static_cast<std::uint8_t>(scheme.QuickChatIndex == 0 ? 0 : 1)});
  }
}

// The keys of a set that are taken. Those of the set that this one would replace do not count.
template <class Keys>
std::vector<TakenKey> takenKeysOf(const HotkeyScheme& scheme, const Keys& keys,
                                  KeyConflict::Reason replaced) {
  std::vector<TakenKey> taken;
  for (const KeyWord key : keys) {
    forEachHolder(scheme, key, [&](const KeyConflict& conflict) {
      if (conflict.reason != replaced) taken.push_back({key, conflict});
    });
  }
  return taken;
}

// The first reason why `key` is not assignable; nothing if it is.
std::optional<KeyConflict> conflictOfNew(const HotkeyScheme& scheme, KeyWord key) {
  std::optional<KeyConflict> first;
  forEachHolder(scheme, key, [&](const KeyConflict& conflict) {
    if (!first) first = conflict;
  });
  return first;
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

std::vector<KeyConflict> holdersOf(const HotkeyScheme& scheme, KeyWord key) {
  std::vector<KeyConflict> holders;
  forEachHolder(scheme, key, [&](const KeyConflict& conflict) { holders.push_back(conflict); });
  return holders;
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

std::vector<TakenKey> takenKeysOfPreset(const HotkeyScheme& scheme, std::int32_t preset) {
  if (preset < 0 || preset >= kItemPresets) return {};
  return takenKeysOf(scheme, kItemPresetKeys[static_cast<std::size_t>(preset)],
                     KeyConflict::Reason::ItemPresetKey);
}

std::vector<TakenKey> takenQuickChatKeys(const HotkeyScheme& scheme, std::uint32_t set) {
  if (set >= kQuickChatKeySets.size()) return {};
  return takenKeysOf(scheme, kQuickChatKeySets[set], KeyConflict::Reason::QuickChatSetKey);
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
  bool isUsed = false;
  forEachSetting([&](auto id) {
    if constexpr (setting(id).role != KeyRole::None) {
      isUsed = isUsed || isPressed<id>(scheme, uses);
    }
  });
  return isUsed;
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
