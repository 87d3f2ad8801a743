#pragma once

#include <QByteArray>
#include <QPoint>

#include <cstdint>

#include "ui/window/HitTest.h"

class QMouseEvent;
class QWidget;

namespace brennet {

// A frameless window, as the mouse finds it.
struct DraggableWindow {
  const QWidget& window;
  DragArea area = DragArea::EmptyPlaces;
  const QWidget* titleStrip = nullptr;
  const QWidget* form = nullptr;  // the widget that holds all parts of the form
};

// The first members of Windows' MSG.
struct NativeMessage {
  void* window = nullptr;
  unsigned message = 0;
  std::uintptr_t wParam = 0;
  std::intptr_t lParam = 0;
};

// What is at a point of the screen.
[[nodiscard]] Under underPoint(const DraggableWindow& dragged, QPoint point);
[[nodiscard]] Hit hitAt(const DraggableWindow& dragged, QPoint point);

// A place from Windows in Qt's coordinates: Qt scales each screen from its own corner.
[[nodiscard]] QPoint fromNative(QPoint point, QPoint screenCorner, qreal scale);

// For QWidget::nativeEvent. If Windows asks what a point of this window is, and there is an answer,
// stores it in `result`. Returns whether it did.
bool answerHitTest(const DraggableWindow& dragged, const QByteArray& eventType, const void* message,
                   long* result);

// For QWidget::mousePressEvent, on systems that do not ask: after a left press on a place that
// drags the window, it follows the mouse as soon as that moves. Returns whether it was such a
// press.
bool startDrag(const DraggableWindow& dragged, const QMouseEvent& press);

}  // namespace brennet
