#include "ui/capture/SlotCapture.h"

#include "model/KeyAssignment.h"

namespace brennet {
namespace {

constexpr std::uint8_t kV = 0x56;

void clear(HotkeyConfig& config, KeySlot slot) {
  if (HotkeyScheme* const scheme = config.editableScheme()) storeKey(*scheme, slot, kNoKey);
}

// Everything that keeps `key` from being stored in `slot`; empty if nothing does.
std::vector<KeyConflict> conflictsOf(const HotkeyScheme& scheme, KeySlot slot, KeyWord key) {
  const std::optional<KeyConflict> first = conflictOf(scheme, slot, key);
  if (!first) return {};
  if (first->reason == KeyConflict::Reason::SentByItself) return {*first};
  return holdersOf(scheme, key);
}

// Stores the key, or leaves the slot without a key and returns why.
std::optional<Refusal> refusalOf(HotkeyConfig& config, KeySlot slot, KeyWord key) {
  HotkeyScheme* const scheme = config.editableScheme();
  if (scheme == nullptr) return Refusal{key, {}};
  Refusal refusal{key, conflictsOf(*scheme, slot, key)};
  if (assignKey(*scheme, slot, key)) return std::nullopt;
  clear(config, slot);
  return refusal;
}

}  // namespace

bool isPaste(KeyWord key) {
  return key.virtualKey() == kV && (key.modifiers() & KeyWord::kCtrl) != 0;
}

void makeRoomForPaste(HotkeyConfig& config) {
  if (HotkeyScheme* const scheme = config.editableScheme()) scheme->ChatWheelkey = kNoKey;
}

std::optional<Refusal> store(const Capture& capture, const std::optional<KeySlot>& slot,
                             HotkeyConfig& config) {
  if (capture.outcome == Capture::Outcome::Cleared) {
    if (slot) clear(config, *slot);
    return std::nullopt;
  }
  if (capture.outcome != Capture::Outcome::Captured) return std::nullopt;
  std::optional<Refusal> refusal;
  if (slot) refusal = refusalOf(config, *slot, capture.key);
  if (!isPaste(capture.key)) return refusal;
  makeRoomForPaste(config);
  return refusal ? refusal : Refusal{capture.key, {}};
}

}  // namespace brennet
