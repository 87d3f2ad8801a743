// Boxes whose style sheet is missing.

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include <optional>

#include "tests/ui/UiTest.h"
#include "ui/CMsgBox.h"

namespace brennet::test {
namespace {

TEST(ABoxWithoutItsSheet, TellsOfItInAPlainBoxAndStaysUsable) {
  std::optional<ExpectedBox> second;
  const auto first = whenBoxIsShown([&](QMessageBox& complaint) {
    EXPECT_EQ(qobject_cast<CMsgBox*>(&complaint), nullptr);
    EXPECT_EQ(complaint.icon(), QMessageBox::Critical);
    EXPECT_EQ(complaint.windowTitle(), QStringLiteral("error"));
    EXPECT_EQ(complaint.text(), QStringLiteral("failed to read qss file"));
    EXPECT_EQ(complaint.standardButtons(), QMessageBox::Ok);
    complaint.button(QMessageBox::Ok)->click();
    second.emplace([](QMessageBox& box) {
      EXPECT_NE(qobject_cast<CMsgBox*>(&box), nullptr);
      EXPECT_TRUE(box.styleSheet().isEmpty());
      EXPECT_NE(box.findChild<QLabel*>(QStringLiteral("msgbox_title_label")), nullptr);
      box.button(QMessageBox::Cancel)->click();
    });
  });
  EXPECT_EQ(CMsgBox::showMessage(nullptr, QMessageBox::Warning, QStringLiteral("title"),
                                 QStringLiteral("text"), QMessageBox::Ok | QMessageBox::Cancel),
            QMessageBox::Cancel);
}

}  // namespace
}  // namespace brennet::test
