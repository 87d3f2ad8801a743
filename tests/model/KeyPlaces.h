#pragma once

#include <functional>

#include "model/HotkeyScheme.h"
#include "model/KeySlot.h"

namespace brennet::test {

// A place of a scheme that a key can be put into, unchecked.
struct KeyPlace {
  const char* name;
  std::function<void(HotkeyScheme&, KeyWord)> put;
  KeySlot slot{};
};

// Places whose key nothing else may have.
inline const KeyPlace kGuardedPlaces[] = {
    {"first hero skill",
     [](HotkeyScheme& s, KeyWord k) { s.HeroSkillKey.front() = k; },
     {SettingId::HeroSkillKey, 0}},
    {"last hero skill",
     [](HotkeyScheme& s, KeyWord k) { s.HeroSkillKey.back() = k; },
     {SettingId::HeroSkillKey, 11}},
    {"first item",
     [](HotkeyScheme& s, KeyWord k) { s.ItemKey.front() = k; },
     {SettingId::ItemKey, 0}},
    {"last item",
     [](HotkeyScheme& s, KeyWord k) { s.ItemKey.back() = k; },
     {SettingId::ItemKey, 5}},
    {"remap destination",
     [](HotkeyScheme& s, KeyWord k) { s.HotKey.back().Dest = k; },
     {SettingId::HotKey, 11}},
    {"combination key D",
     [](HotkeyScheme& s, KeyWord k) { s.ComboKey.Key_D = k; },
     {SettingId::ComboKey, 3}},
    {"first Ledger key",
     [](HotkeyScheme& s, KeyWord k) { s.SecretaryKey.front() = k; },
     {SettingId::SecretaryKey, 0}},
    {"last Ledger key",
     [](HotkeyScheme& s, KeyWord k) { s.SecretaryKey.back() = k; },
     {SettingId::SecretaryKey, 2}},
    {"ShowFBlood", [](HotkeyScheme& s, KeyWord k) { s.ShowFBlood = k; }, {SettingId::ShowFBlood}},
    {"ShowEBlood", [](HotkeyScheme& s, KeyWord k) { s.ShowEBlood = k; }, {SettingId::ShowEBlood}},
    {"HotkeyContrl",
     [](HotkeyScheme& s, KeyWord k) { s.HotkeyContrl = k; },
     {SettingId::HotkeyContrl}},
    {"WinLockMouse",
     [](HotkeyScheme& s, KeyWord k) { s.WinLockMouse = k; },
     {SettingId::WinLockMouse}},
    {"QuickChatKey",
     [](HotkeyScheme& s, KeyWord k) { s.QuickChatKey = k; },
     {SettingId::QuickChatKey}},
    {"ChatWheelkey",
     [](HotkeyScheme& s, KeyWord k) { s.ChatWheelkey = k; },
     {SettingId::ChatWheelkey}},
};

// Places that may have a key of something else.
inline const KeyPlace kSharedPlaces[] = {
    {"mouse key", [](HotkeyScheme& s, KeyWord k) { s.MouseKey.front() = k; }},
    {"remap source", [](HotkeyScheme& s, KeyWord k) { s.HotKey.front().Src = k; }},
    {"combination key A", [](HotkeyScheme& s, KeyWord k) { s.ComboKey.Key_A = k; }},
    {"combination key B", [](HotkeyScheme& s, KeyWord k) { s.ComboKey.Key_B = k; }},
    {"combination key C", [](HotkeyScheme& s, KeyWord k) { s.ComboKey.Key_C = k; }},
};

}  // namespace brennet::test
