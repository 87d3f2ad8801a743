#pragma once

#include <optional>
#include <vector>

#include "model/HotkeyConfig.h"
#include "model/KeyConflicts.h"
#include "model/KeySlot.h"
#include "ui/capture/KeyCapture.h"

namespace brennet {

// Ctrl+V pastes everywhere in the game's chat, where the chat wheel's key would open the wheel
// instead.
[[nodiscard]] bool isPaste(KeyWord key);

// Removes the chat wheel's key from the current scheme, because a field captured a paste.
void makeRoomForPaste(HotkeyConfig& config);

// A key that a field captured and that the player is told is in use.
struct Refusal {
  KeyWord key;
  std::vector<KeyConflict> reasons;  // why its slot did not take it; a paste may have none
};

// Stores in the current scheme what a field captured. Without a slot, nothing is stored.
//
// No key is stored as it is. Any other key is stored if it may be bound (KeyAssignment.h); if not,
// the slot has no key afterwards. A paste removes the chat wheel's key in any case. Returns what
// the player is to be told, if anything.
std::optional<Refusal> store(const Capture& capture, const std::optional<KeySlot>& slot,
                             HotkeyConfig& config);

}  // namespace brennet
