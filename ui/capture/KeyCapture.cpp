#include "ui/capture/KeyCapture.h"

#include "keys/CaptureKeyNames.h"

namespace brennet {
namespace {

using Outcome = Capture::Outcome;

constexpr unsigned kBackspace = 0x08;
constexpr unsigned kReturn = 0x0D;
constexpr unsigned kControl = 0x11;
constexpr unsigned kAlt = 0x12;
constexpr unsigned kDelete = 0x2E;
constexpr unsigned kLastVirtualKey = 0xFF;

}  // namespace

Capture KeyCapture::handle(const KeyEvent& event) {
  if (event.isRepeat) return {};
  return event.isPress ? press(event) : leave();
}

Capture KeyCapture::leave() {
  if (!modifierIsPending_) return {};
  modifierIsPending_ = false;
  return {style_.modifiersAreKeys ? Outcome::Cleared : Outcome::Shown, {}, kNoKey};
}

Capture KeyCapture::press(const KeyEvent& event) {
  const unsigned code = event.virtualKey;
  if (code == kReturn || code == 0 || code > kLastVirtualKey) return {};

  // Not every system reports a modifier as held in the event of its own press.
  const bool control = event.controlIsHeld || code == kControl;
  const bool alt = event.altIsHeld || code == kAlt;
  Capture capture;
  std::uint8_t flags = 0;
  if (control) {
    flags |= KeyWord::kCtrl;
    capture.text += style_.control;
  }
  if (alt) {
    flags |= KeyWord::kAlt;
    capture.text += style_.alt;
  }
  modifierIsPending_ = code == kControl || code == kAlt;
  if (modifierIsPending_ && style_.modifiersAreKeys) {
    return {Outcome::Captured, KeyText(keyName(static_cast<int>(code))),
            KeyWord(static_cast<std::uint8_t>(code), 0)};
  }
  if (modifierIsPending_) {
    capture.outcome = Outcome::Shown;
    return capture;
  }
  if (code == kBackspace || code == kDelete) return {Outcome::Cleared, {}, kNoKey};

  capture.text += style_.beforeName;
  capture.text += keyName(static_cast<int>(code));
  capture.key = KeyWord(static_cast<std::uint8_t>(code), flags);
  capture.outcome = Outcome::Captured;
  return capture;
}

}  // namespace brennet
