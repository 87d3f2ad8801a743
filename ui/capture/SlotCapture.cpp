#include "ui/capture/SlotCapture.h"

#include "model/KeyAssignment.h"

namespace brennet {
namespace {

constexpr std::uint8_t kV = 0x56;

void clear(HotkeyConfig& config, KeySlot slot) {
  if (HotkeyScheme* const scheme = config.editableScheme()) storeKey(*scheme, slot, kNoKey);
}

// Whether the key was refused; the slot has no key then.
bool isRefused(HotkeyConfig& config, KeySlot slot, KeyWord key) {
  HotkeyScheme* const scheme = config.editableScheme();
  if (scheme != nullptr && assignKey(*scheme, slot, key)) return false;
  clear(config, slot);
  return true;
}

}  // namespace

bool isPaste(KeyWord key) {
  return key.virtualKey() == kV && (key.modifiers() & KeyWord::kCtrl) != 0;
}

void makeRoomForPaste(HotkeyConfig& config) {
  if (HotkeyScheme* const scheme = config.editableScheme()) scheme->ChatWheelkey = kNoKey;
}

bool store(const Capture& capture, const std::optional<KeySlot>& slot, HotkeyConfig& config) {
  if (capture.outcome == Capture::Outcome::Cleared) {
    if (slot) clear(config, *slot);
    return false;
  }
  if (capture.outcome != Capture::Outcome::Captured) return false;
  const bool refused = slot && isRefused(config, *slot, capture.key);
  if (!isPaste(capture.key)) return refused;
  makeRoomForPaste(config);
  return true;
}

}  // namespace brennet
