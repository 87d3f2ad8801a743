#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

#include "gameside/dota7/Dota7Values.h"
#include "keys/KeyWord.h"
#include "model/KeySlot.h"
#include "ui/keymap/MapKeys.h"

// What the keys do: the content of the window that shows them on a drawn keyboard. Plain values,
// made when the window is opened; texts are in the player's language.
namespace brennet {

// What a key is for. Each kind has its colour and its letters on the map.
enum class KeyKind : std::uint8_t {
  HeroSkill,
  Item,
  RemapPressed,  // another key is sent for it; the mouse wheel too
  RemapSent,     // it is sent for another one
  Option,        // options; in the DotA 7 mode orders and selections
  Chat,
  Orrery,
};
inline constexpr std::size_t kKeyKinds = 7;

// A key as it is pressed. Shift is a key here, not a modifier, as in all key fields; but settings
// files may have keys with Shift.
struct MapPress {
  MapCode code = 0;
  std::uint8_t modifiers = 0;  // of KeyWord

  friend bool operator==(const MapPress&, const MapPress&) = default;
};

// The press that is stored as `key`.
[[nodiscard]] constexpr MapPress pressOf(KeyWord key) {
  return {key.virtualKey(), key.modifiers()};
}

// The layer of the map that a press belongs to: its Ctrl and Alt.
[[nodiscard]] constexpr std::uint8_t layerOf(MapPress press) {
  return static_cast<std::uint8_t>(press.modifiers & (KeyWord::kCtrl | KeyWord::kAlt));
}

// Where a key is set: in a slot of the scheme (for keys of a choice its setting is the choice
// itself), or in a field of the DotA 7 pages.
using MapTarget = std::variant<KeySlot, const Dota7KeyField*>;

// One use of one key.
struct MapUse {
  MapPress press{};
  KeyKind kind = KeyKind::HeroSkill;
  QString tag{};    // the letters on the map, such as "S9"
  QString key{};    // "Alt + Q"
  QString what{};   // "Hero skill 9 (top row, first)"
  QString where{};  // the window where it is set
  MapTarget target{};
  // What the press sends instead, and the keys that have to be pressed together with it.
  std::optional<MapPress> sends{};
  std::vector<MapPress> together{};
  bool reacts = true;  // whether the game does something when it is pressed
};

// All uses, in the order of the settings.
using KeyMap = std::vector<MapUse>;

// The text of a press: "Alt + Q", "Wheel up".
[[nodiscard]] QString pressText(MapPress press);

// What a press would do in the game, a line for each step: "`: Remap 1: key to press → sends F1".
// Never empty: a key without a use is free, or can never have one.
[[nodiscard]] QString pressStory(const KeyMap& map, MapPress press);

// What a kind is called: "Hero skills".
[[nodiscard]] QString kindText(KeyKind kind, bool isDota7);

}  // namespace brennet
