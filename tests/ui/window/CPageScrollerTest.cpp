// Which size a page asks for that may scroll.

#include "ui/window/CPageScroller.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QScrollBar>
#include <QVBoxLayout>

namespace brennet::test {
namespace {

constexpr int kBar = 8;

class CPageScrollerTest : public testing::Test {
 protected:
  CPageScrollerTest() {
    scroller.setStyleSheet(QStringLiteral(
        "QScrollBar:vertical { width: 8px; } QScrollBar:horizontal { height: 8px; }"));
    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const content = new QWidget;
    content->setFixedSize(100, 60);
    layout->addWidget(content);
    scroller.setWidget(page);
    scroller.ensurePolished();
    scroller.verticalScrollBar()->ensurePolished();
    scroller.horizontalScrollBar()->ensurePolished();
  }

  CPageScroller scroller;
};

TEST_F(CPageScrollerTest, IsAsLargeAsItsPageWithinTheLimit) {
  struct {
    QSize limit, size;
  } const kRows[] = {
      {{1000, 1000}, {100, 60}},
      {{100, 60}, {100, 60}},
      {{1000, 59}, {100 + kBar, 59}},
      {{99, 1000}, {99, 60 + kBar}},
      {{100 + kBar, 30}, {100 + kBar, 30}},
      // One bar makes the other one necessary.
      {{100 + kBar - 1, 59}, {100 + kBar - 1, 59}},
      {{99, 60 + kBar - 1}, {99, 60 + kBar - 1}},
      {{99, 60 + kBar}, {99, 60 + kBar}},
      {{30, 20}, {30, 20}},
      {{0, 0}, {0, 0}},
  };
  for (const auto& row : kRows) {
    scroller.setLimit(row.limit);
    EXPECT_EQ(scroller.sizeHint(), row.size) << row.limit.width() << " x " << row.limit.height();
    EXPECT_EQ(scroller.minimumSizeHint(), row.size) << "nothing makes it smaller";
  }
}

// At the size it asks for, a page has only the bars that its limit makes necessary.
TEST_F(CPageScrollerTest, HasTheBarsThatItsLimitAsksFor) {
  struct {
    QSize limit;
    bool isTall, isWide;
  } const kRows[] = {
      {{1000, 1000}, false, false},       {{1000, 59}, true, false}, {{99, 1000}, false, true},
      {{100 + kBar - 1, 59}, true, true}, {{30, 20}, true, true},
  };
  for (const auto& row : kRows) {
    scroller.setLimit(row.limit);
    scroller.resize(scroller.sizeHint());
    scroller.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(scroller.verticalScrollBar()->isVisible(), row.isTall) << row.limit.height();
    EXPECT_EQ(scroller.horizontalScrollBar()->isVisible(), row.isWide) << row.limit.width();
    scroller.hide();
  }
}

TEST(CPageScrollerEmpty, AsksForNothing) {
  const CPageScroller scroller;
  EXPECT_FALSE(scroller.sizeHint().isValid());
}

}  // namespace
}  // namespace brennet::test
