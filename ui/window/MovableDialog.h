#pragma once

#include <QDialog>
#include <QMouseEvent>
#include <QPoint>

namespace brennet {

// A dialog without a frame, which the mouse moves by any place that is no control: the left button
// drags it. Any button that is pressed meanwhile takes it where the mouse is now.
class MovableDialog : public QDialog {
 public:
  using QDialog::QDialog;

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    QDialog::mousePressEvent(event);
    if (event->button() == Qt::LeftButton) isDragged_ = true;
    offset_ = event->globalPos() - pos();
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    QDialog::mouseMoveEvent(event);
    if (isDragged_) move(event->globalPos() - offset_);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    QDialog::mouseReleaseEvent(event);
    isDragged_ = false;
  }

 private:
  bool isDragged_ = false;
  QPoint offset_;  // from the corner of the window to where the mouse was pressed
};

}  // namespace brennet
