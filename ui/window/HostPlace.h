#pragma once

#include <QPoint>

class QScreen;
class QWidget;

namespace brennet {

// Where a window comes up.
struct HostPlace {
  QScreen* screen;  // never null
  QPoint centre;    // of the window that it belongs to, or of the screen
};

// The place of the window that `window` belongs to: its parent's, its transient parent, or the one
// that the player has before him, which need not be one of Qt. Without any, the middle of the
// screen that the mouse is on.
[[nodiscard]] HostPlace hostPlaceOf(const QWidget& window);

}  // namespace brennet
