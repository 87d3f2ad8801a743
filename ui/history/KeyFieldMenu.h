#pragma once

#include <QString>

#include <functional>
#include <optional>

class QLineEdit;
class QPoint;

namespace brennet {

// What the menu of a key field can do. Each function is called when the menu is opened, or when its
// entry is chosen.
struct KeyFieldMenu {
  // What the field had when the dialog opened; nothing if it has that now.
  std::function<std::optional<QString>()> was;
  // Why it cannot have that again, because something else has that key now; empty if it can.
  std::function<QString()> refusal;
  std::function<void()> putBack;
  std::function<void()> clear;
};

// Opens the menu at `place` of the screen. It closes and goes away by itself.
void showMenu(const KeyFieldMenu& menu, QLineEdit& field, QPoint place);

}  // namespace brennet
