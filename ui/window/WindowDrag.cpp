#include "ui/window/WindowDrag.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include "ui/window/EventGuard.h"

namespace brennet {
namespace {

constexpr unsigned kHitTestMessage = 132;  // WM_NCHITTEST

// Two signed halves: screens left of or above the first one have negative coordinates.
QPoint pointOf(std::intptr_t lParam) {
  const auto half = [lParam](int shift) {
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(lParam >> shift & 0xFFFF));
  };
  return {half(0), half(16)};
}

// Whether the widget only holds other controls and shows nothing of its own between them.
bool isEmptyArea(const QWidget& widget) {
  return widget.layout() != nullptr && qobject_cast<const QGroupBox*>(&widget) == nullptr;
}

// Waits for the mouse to move after a press. A click alone must not start anything: the release may
// come before the system has begun to move the window, which would then stick to the mouse until
// the next click.
class DragStart : public QObject {
 public:
  DragStart(QWindow& window, QPoint pressedAt)
      : QObject(&window), window_(window), pressedAt_(pressedAt) {
    qApp->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    guarded([&] { follow(*event); });
    return QObject::eventFilter(watched, event);
  }

 private:
  void follow(const QEvent& event) {
    switch (event.type()) {
      case QEvent::MouseMove:
        moved(static_cast<const QMouseEvent&>(event));
        break;
      case QEvent::MouseButtonRelease:
        end();
        break;
      default:
        break;
    }
  }
  void moved(const QMouseEvent& move) {
    const bool isHeld = (move.buttons() & Qt::LeftButton) != 0;
    const int distance = (move.globalPos() - pressedAt_).manhattanLength();
    if (isHeld && distance < QApplication::startDragDistance()) return;
    end();
    if (isHeld) window_.startSystemMove();
  }
  void end() {
    qApp->removeEventFilter(this);
    deleteLater();
  }

  QWindow& window_;
  QPoint pressedAt_;
};

}  // namespace

Under underPoint(const DraggableWindow& dragged, QPoint point) {
  const QWidget* const child = dragged.window.childAt(dragged.window.mapFromGlobal(point));
  if (child == nullptr) return Under::Nothing;
  if (child == dragged.titleStrip || child == dragged.form) return Under::Frame;
  if (isEmptyArea(*child)) return Under::Frame;
  if (qobject_cast<const QLabel*>(child) != nullptr) {
    return child->font().underline() ? Under::Link : Under::Label;
  }
  if (qobject_cast<const QGroupBox*>(child) != nullptr) return Under::GroupBox;
  if (qobject_cast<const QPushButton*>(child) != nullptr) return Under::PushButton;
  return Under::Control;
}

Hit hitAt(const DraggableWindow& dragged, QPoint point) {
  const WindowShape shape{dragged.window.frameGeometry(), dragged.window.contentsMargins(),
                          dragged.area};
  return hitTest(shape, point, underPoint(dragged, point));
}

QPoint fromNative(QPoint point, QPoint screenCorner, qreal scale) {
  return (point - screenCorner) / scale + screenCorner;
}

bool answerHitTest(const DraggableWindow& dragged, const QByteArray& eventType, const void* message,
                   long* result) {
  if (eventType != "windows_generic_MSG") return false;
  const auto& native = *static_cast<const NativeMessage*>(message);
  if (native.message != kHitTestMessage) return false;
  // A window that gets messages exists already; asking for the handle must not create one.
  if (reinterpret_cast<WId>(native.window) != dragged.window.internalWinId()) return false;
  const QWindow* const window = dragged.window.windowHandle();
  if (window == nullptr) return false;
  const QScreen& screen = *window->screen();
  const QPoint point =
      fromNative(pointOf(native.lParam), screen.geometry().topLeft(), screen.devicePixelRatio());
  const Hit hit = hitAt(dragged, point);
  if (hit == Hit::NotHandled) return false;
  *result = static_cast<long>(hit);
  return true;
}

bool startDrag(const DraggableWindow& dragged, const QMouseEvent& press) {
  if (press.button() != Qt::LeftButton) return false;
  if (hitAt(dragged, press.globalPos()) != Hit::Caption) return false;
  if (QWindow* const window = dragged.window.windowHandle()) {
    new DragStart(*window, press.globalPos());  // owned by the window, until it ends itself
  }
  return true;
}

}  // namespace brennet
