#pragma once

#include <QPoint>

class QScreen;
class QWidget;

namespace brennet {

// Where a window appears.
struct HostPlace {
  QScreen* screen;  // never null
  QPoint centre;    // of its owner, or of the screen
};

// The place of the window that `window` belongs to: its parent's, its transient parent, or the
// foreground window, which need not be Qt's. Without any, the middle of the screen that the mouse
// is on.
[[nodiscard]] HostPlace hostPlaceOf(const QWidget& window);

}  // namespace brennet
