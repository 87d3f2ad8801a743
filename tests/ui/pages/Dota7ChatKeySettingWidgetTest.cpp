#include "ui/pages/Dota7ChatKeySettingWidget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

#include "model/HotkeyConfig.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/capture/Dota7FieldText.h"
#include "ui/capture/RefusalText.h"

namespace brennet::test {
namespace {

class Dota7ChatKeySettingWidgetTest : public Dota7Test {
 protected:
  Dota7ChatKeySettingWidgetTest() {
    dialog = std::make_unique<Dota7ChatKeySettingWidget>(manager, nullptr);
  }

  QLineEdit& fieldOf(const QString& name) { return *dialog->findChild<QLineEdit*>(name); }
  QLineEdit& phrase(int row) { return fieldOf(QStringLiteral("edt_SQuickChatString%1").arg(row)); }
  QLineEdit& keyField(int row) {
    return fieldOf(QStringLiteral("edt_HQuickChatHot%1Key").arg(row));
  }
  QLineEdit& atStart(int row) { return fieldOf(QStringLiteral("edt_SOnStartString%1").arg(row)); }

  std::unique_ptr<Dota7ChatKeySettingWidget> dialog;
};

TEST_F(Dota7ChatKeySettingWidgetTest, HasItsWidgets) {
  EXPECT_EQ(methodNames(Dota7ChatKeySettingWidget::staticMetaObject),
            QStringList({QStringLiteral("onClickedOkBtn"), QStringLiteral("onClickedCancelBtn")}));
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("CAdvancedSettingWidget"));
  EXPECT_EQ(dialog->windowFlags() & 0x280B, 0x280B);
  QStringList groups;
  for (const QGroupBox* const group : dialog->findChildren<QGroupBox*>()) groups += group->title();
  groups.sort();
  EXPECT_EQ(groups,
            QStringList({QStringLiteral(u"平台改键设置"), QStringLiteral(u"开局自动喊话")}));
  for (int row = 0; row < 15; ++row) {
    const auto* const label =
        dialog->findChild<QLabel*>(QStringLiteral("label_QuickChat%1").arg(row));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(), QString::number(row + 1));
    EXPECT_EQ(label->buddy(), &phrase(row));
    EXPECT_NE(dialog->findChild<QLabel*>(QStringLiteral("label_SOnStartString%1").arg(row)),
              nullptr);
  }
  EXPECT_EQ(dialog->findChild<QPushButton*>(QStringLiteral("btnOK"))->text(),
            QStringLiteral(u"确定"));
  EXPECT_EQ(dialog->findChild<QPushButton*>(QStringLiteral("btnCancel"))->text(),
            QStringLiteral(u"取消"));
}

TEST_F(Dota7ChatKeySettingWidgetTest, TakesTextInPhrasesAndKeysInKeyFields) {
  EXPECT_FALSE(phrase(0).isReadOnly());
  EXPECT_FALSE(atStart(14).isReadOnly());
  EXPECT_TRUE(phrase(0).testAttribute(Qt::WA_InputMethodEnabled)) << "phrases are Chinese";
  EXPECT_FALSE(keyField(0).testAttribute(Qt::WA_InputMethodEnabled));
  pressKey(keyField(14), Qt::Key_F5, Qt::ControlModifier);
  EXPECT_EQ(keyField(14).text(), QStringLiteral("CTRL + F5"));
  EXPECT_EQ(phrases(u"HQuickChatHot14KeyCode"), platform::dwordValue(0x74));
  EXPECT_EQ(phrases(u"HQuickChatHot14Key"), bytesValue("CTRL + F5"));
}

TEST_F(Dota7ChatKeySettingWidgetTest, WritesPhrasesOnlyWhenItIsTold) {
  phrase(0).setText(QStringLiteral(u"谢谢"));
  atStart(14).setText(QStringLiteral("glhf"));
  EXPECT_EQ(phrases(u"SQuickChatString0"), std::nullopt);
  dialog->savePhrases();
  EXPECT_EQ(phrases(u"SQuickChatString0"), bytesValue(utf8(u8"谢谢")));
  EXPECT_EQ(phrases(u"SOnStartString14"), bytesValue("glhf"));
  EXPECT_EQ(phrases(u"HQuickChatHot0Key"), std::nullopt) << "key fields are no phrases";
}

TEST_F(Dota7ChatKeySettingWidgetTest, LeavesAPhraseThatItCannotReadUntilThePlayerTypesIt) {
  const auto unreadable = bytesValue("gg\xFF");
  registry.set(kDota7PhrasesPath, u"SOnStartString0", unreadable);
  dialog->showSettings();
  atStart(1).setText(QStringLiteral("glhf"));
  dialog->savePhrases();
  EXPECT_EQ(phrases(u"SOnStartString0"), unreadable);
  QTest::keyClick(&atStart(0), Qt::Key_A);
  QTest::keyClick(&atStart(0), Qt::Key_Backspace);
  dialog->savePhrases();
  EXPECT_EQ(phrases(u"SOnStartString0"), bytesValue("gg\xEF\xBF\xBD")) << "as it is shown";
}

