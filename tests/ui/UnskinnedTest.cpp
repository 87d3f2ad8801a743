// Boxes whose style sheet is missing.

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include "tests/ui/UiTest.h"
#include "ui/CMsgBox.h"

namespace brennet::test {
namespace {

TEST(ABoxWithoutItsSheet, TellsOfItInAPlainBoxAndStaysUsable) {
  int shown = 0;
  whenBoxIsShown([&](QMessageBox& complaint) {
    ++shown;
    EXPECT_EQ(qobject_cast<CMsgBox*>(&complaint), nullptr);
    EXPECT_EQ(complaint.icon(), QMessageBox::Critical);
    EXPECT_EQ(complaint.windowTitle(), QStringLiteral("error"));
    EXPECT_EQ(complaint.text(), QStringLiteral("failed to read qss file"));
    EXPECT_EQ(complaint.standardButtons(), QMessageBox::Ok);
    whenBoxIsShown([&](QMessageBox& box) {
      ++shown;
      EXPECT_NE(qobject_cast<CMsgBox*>(&box), nullptr);
      EXPECT_TRUE(box.styleSheet().isEmpty());
      EXPECT_NE(box.findChild<QLabel*>(QStringLiteral("msgbox_title_label")), nullptr);
      box.button(QMessageBox::Cancel)->click();
    });
    complaint.button(QMessageBox::Ok)->click();
  });
  EXPECT_EQ(CMsgBox::showMessage(nullptr, QMessageBox::Warning, QStringLiteral("title"),
                                 QStringLiteral("text"), QMessageBox::Ok | QMessageBox::Cancel),
            QMessageBox::Cancel);
  EXPECT_EQ(shown, 2);
}

}  // namespace
}  // namespace brennet::test
