#pragma once

#include <optional>
#include <vector>

#include "model/HotkeyConfig.h"
#include "model/KeyConflicts.h"
#include "model/KeySlot.h"
#include "ui/capture/KeyCapture.h"

namespace brennet {

// Ctrl+V is a paste everywhere in the game's chat, where the key of the chat wheel would open that
// instead.
[[nodiscard]] bool isPaste(KeyWord key);

// Takes the key of the chat wheel away from the current scheme: a paste was captured for a field.
void makeRoomForPaste(HotkeyConfig& config);

// A key that was captured for a field and that the player is told of as used.
struct Refusal {
  KeyWord key;
  std::vector<KeyConflict> reasons;  // why its slot did not take it; a paste may have none
};

// Stores in the current scheme what was captured for a field, which may edit no slot.
//
// No key is stored as it is. Another key is stored where it may be bound (KeyAssignment.h); else
// the slot has no key afterwards. A paste also takes the key of the chat wheel away. Returns what
// the player is to be told, if anything.
std::optional<Refusal> store(const Capture& capture, const std::optional<KeySlot>& slot,
                             HotkeyConfig& config);

}  // namespace brennet
