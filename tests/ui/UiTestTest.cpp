// The checks that the tests of windows rely on are checked themselves.

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QMessageBox>

#include "tests/ui/UiTest.h"

namespace brennet::test {
namespace {

TEST(TheTestsOfWindows, FailWhenQtWarns) {
  EXPECT_NONFATAL_FAILURE(qWarning("careful"), "Qt warns: careful");
  EXPECT_NONFATAL_FAILURE(qCritical("worse"), "Qt warns: worse");
}

TEST(TheTestsOfWindows, LetTracesPass) {
  qDebug("by the way");
}

TEST(TheTestsOfWindows, CanAskForMessages) {
  const CaughtMessages messages;
  qWarning("careful");
  qDebug("by the way");
  EXPECT_EQ(messages.texts(),
            QStringList({QStringLiteral("careful"), QStringLiteral("by the way")}));
}

TEST(TheTestsOfWindows, FailWhenABoxIsLeftOpen) {
  whenBoxIsShown([](QMessageBox&) {});
  EXPECT_NONFATAL_FAILURE(QMessageBox().exec(), "the box is still open");
}

}  // namespace
}  // namespace brennet::test
