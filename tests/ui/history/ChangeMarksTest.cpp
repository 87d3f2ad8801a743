#include "ui/history/ChangeMarks.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QCoreApplication>

namespace brennet::test {
namespace {

QString line(const char* was) {
  return QStringLiteral("打开窗口时：") + QLatin1String(was);
}

struct MarkedBox {
  MarkedBox() {
    box.setToolTip(QStringLiteral("own"));
    marks.add(box, [this] { return was; });
  }
  [[nodiscard]] QString toolTip() const { return box.toolTip(); }

  QCheckBox box;
  std::optional<QString> was;
  ChangeMarks marks;
};

TEST(ChangeMarks, SayWhatAControlWasAndNoMoreWhenItIsThatAgain) {
  MarkedBox marked;
  EXPECT_EQ(marked.toolTip(), QStringLiteral("own"));
  marked.was = QStringLiteral("off");
  marked.marks.refresh();
  EXPECT_TRUE(marked.toolTip().contains(line("off"))) << marked.toolTip().toStdString();
  EXPECT_TRUE(marked.box.accessibleDescription().contains(line("off")));
  marked.was = QStringLiteral("half");
  marked.marks.refresh();
  EXPECT_TRUE(marked.toolTip().contains(line("half"))) << marked.toolTip().toStdString();
  marked.was.reset();
  marked.marks.refresh();
  EXPECT_EQ(marked.toolTip(), QStringLiteral("own"));
  EXPECT_EQ(marked.box.accessibleDescription(), QString());
}

// Nothing else repaints a control that only gets a mark.
TEST(ChangeMarks, AreDrawnAtOnce) {
  class PaintedBox : public QCheckBox {
   public:
    int paints = 0;

   protected:
    void paintEvent(QPaintEvent* event) override {
      ++paints;
      QCheckBox::paintEvent(event);
    }
  };
  PaintedBox box;
  std::optional<QString> was;
  ChangeMarks marks;
  marks.add(box, [&was] { return was; });
  box.show();
  QCoreApplication::processEvents();
  for (const auto& now : {std::optional(QStringLiteral("off")), std::optional<QString>()}) {
    const int before = box.paints;
    was = now;
    marks.refresh();
    QCoreApplication::processEvents();
    EXPECT_GT(box.paints, before);
    const int after = box.paints;
    marks.refresh();
    QCoreApplication::processEvents();
    EXPECT_EQ(box.paints, after) << "nothing has changed";
  }
}

TEST(ChangeMarks, StayBelowAToolTipThatSomebodyElseHasSet) {
  MarkedBox marked;
  marked.was = QStringLiteral("off");
  marked.marks.refresh();
  marked.box.setToolTip(QStringLiteral("theirs"));
  marked.marks.refresh();
  EXPECT_TRUE(marked.toolTip().contains(QStringLiteral("theirs")));
  EXPECT_TRUE(marked.toolTip().contains(line("off"))) << marked.toolTip().toStdString();
  marked.was.reset();
  marked.marks.refresh();
  EXPECT_EQ(marked.toolTip(), QStringLiteral("theirs"));
}

}  // namespace
}  // namespace brennet::test
