#pragma once

class QKeyEvent;

namespace brennet {

// The Windows virtual-key code of a key event; 0 for a key that has none.
//
// Windows sends it with the event. Elsewhere it is derived from the Qt::Key, as on a US keyboard,
// so that a real keyboard works there too.
[[nodiscard]] unsigned virtualKeyOf(const QKeyEvent& event);

// Only the derivation. `isKeypad`: the key is on the numeric keypad.
[[nodiscard]] unsigned virtualKeyOfQtKey(int key, bool isKeypad);

}  // namespace brennet
