#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

#include "model/HotkeyScheme.h"

namespace brennet {

// The settings of a scheme, one row each: what it is called in the settings file, which member
// holds it, and where it stands in a HotkeyBlock. Reading and writing the file, filling a block and
// taking one back all walk these rows. A new setting is a member of HotkeyScheme, a row here and
// its place in the orders below.

// A switch, 0 or 1. In the block a bit of the flag word, or a byte of its own.
struct SwitchSetting {
  static constexpr std::uint8_t kWholeByte = 0xFF;

  std::uint8_t HotkeyScheme::*field;
  std::size_t offset;
  std::uint8_t mask;  // a bit of the byte at `offset`, or kWholeByte
};

// A number in one byte.
struct ByteSetting {
  std::uint8_t HotkeyScheme::*field;
  std::size_t offset;
};

// A single feature key.
struct KeySetting {
  KeyWord HotkeyScheme::*field;
  std::size_t offset;
};

// A row of keys, with quick-cast marks where the game can cast without a second click.
struct KeyListSetting {
  std::span<KeyWord> (*keys)(HotkeyScheme&);
  std::span<const std::uint16_t> ids;      // the `id` attribute of each key
  std::span<const std::uint16_t> offsets;  // where each key stands in the block
  std::span<std::optional<bool>> (*autocast)(HotkeyScheme&) = nullptr;
  bool followsPreset = false;  // a chosen item preset takes the place of the keys in the block

  // The same for a scheme that is only read; the accessors change nothing themselves.
  [[nodiscard]] std::span<const KeyWord> keysOf(const HotkeyScheme& scheme) const {
    return keys(const_cast<HotkeyScheme&>(scheme));
  }
  [[nodiscard]] std::span<const std::optional<bool>> autocastOf(const HotkeyScheme& scheme) const {
    return autocast(const_cast<HotkeyScheme&>(scheme));
  }
};

struct RemapSetting {
  std::size_t offset;
};

struct ComboSetting {
  std::size_t offset;
};

struct PresetSetting {};

struct QuickChatSetSetting {
  std::size_t offset;
};

struct PhraseSetting {
  Phrases HotkeyScheme::*field;
  std::size_t offset;
  std::size_t size;  // bytes of the area in the block
};

using SettingKind =
    std::variant<SwitchSetting, ByteSetting, KeySetting, KeyListSetting, RemapSetting, ComboSetting,
                 PresetSetting, QuickChatSetSetting, PhraseSetting>;

struct Setting {
  std::u16string_view element;
  SettingKind kind;
};

// In the order in which they are written to the settings file; the number of a row in kSettings.
enum class SettingId : std::uint8_t {
  ZoomValue,
  HeroSkillKey,
  ItemKey,
  MouseKey,
  SecretaryKey,
  DisableLWinFlag,
  LockMouseFlag,
  ShowFBloodFlag,
  ShowEBloodFlag,
  ShowFManaFlag,
  ViewNoDragFlag,
  StartJSQFlag,
  HotKey,
  ComboKey,
  ComboKey3to1,
  NumComboKeyIndex,
  ShowFBlood,
  ShowEBlood,
  HotkeyContrl,
  WinLockMouse,
  QuickChatKey,
  QuickChatIndex,
  ChatWheelkey,
  QuickChat,
  ChatWheel,
  HideUI,
  SkillHeroOnly,
  CombokeyHeroOnly,
  DisableLeftAlt,
  DisableLeftAltShowHP,
};

inline constexpr std::size_t kSettingCount =
    static_cast<std::size_t>(SettingId::DisableLeftAltShowHP) + 1;

[[nodiscard]] std::span<const Setting, kSettingCount> settings();
[[nodiscard]] const Setting& setting(SettingId id);

// The order in which a file is read: a key that is read earlier wins a conflict.
[[nodiscard]] std::span<const SettingId, kSettingCount> loadOrder();

// The settings that a HotkeyBlock carries, in the order in which a returned block is merged. The
// item preset is not among them: it shows in the item keys only.
[[nodiscard]] std::span<const SettingId> blockOrder();

}  // namespace brennet
