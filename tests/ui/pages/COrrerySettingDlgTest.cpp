#include "ui/pages/COrrerySettingDlg.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

#include "tests/ui/pages/PageChecks.h"

namespace brennet::test {
namespace {

TEST(COrrerySettingDlg, HasItsWidgets) {
  const COrrerySettingDlg dialog;
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral(u"Orrery设置"));
  EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
  EXPECT_EQ(methodNames(COrrerySettingDlg::staticMetaObject),
            QStringList(QStringLiteral("chkShowFriendsMana")));
  struct Row {
    const char* field;
    const char16_t* label;
  };
  const Row kRows[] = {{"edtOpenCloseLedger", u"打开/关闭Orrery实时数据"},
                       {"edtShowHideLedgerData", u"打开/关闭Orrery生涯数据"},
                       {"edtHotKeyLedgerSkill", u"技能提醒快捷键（Dota）"}};
  for (const Row& row : kRows) {
    const auto* const field = dialog.findChild<QLineEdit*>(QLatin1String(row.field));
    ASSERT_NE(field, nullptr);
    const auto labels = dialog.findChildren<QLabel*>();
    const auto label = std::find_if(labels.begin(), labels.end(),
                                    [&](const QLabel* each) { return each->buddy() == field; });
    ASSERT_NE(label, labels.end());
    EXPECT_EQ((*label)->text(), QString::fromUtf16(row.label));
  }
  const auto* const mana = dialog.findChild<QCheckBox*>(QStringLiteral("chkShowFriendsMana"));
  EXPECT_EQ(mana->text(), QStringLiteral(u"显示己方蓝量（Dota）"));
}

TEST(COrrerySettingDlg, PassesItsCheckBoxOn) {
  COrrerySettingDlg dialog;
  const QSignalSpy spy(&dialog, &COrrerySettingDlg::chkShowFriendsMana);
  auto* const mana = dialog.findChild<QCheckBox*>(QStringLiteral("chkShowFriendsMana"));
  mana->click();
  mana->click();
  ASSERT_EQ(spy.count(), 2);
  EXPECT_TRUE(spy.at(0).at(0).toBool());
  EXPECT_FALSE(spy.at(1).at(0).toBool());
}

TEST(COrrerySettingDlg, IsAcceptedByItsCloseButton) {
  COrrerySettingDlg dialog;
  dialog.show();
  dialog.findChild<QPushButton*>(QStringLiteral("btnClose"))->click();
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST(COrrerySettingDlg, WearsTheSkin) {
  COrrerySettingDlg dialog;
  EXPECT_TRUE(dialog.styleSheet().isEmpty()) << "takes time, and most players never see it";
  dialog.show();
  EXPECT_FALSE(dialog.styleSheet().isEmpty());
  const QImage picture = dialog.grab().toImage();
  EXPECT_EQ(picture.pixelColor(0, picture.height() / 2), QColor(0x52, 0x6e, 0x7a)) << "border";
  EXPECT_EQ(picture.pixelColor(3, 3), QColor(0x1e, 0x24, 0x2f)) << "background";
}

TEST(COrrerySettingDlg, HasNamesForScreenReaders) {
  COrrerySettingDlg dialog;
  dialog.show();
  expectAccessible(dialog);
}

TEST(COrrerySettingDlg, IsReadInOrder) {
  COrrerySettingDlg dialog;
  dialog.show();
  const QStringList expected = {QStringLiteral("btnClose"), QStringLiteral("chkShowFriendsMana"),
                                QStringLiteral("edtOpenCloseLedger"),
                                QStringLiteral("edtShowHideLedgerData"),
                                QStringLiteral("edtHotKeyLedgerSkill")};
  EXPECT_EQ(tabOrder(dialog), expected);
}

}  // namespace
}  // namespace brennet::test
