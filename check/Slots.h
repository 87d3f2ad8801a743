#pragma once

#include <array>
#include <cstddef>

namespace brennet::check {

// The operations of IBrennet, by the numbers of their slots.
enum class Slot {
  LoadSettings,
  SetDataFolder,
  ShowSettingsDialog,
  FillHotkeyBlock,
  GetDisableLWinFlag,
  GetLastSaveTime,
  SetEnabled,
  GetViewNoDragFlag,
  IsCapsLockUsed,
  IsShiftUsed,
  ApplyHotkeyBlock,
  GetStartJSQFlag,
};

struct SlotFacts {
  const char* name;
  // Bytes of arguments on the stack of 32-bit code, which the operation removes.
  unsigned char argumentBytes;
  // What says that nothing was done.
  signed char failure;
};

inline constexpr std::array<SlotFacts, 12> kSlots = {{
    {"LoadSettings", 4, 0},
    {"SetDataFolder", 4, 0},
    {"ShowSettingsDialog", 8, 0},
    {"FillHotkeyBlock", 4, 0},
    {"GetDisableLWinFlag", 0, 0},
    {"GetLastSaveTime", 0, 0},
    {"SetEnabled", 8, 0},
    {"GetViewNoDragFlag", 0, 0},
    {"IsCapsLockUsed", 0, 0},
    {"IsShiftUsed", 0, 0},
    {"ApplyHotkeyBlock", 8, -1},
    {"GetStartJSQFlag", 0, 0},
}};

constexpr std::size_t indexOf(Slot slot) {
  return static_cast<std::size_t>(slot);
}

}  // namespace brennet::check
