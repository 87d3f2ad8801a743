#pragma once

#include <QDialog>
#include <QPoint>

namespace brennet {

class ScreenFit;

// A dialog without a frame, which comes up inside the screen and which the mouse moves by any place
// that is no control: the left button drags it. Any button that is pressed meanwhile takes it where
// the mouse is now.
class MovableDialog : public QDialog {
 public:
  using QDialog::QDialog;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  bool isDragged_ = false;
  QPoint offset_;             // from the corner of the window to where the mouse was pressed
  ScreenFit* fit_ = nullptr;  // a child of this; made when the form is complete
};

}  // namespace brennet
