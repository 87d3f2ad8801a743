#pragma once

#include <string_view>

#include "keys/KeyWord.h"
#include "ui/capture/KeyText.h"

namespace brennet {

// A press or release of a key, as the window system reports it.
struct KeyEvent {
  bool isPress = false;
  bool isRepeat = false;    // sent automatically while the key is held down
  unsigned virtualKey = 0;  // Windows virtual-key code; 0: unknown to this system
  bool controlIsHeld = false;
  bool altIsHeld = false;
};

// How a page writes the keys that it captures.
struct CaptureStyle {
  std::u16string_view control = u"CTRL +";
  std::u16string_view alt = u"Alt +";
  std::u16string_view beforeName =
      {};  // between the modifiers and the name, even without modifiers
  // A lone Ctrl or Alt is a key at once, and is no longer one when it is released.
  bool modifiersAreKeys = false;
};

// What a key event means for the field that has the focus.
struct Capture {
  enum class Outcome {
    Ignored,   // nothing changes
    Shown,     // the field shows `text`; nothing is to be stored
    Cleared,   // the player wants no key: kNoKey is to be stored; `text` is empty
    Captured,  // `key` is to be stored if it may be, and `text` shown
  };

  Outcome outcome = Outcome::Ignored;
  KeyText text;
  KeyWord key;
};

// Turns key events into keys with their modifiers. One object serves all fields of a page.
//
// A lone Ctrl or Alt shows its prefix and waits for the next event: another key completes it, a
// release or the loss of the focus empties the field. (If modifiers are keys, it is stored and
// taken back instead.) Shift is not a modifier here, but a key like any other. Return does nothing;
// Backspace and Delete clear the field.
class KeyCapture {
 public:
  explicit KeyCapture(CaptureStyle style) : style_(style) {}

  [[nodiscard]] Capture handle(const KeyEvent& event);

  // The field that may show a lone modifier has lost the focus.
  [[nodiscard]] Capture leave();

 private:
  [[nodiscard]] Capture press(const KeyEvent& event);

  CaptureStyle style_;
  bool modifierIsPending_ = false;
};

}  // namespace brennet
