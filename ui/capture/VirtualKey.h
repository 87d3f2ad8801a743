#pragma once

class QKeyEvent;

namespace brennet {

// The Windows virtual-key code of a key event; 0 for a key that has none.
//
// Windows sends it with the event. Elsewhere it follows from the Qt::Key, as a keyboard of the
// United States would have it: then a real keyboard works there too.
[[nodiscard]] unsigned virtualKeyOf(const QKeyEvent& event);

// The second way alone. `isKeypad`: the key lies on the numeric keypad.
[[nodiscard]] unsigned virtualKeyOfQtKey(int key, bool isKeypad);

}  // namespace brennet