TEST_F(Dota7ChatKeySettingWidgetTest, SaysHowToGetToAFieldOfThePage) {
  const Dota7KeyField& holder = *findDota7KeyField(u"edt_HStopKey");
  ASSERT_TRUE(manager.settings().storeKey(holder, {.code = 'S'}));
  const auto box = whenBoxIsShown([&](QMessageBox& shown) {
    EXPECT_EQ(shown.informativeText(),
              keyLine(QStringLiteral(" S"), dota7FieldTextElsewhere(holder)));
    EXPECT_TRUE(shown.informativeText().contains(dota7FieldText(holder)));
    shown.accept();
  });
  pressKey(keyField(4), Qt::Key_S);
  EXPECT_EQ(keyField(4).text(), QString());
}

// In the game's chat, Ctrl+V pastes.
TEST_F(Dota7ChatKeySettingWidgetTest, TakesTheKeyOfTheChatWheelAwayForAPaste) {
  HotkeyConfig config;
  config.editableScheme()->ChatWheelkey = KeyWord('W', 0);
  dialog = std::make_unique<Dota7ChatKeySettingWidget>(manager, nullptr, &config);
  const auto box = whenBoxIsShown([&](QMessageBox& shown) {
    EXPECT_EQ(shown.text(), QStringLiteral("IDS_KEY_USED"));
    shown.accept();
  });
  pressKey(keyField(4), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(keyField(4).text(), QString());
  EXPECT_EQ(config.scheme().ChatWheelkey, kNoKey);
  EXPECT_EQ(phrases(u"HQuickChatHot4KeyCode"), platform::dwordValue('V')) << "stored all the same";
}

TEST_F(Dota7ChatKeySettingWidgetTest, ForgetsPhrasesAndKeepsKeysWhenItIsCancelled) {
  phrase(3).setText(QStringLiteral("typed"));
  pressKey(keyField(3), Qt::Key_F6);
  dialog->findChild<QPushButton*>(QStringLiteral("btnCancel"))->click();
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  dialog->showSettings();
  EXPECT_EQ(phrase(3).text(), QString());
  EXPECT_EQ(keyField(3).text(), QStringLiteral("F6"));
  EXPECT_EQ(phrases(u"HQuickChatHot3KeyCode"), platform::dwordValue(0x75));
}

TEST_F(Dota7ChatKeySettingWidgetTest, KeepsPhrasesOfAllLengths) {
  // 86 characters of three bytes are 258; 87 are 261, one more than there is room for.
  for (const int length : {0, 1, 86, 87, 300}) {
    SCOPED_TRACE(length);
    phrase(1).setText(QString(length, QChar(u'\u8C22')));
    dialog->savePhrases();
    dialog->showSettings();
    EXPECT_EQ(phrase(1).text(), QString(qMin(length, 86), QChar(u'\u8C22')));
  }
}

TEST_F(Dota7ChatKeySettingWidgetTest, RefusesAKeyThatAnotherRowHas) {
  pressKey(keyField(0), Qt::Key_F5);
  const auto box = whenBoxIsShown([&](QMessageBox& shown) {
    EXPECT_EQ(shown.text(), QStringLiteral("IDS_KEY_USED"));
    shown.accept();
  });
  pressKey(keyField(1), Qt::Key_F5);
  EXPECT_EQ(keyField(1).text(), QString());
  EXPECT_EQ(phrases(u"HQuickChatHot0KeyCode"), platform::dwordValue(0x74));
}

TEST_F(Dota7ChatKeySettingWidgetTest, IsMovedWithTheLeftButton) {
  dialog->move(100, 100);
  dialog->show();
  const auto send = [&](QEvent::Type type, Qt::MouseButton button, QPoint at) {
    QMouseEvent event(type, QPoint(5, 5), at, button, button, Qt::NoModifier);
    QApplication::sendEvent(dialog.get(), &event);
  };
  const QPoint start = dialog->pos();
  send(QEvent::MouseButtonPress, Qt::LeftButton, start + QPoint(5, 5));
  send(QEvent::MouseMove, Qt::LeftButton, start + QPoint(25, 35));
  EXPECT_EQ(dialog->pos(), start + QPoint(20, 30));
  send(QEvent::MouseButtonRelease, Qt::LeftButton, start + QPoint(25, 35));
  send(QEvent::MouseMove, Qt::LeftButton, start + QPoint(99, 99));
  EXPECT_EQ(dialog->pos(), start + QPoint(20, 30));
}

TEST_F(Dota7ChatKeySettingWidgetTest, HasNamesForScreenReaders) {
  dialog->show();
  expectAccessible(*dialog);
}

}  // namespace
}  // namespace brennet::test
