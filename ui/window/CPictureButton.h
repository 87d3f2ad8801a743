#pragma once

#include <QPushButton>

// A button with a small picture. The margin that the skin leaves around it can be clicked too, so
// that nobody has to aim. In no namespace: forms know it by this name.
class CPictureButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  [[nodiscard]] bool hitButton(const QPoint& place) const override {
    return rect().contains(place);
  }
};
