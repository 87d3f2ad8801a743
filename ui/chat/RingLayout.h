#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace brennet {

// Places its items around a picture in the middle: their centres are on an ellipse, the first one
// at the top and the others clockwise, at equal angles. All get the size that the largest asks for.
// The ellipse is no larger than requested, unless items would overlap.
//
// If there is more room than the ring takes, it stays in the middle, as the picture does.
class RingLayout : public QLayout {
 public:
  // Room is kept for `picture`; `ring` holds the two axes of the ellipse.
  RingLayout(QSize picture, QSize ring, QWidget* parent);
  ~RingLayout() override;

  void addItem(QLayoutItem* item) override;
  [[nodiscard]] int count() const override;
  [[nodiscard]] QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  [[nodiscard]] Qt::Orientations expandingDirections() const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSize() const override;
  void setGeometry(const QRect& rect) override;

 private:
  // The size that each item gets.
  [[nodiscard]] QSize cell() const;
  // The axes on which cells of that size do not overlap.
  [[nodiscard]] QSizeF ringFor(QSize cell) const;

  QSize picture_;
  QSize ring_;
  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace brennet
