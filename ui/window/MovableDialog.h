#pragma once

#include <QDialog>
#include <QPoint>

namespace brennet {

class ScreenFit;

// A frameless dialog that appears inside the screen. The left mouse button drags it by any place
// that is not a control; any button pressed meanwhile takes hold of it where the mouse is then.
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
