#pragma once

#include <cstdint>
#include <string>

namespace brennet {

// One hotkey section of the game's preference file: the key of one command-card or inventory
// position.
struct War3HotkeySection {
  static constexpr std::int32_t kCommandCard = 1;
  static constexpr std::int32_t kInventory = 2;

  std::int32_t kind = kCommandCard;
  std::int32_t first = 0;         // row: 0-2
  std::int32_t second = 0;        // column: 0-3 of the command card, 0-1 of the inventory
  std::int32_t metaKeyState = 0;  // modifiers: 1 Shift, 2 Ctrl, 4 Alt
  bool heroOnly = false;          // the key works for heroes only
  bool quickCast = false;         // the key casts at once, without a click on the target
  std::int32_t hotkey = 0;        // Windows virtual-key code, 0: no key

  friend bool operator==(const War3HotkeySection&, const War3HotkeySection&) = default;
};

// The name between the brackets, for example "Commandbar Hotkeys 21" or "Inventory Hotkeys 3".
// Empty for a kind that the game does not know. Positions that the game does not have give other
// numbers, nothing worse.
[[nodiscard]] std::string sectionName(const War3HotkeySection& section);

// The section as in the file, including its closing blank line; line ends are LF.
[[nodiscard]] std::string sectionText(const War3HotkeySection& section);

}  // namespace brennet
