// Items of any number and size around a picture.

#include "ui/chat/RingLayout.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace brennet {
namespace {

class Box : public QWidget {
 public:
  Box(QSize size, QWidget* parent) : QWidget(parent), size_(size) {}
  [[nodiscard]] QSize sizeHint() const override { return size_; }

 private:
  QSize size_;
};

// A widget with a ring of boxes.
class Ring : public QWidget {
 public:
  Ring(QSize picture, QSize axes) : layout_(new RingLayout(picture, axes, this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(4);
  }
  Box& add(QSize size) {
    auto* const box = new Box(size, this);
    layout_->addWidget(box);
    boxes_ += box;
    return *box;
  }
  void arrange(QSize size) { layout_->setGeometry({QPoint(0, 0), size}); }
  RingLayout& layout() { return *layout_; }
  const QList<Box*>& boxes() const { return boxes_; }

 private:
  RingLayout* layout_;
  QList<Box*> boxes_;
};

TEST(RingLayout, StartsAtTheTopAndGoesClockwise) {
  Ring ring({100, 100}, {200, 100});
  for (int i = 0; i < 4; ++i) ring.add({20, 10});
  EXPECT_EQ(ring.layout().sizeHint(), QSize(220, 110));
  EXPECT_EQ(ring.layout().minimumSize(), QSize(220, 110));
  ring.arrange({220, 110});
  const QPoint corners[] = {{100, 0}, {200, 50}, {100, 100}, {0, 50}};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(ring.boxes()[i]->geometry(), QRect(corners[i], QSize(20, 10))) << i;
  }
}

TEST(RingLayout, StaysInTheMiddleOfMoreRoom) {
  Ring ring({100, 100}, {200, 100});
  const Box& box = ring.add({20, 10});
  ring.layout().setContentsMargins(10, 0, 0, 80);
  EXPECT_EQ(ring.layout().sizeHint(), QSize(230, 190));
  ring.arrange({430, 290});
  EXPECT_EQ(box.geometry(), QRect(10 + 200, 0 + 50, 20, 10));
}

TEST(RingLayout, HasRoomForThePictureAndForNothingElseWhenItIsEmpty) {
  Ring ring({300, 50}, {200, 100});
  EXPECT_EQ(ring.layout().sizeHint(), QSize(300, 100));
  ring.arrange({300, 100});
}

TEST(RingLayout, GivesAllTheSizeOfTheLargest) {
  Ring ring({10, 10}, {400, 400});
  ring.add({20, 40});
  ring.add({50, 10});
  ring.arrange(ring.layout().sizeHint());
  for (const Box* const box : ring.boxes()) EXPECT_EQ(box->size(), QSize(50, 40));
}

TEST(RingLayout, GrowsUntilNothingOverlaps) {
  for (int count = 1; count <= 12; ++count) {
    for (const QSize size : {QSize(10, 10), QSize(200, 30), QSize(30, 200), QSize(500, 60)}) {
      Ring ring({50, 50}, {100, 100});
      for (int i = 0; i < count; ++i) ring.add(size);
      const QSize all = ring.layout().sizeHint();
      ring.arrange(all);
      for (int i = 0; i < count; ++i) {
        const QRect place = ring.boxes()[i]->geometry();
        EXPECT_TRUE(QRect(QPoint(0, 0), all).contains(place)) << count << ' ' << i;
        for (int j = 0; j < i; ++j) {
          EXPECT_FALSE(place.intersects(ring.boxes()[j]->geometry())) << count << ' ' << i << j;
        }
      }
    }
  }
}

TEST(RingLayout, GivesItemsBack) {
  Ring ring({50, 50}, {100, 100});
  const Box& first = ring.add({10, 10});
  const Box& second = ring.add({10, 10});
  EXPECT_EQ(ring.layout().count(), 2);
  EXPECT_EQ(ring.layout().itemAt(1)->widget(), &second);
  EXPECT_EQ(ring.layout().itemAt(2), nullptr);
  EXPECT_EQ(ring.layout().itemAt(-1), nullptr);
  EXPECT_EQ(ring.layout().takeAt(2), nullptr);
  EXPECT_EQ(ring.layout().takeAt(-1), nullptr);
  const std::unique_ptr<QLayoutItem> taken(ring.layout().takeAt(0));
  EXPECT_EQ(taken->widget(), &first);
  EXPECT_EQ(ring.layout().count(), 1);
}

}  // namespace
}  // namespace brennet
