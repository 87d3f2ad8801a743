#pragma once

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

// Enables what was disabled, and gives the player his window back.
void enableOwnerWindows(const OwnerWindows& windows);

}  // namespace brennet::platform
