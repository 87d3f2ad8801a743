#include "ui/window/ScreenFit.h"

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QShowEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <utility>

#include "ui/window/CPageScroller.h"
#include "ui/window/EventGuard.h"
#include "ui/window/HostPlace.h"

namespace brennet {
namespace {

// Along one axis. The start matters more than the end.
int inside(int place, int size, int start, int areaSize) {
  return std::max(std::min(place, start + areaSize - size), start);
}

// The screen that its middle is on.
QScreen& screenOf(const QWidget& window) {
  QScreen* const screen = QGuiApplication::screenAt(window.frameGeometry().center());
  return screen == nullptr ? *window.windowHandle()->screen() : *screen;
}

// Tells the window that the size of a widget inside has changed. A layout tells its outer one only
// when events are handled, which would be too late for placing the window.
void renewSizes(QWidget& inner, const QWidget& window) {
  for (QWidget* widget = &inner; widget != &window; widget = widget->parentWidget()) {
    widget->updateGeometry();
  }
  window.layout()->activate();
}

}  // namespace

QPoint cornerInside(const QRect& area, QSize size, QPoint corner) {
  return {inside(corner.x(), size.width(), area.x(), area.width()),
          inside(corner.y(), size.height(), area.y(), area.height())};
}

ScreenFit::ScreenFit(QWidget& window)
    : QObject(&window), window_(window), content_(window.findChild<CPageScroller*>()) {}

void ScreenFit::comeUp(const QShowEvent& shown) {
  if (!window_.isWindow()) return;  // it has been embedded in another one
  // The system shows it again after it was minimized, where the player had it. The system did the
  // dragging, so Qt does not know that it was moved.
  if (shown.spontaneous()) return fitAgain(true);
  // Whoever has moved the window wants it there.
  const bool isMoved = window_.testAttribute(Qt::WA_Moved);
  const HostPlace host = hostPlaceOf(window_);
  const QRect area = (isMoved ? screenOf(window_) : *host.screen).availableGeometry();
  limitTo(area.size());
  const QPoint corner = isMoved ? window_.pos() : host.centre - window_.rect().center();
  // In one step: halfway the window would count as on a screen of another scale.
  moveTo(cornerInside(area, window_.size(), corner));
  watch();
}

// This does not count as a move by somebody.
void ScreenFit::moveTo(QPoint corner) const {
  const bool isMoved = window_.testAttribute(Qt::WA_Moved);
  window_.move(corner);
  window_.setAttribute(Qt::WA_Moved, isMoved);
}

void ScreenFit::watch() {
  // A change of flags gives a window another handle.
  const QWindow* const handle = window_.windowHandle();
  if (handle != handle_) {
    handle_ = handle;
    // Somebody is dragging the window there: leave it to them.
    connect(handle, &QWindow::screenChanged, this, [this] { fitAgain(false); });
  }
  if (std::exchange(isWatching_, true)) return;
  const auto watchScreen = [this](QScreen* screen) {
    guarded([&] {
      connect(screen, &QScreen::availableGeometryChanged, this, [this] { fitAgain(true); });
    });
  };
  for (QScreen* const screen : QGuiApplication::screens()) watchScreen(screen);
  connect(qGuiApp, &QGuiApplication::screenAdded, this, watchScreen);
  // Qt moves the window to another screen after everybody has been told.
  connect(
      qGuiApp, &QGuiApplication::screenRemoved, this, [this] { fitAgain(true); },
      Qt::QueuedConnection);
}

void ScreenFit::fitAgain(bool moves) {
  guarded([this, moves] { fitNow(moves); });
}

void ScreenFit::fitNow(bool moves) const {
  if (!window_.isVisible()) return;
  const QRect area = screenOf(window_).availableGeometry();
  limitTo(area.size());
  if (moves) moveTo(cornerInside(area, window_.size(), window_.pos()));
}

void ScreenFit::limitTo(QSize available) const {
  const QLayout* const layout = window_.layout();
  if (content_ == nullptr) {
    // By itself, Qt leaves a third of the screen free.
    const bool canGive = layout != nullptr && layout->sizeConstraint() != QLayout::SetFixedSize;
    if (canGive) window_.resize(layout->totalSizeHint().boundedTo(available));
    return;
  }
  if (spared_ != nullptr) spared_->show();
  if (folded_ != nullptr) folded_->setDirection(QBoxLayout::LeftToRight);
  limitContent(available);
  if (folded_ != nullptr && isTooNarrow(available)) {
    folded_->setDirection(QBoxLayout::TopToBottom);
    limitContent(available);
  }
  if (spared_ != nullptr && isTooNarrow(available)) {
    spared_->hide();
    limitContent(available);
  }
  window_.resize(layout->totalSizeHint());
}

bool ScreenFit::isTooNarrow(QSize available) const {
  return window_.layout()->totalSizeHint().width() > available.width();
}

void ScreenFit::limitContent(QSize available) const {
  const QLayout& layout = *window_.layout();
  content_->setLimit({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
  renewSizes(*content_, window_);
  // Twice: when its window gets narrower, a notice takes more lines and so more height.
  for (int pass = 0; pass < 2; ++pass) {
    const QSize around = layout.totalSizeHint() - content_->sizeHint();
    content_->setLimit(available - around);
    renewSizes(*content_, window_);
  }
}

}  // namespace brennet
