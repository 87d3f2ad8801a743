#pragma once

#include <optional>

namespace brennet::platform {

// The windows of the host that a modal window stands before; null: none. Handles of Windows; other
// systems have none.
struct OwnerWindows {
  void* root = nullptr;   // disabled here
  void* popup = nullptr;  // the last one of the root's that was active
  bool isPopupDisabled = false;
};

// Finds the window of the calling thread that the player has before him, and disables it together
// with the one at the root of its parents, as far as they are enabled.
[[nodiscard]] OwnerWindows disableOwnerWindows();

// Where a window stands: in pixels of all screens together, whatever their scales.
struct WindowFrame {
  int left;
  int top;
  int width;
  int height;
};

// The place of the window that the player has before him, of this thread; nothing where there is
// none, or where it is minimized.
[[nodiscard]] std::optional<WindowFrame> ownerFrame();

// Enables what was disabled, and gives the player his window back.
void enableOwnerWindows(const OwnerWindows& windows);

}  // namespace brennet::platform
