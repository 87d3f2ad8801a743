#pragma once

#include <QMouseEvent>
#include <QPoint>
#include <QWidget>

namespace brennet {

// Moves a window without a frame by the mouse, for its mouse handlers: the left button drags it.
// Any button that is pressed meanwhile takes it where the mouse is now.
class MouseMove {
 public:
  void press(const QWidget& window, const QMouseEvent& event) {
    if (event.button() == Qt::LeftButton) isDragged_ = true;
    offset_ = event.globalPos() - window.pos();
  }
  void move(QWidget& window, const QMouseEvent& event) const {
    if (isDragged_) window.move(event.globalPos() - offset_);
  }
  void release() { isDragged_ = false; }

 private:
  bool isDragged_ = false;
  QPoint offset_;  // from the corner of the window to where the mouse was pressed
};

}  // namespace brennet
