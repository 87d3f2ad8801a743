#include "ui/window/MovableDialog.h"

#include <QMouseEvent>

#include "ui/window/ScreenFit.h"

namespace brennet {

void MovableDialog::mousePressEvent(QMouseEvent* event) {
  QDialog::mousePressEvent(event);
  if (event->button() == Qt::LeftButton) isDragged_ = true;
  offset_ = event->globalPos() - pos();
}

void MovableDialog::mouseMoveEvent(QMouseEvent* event) {
  QDialog::mouseMoveEvent(event);
  if (isDragged_) move(event->globalPos() - offset_);
}

void MovableDialog::mouseReleaseEvent(QMouseEvent* event) {
  QDialog::mouseReleaseEvent(event);
  isDragged_ = false;
}

void MovableDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  isDragged_ = false;  // the release may have gone elsewhere when the window was hidden
  if (fit_ == nullptr) fit_ = new ScreenFit(*this);
  fit_->comeUp(*event);
}

}  // namespace brennet
