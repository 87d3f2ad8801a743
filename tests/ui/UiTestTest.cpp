// Checks of the checks that the tests of windows rely on.

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMessageBox>

#include "tests/ui/UiTest.h"

namespace brennet::test {
namespace {

TEST(UiTest, FailWhenQtWarns) {
  EXPECT_NONFATAL_FAILURE(qWarning("careful"), "Qt warns: careful");
  EXPECT_NONFATAL_FAILURE(qCritical("worse"), "Qt warns: worse");
}

TEST(UiTest, LetTracesPass) {
  qDebug("by the way");
}

TEST(UiTest, CanAskForMessages) {
  const CaughtMessages messages;
  qWarning("careful");
  qDebug("by the way");
  EXPECT_EQ(messages.texts(),
            QStringList({QStringLiteral("careful"), QStringLiteral("by the way")}));
}

TEST(UiTest, FailWhenABoxIsLeftOpen) {
  const auto box = whenBoxIsShown([](QMessageBox&) {});
  EXPECT_NONFATAL_FAILURE(QMessageBox().exec(), "the box is still open");
}

TEST(UiTest, FailWhenNoBoxComesAndWaitForItNoLonger) {
  int acts = 0;
  const auto wait = [&acts] {
    const auto box = whenBoxIsShown([&acts](QMessageBox&) { ++acts; });
    QCoreApplication::processEvents();
  };
  EXPECT_NONFATAL_FAILURE(wait(), "no box has come up");
  const auto box = whenBoxIsShown([](QMessageBox& shown) { shown.accept(); });
  QMessageBox().exec();
  EXPECT_EQ(acts, 0) << "the box is that of another test";
}

TEST(UiTest, FailWhenABoxComesThatMayNot) {
  const NoBoxes none;
  EXPECT_NONFATAL_FAILURE(QMessageBox().exec(), "a box comes up");
}

}  // namespace
}  // namespace brennet::test
