#pragma once

#include <QLineEdit>

#include <memory>

// A line edit for a key: as wide as the text of a key with two modifiers. The few wider texts show
// their end, where the key is, behind an ellipsis, and have the whole as their tool tip. Screen
// readers are told that it does not take letters. In no namespace: forms know it by this name.
class CKeyLineEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit CKeyLineEdit(QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  // What of the text is shown: all of it, or its end behind an ellipsis.
  [[nodiscard]] QString shownText() const;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct ShownWidth;

  [[nodiscard]] QRect roomForText() const;

  std::shared_ptr<ShownWidth> shownWidth_;
};
