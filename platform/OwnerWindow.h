#pragma once

#include <optional>

namespace brennet::platform {

// The windows around the one of the host that the player works in, which a modal window stands in
// front of; null: none. Handles of Windows; other systems have none.
struct OwnerWindows {
  void* root = nullptr;   // the root of its parents, if that was disabled here
  void* popup = nullptr;  // its popup that was active last, or the window itself
  bool isPopupDisabled = false;
};

// Finds the window of the calling thread that the player works in, and disables the two windows
// above, where they are enabled.
[[nodiscard]] OwnerWindows disableOwnerWindows();

// Where a window is, in pixels on the desktop of all screens, whatever their scales.
struct WindowFrame {
  int left;
  int top;
  int width;
  int height;
};

// The place of the window of this thread that the player works in; nothing where there is none, or
// where it is minimized.
[[nodiscard]] std::optional<WindowFrame> ownerFrame();

// Enables what was disabled, and makes the player's window active again.
void enableOwnerWindows(const OwnerWindows& windows);

}  // namespace brennet::platform
