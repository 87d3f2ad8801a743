#pragma once

#include <optional>

#include "model/HotkeyConfig.h"
#include "ui/capture/EditControl.h"
#include "ui/capture/KeyCapture.h"

namespace brennet {

// A key of a scheme that a field edits.
struct KeySetting {
  enum class Kind {
    HeroSkill,         // number: position, from 0
    Item,              // number: the slot's code (FixedKeys.h)
    RemapSource,       // number: key remap, from 0
    RemapDestination,  // likewise
    Combo,             // number: combination key A, B, C or D, from 0
    Mouse,             // number: wheel up, click, down, from 0
    Ledger,            // number: Ledger key, from 0
    Single,            // `single`
  };

  Kind kind = Kind::Single;
  int number = 0;
  KeyWord HotkeyScheme::*single = nullptr;
};

// What the field of a basic page edits; nothing when its name selected nothing.
[[nodiscard]] std::optional<KeySetting> settingOf(const EditControl& control);

// The key that the current scheme has there; kNoKey where it has none.
[[nodiscard]] KeyWord keyOf(const HotkeyConfig& config, const KeySetting& setting);

// Stores in the current scheme what was captured for a field, whose setting may be none.
//
// No key is stored as it is. Another key is stored where it may be bound (KeyAssignment.h); else
// the setting has no key afterwards. Ctrl+V is a paste everywhere in the game's chat: it also takes
// the key of the chat wheel away. Returns whether the player is to be told that the key is used.
bool store(const Capture& capture, const std::optional<KeySetting>& setting, HotkeyConfig& config);

}  // namespace brennet
