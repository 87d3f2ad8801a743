#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "model/HotkeyScheme.h"

// The kinds of settings that a scheme has. Each operation on a setting (reading and writing the
// file, filling a block and taking one back, copying) is written once for each kind.
//
// Kinds with keys say what a trace calls these (keyName in KeySlot.h): `keyNames` is one name, or
// several with | between them, which take turns; "%1" stands for the number of the turn, from 1.
namespace brennet {

// A switch, 0 or 1. In the block it is a bit of the flag word, or a byte of its own.
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
  std::string_view keyNames;
};

// A row of keys, with quick-cast marks where the game can cast without a second click.
struct KeyListSetting {
  std::span<KeyWord> (*keys)(HotkeyScheme&);
  std::string_view keyNames;
  std::span<const std::uint16_t> ids;           // the `id` attribute of each key
  std::span<const std::uint16_t> offsets = {};  // where each key is in the block, if they are
  std::span<std::optional<bool>> (*autocast)(HotkeyScheme&) = nullptr;
  bool followsPreset = false;  // a chosen item preset replaces the keys in the block

  // The same for a scheme that is only read; the accessors change nothing themselves.
  [[nodiscard]] constexpr std::span<const KeyWord> keysOf(const HotkeyScheme& scheme) const {
    return keys(const_cast<HotkeyScheme&>(scheme));
  }
  [[nodiscard]] constexpr std::span<const std::optional<bool>> autocastOf(
      const HotkeyScheme& scheme) const {
    return autocast(const_cast<HotkeyScheme&>(scheme));
  }
};

// Keys that are sent instead of others.
struct RemapSetting {
  std::array<KeyRemap, kKeyRemaps> HotkeyScheme::*field;
  std::size_t offset;
  std::string_view keyNames;
};

// The combination of keys.
struct ComboSetting {
  ComboKeys HotkeyScheme::*field;
  std::size_t offset;
  std::string_view keyNames;
};

// The choice of an item preset, which the block shows only as the item keys.
struct PresetSetting {
  std::int32_t HotkeyScheme::*field;
};

// The choice of a quick-chat key set.
struct QuickChatSetSetting {
  std::uint32_t HotkeyScheme::*field;
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

}  // namespace brennet
