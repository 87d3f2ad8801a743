#include "ui/window/HostPlace.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include "platform/OwnerWindow.h"
#include "ui/window/WindowDrag.h"

namespace brennet {
namespace {

HostPlace middleOf(QScreen& screen) {
  return {&screen, screen.availableGeometry().center()};
}

// For a hidden or minimized window only its screen counts.
HostPlace placeOf(const QWindow& window) {
  const QPoint centre = window.frameGeometry().center();
  QScreen* const screen = QGuiApplication::screenAt(centre);
  const bool isHidden = !window.isVisible() || window.windowStates().testFlag(Qt::WindowMinimized);
  if (isHidden || screen == nullptr) return middleOf(*window.screen());
  return {screen, centre};
}

const QWindow* ownerOf(const QWidget& window) {
  if (const QWidget* const parent = window.parentWidget()) return parent->window()->windowHandle();
  const QWindow* const own = window.windowHandle();
  if (own != nullptr && own->transientParent() != nullptr) return own->transientParent();
  const QWidget* const active = QApplication::activeWindow();
  return active == nullptr || active == &window ? nullptr : active->windowHandle();
}

// Windows counts physical pixels across all screens; Qt scales each screen from its own corner.
QScreen* screenAtNative(QPoint point) {
  for (QScreen* const screen : QGuiApplication::screens()) {
    const QRect units = screen->geometry();
    const QRect pixels(units.topLeft(), units.size() * screen->devicePixelRatio());
    if (pixels.contains(point)) return screen;
  }
  return nullptr;
}

}  // namespace

HostPlace hostPlaceOf(const QWidget& window) {
  if (const QWindow* const owner = ownerOf(window)) return placeOf(*owner);
  if (const auto frame = platform::ownerFrame()) {
    const QPoint centre(frame->left + frame->width / 2, frame->top + frame->height / 2);
    if (QScreen* const screen = screenAtNative(centre)) {
      const QPoint corner = screen->geometry().topLeft();
      return {screen, fromNative(centre, corner, screen->devicePixelRatio())};
    }
  }
  QScreen* const screen = QGuiApplication::screenAt(QCursor::pos());
  return middleOf(screen == nullptr ? *QGuiApplication::primaryScreen() : *screen);
}

}  // namespace brennet
