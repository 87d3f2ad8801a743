// Windows whose style sheet is missing, or whose pictures are.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/CBasicSettingWidget.h"
#include "ui/pages/CChatRouletteSettingWidget.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/window/CMsgBox.h"
#include "ui/window/StyleSheet.h"

namespace brennet::test {
namespace {

TEST(UnskinnedBoxWithoutItsSheet, TellsOfItInAPlainBoxAndStaysUsable) {
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

TEST(UnskinnedDialogWithoutItsSheet, TellsOfItInABoxAndStaysUsable) {
  const CaughtMessages messages;  // about missing pictures as well
  const ScopedRegistry registry;
  Dota7KeyInfoManager manager;
  HotkeyConfig config;
  CHotkeySettingDlg dialog(config, manager);
  std::optional<ExpectedBox> second;
  const auto first = whenBoxIsShown([&](QMessageBox& complaintOfTheBox) {
    EXPECT_EQ(qobject_cast<CMsgBox*>(&complaintOfTheBox), nullptr);
    complaintOfTheBox.button(QMessageBox::Ok)->click();
    second.emplace([&](QMessageBox& box) {
      EXPECT_NE(qobject_cast<CMsgBox*>(&box), nullptr);
      EXPECT_EQ(box.parentWidget(), &dialog);
      EXPECT_EQ(box.icon(), QMessageBox::Critical);
      EXPECT_EQ(box.windowTitle(), QStringLiteral("error"));
      EXPECT_EQ(box.text(), QStringLiteral("failed to read qss file"));
      EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
      box.button(QMessageBox::Ok)->click();
    });
  });
  dialog.show();
  EXPECT_TRUE(dialog.styleSheet().isEmpty());
  pressKey(*dialog.findChild<CBasicSetting7Widget*>()->findChild<QLineEdit*>(
               QStringLiteral("edtSkill_12")),
           Qt::Key_Q);
  EXPECT_EQ(config.scheme().HeroSkillKey[11], KeyWord('Q', 0));
  dialog.findChild<QPushButton*>(QStringLiteral("btnOK"), Qt::FindDirectChildrenOnly)->click();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_FALSE(dialog.isVisible());
  const NoBoxes noBoxes;
  dialog.show();
  QCoreApplication::processEvents();
}

enum class Missing { Sheet, Pictures };

class UnskinnedWindowWithoutItsSkin : public testing::TestWithParam<Missing> {
 protected:
  // Qt reports each missing picture, and the pages trace their fields.
  ~UnskinnedWindowWithoutItsSkin() override {
    for (const QString& message : messages_.texts()) {
      const QString text = QDir::fromNativeSeparators(message);
      const QLatin1String expected[] = {
          QLatin1String("Could not create pixmap from :/skin/image/"),
          QLatin1String("getEditControlTypeByParseName"),
          QLatin1String("This plugin does not support "),
      };
      EXPECT_TRUE(std::any_of(std::begin(expected), std::end(expected), [&](QLatin1String start) {
        return text.startsWith(start);
      })) << qPrintable(text);
    }
    EXPECT_FALSE(QFile::exists(QStringLiteral(":/skin/image/auto.png")));
  }
  void open(QWidget& window) {
    if (GetParam() == Missing::Pictures) {
      ASSERT_TRUE(loadStyleSheet(window, QStringLiteral(BRENNET_SKIN_FOLDER "/war3key.qss")));
    }
    window.show();
    QCoreApplication::processEvents();
    window.grab();
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
      const bool isControl = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                             qobject_cast<QLineEdit*>(widget) != nullptr;
      if (!isControl || !widget->isVisibleTo(&window)) continue;
      EXPECT_GE(widget->width(), 10) << qPrintable(widget->objectName());
      EXPECT_GE(widget->height(), 10) << qPrintable(widget->objectName());
    }
  }
  template <class Widget>
  static Widget& find(const QWidget& window, const char* name) {
    auto* const widget = window.findChild<Widget*>(QLatin1String(name));
    if (widget == nullptr) qFatal("there is no %s", name);
    return *widget;
  }
  static void press(const QWidget& window, const char* field, Qt::Key key) {
    pressKey(find<QLineEdit>(window, field), key);
  }
  static void click(const QWidget& window, const char* button) {
    auto& widget = find<QAbstractButton>(window, button);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(5, widget.height() / 2));
  }

  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();

 private:
  const CaughtMessages messages_;
};

TEST_P(UnskinnedWindowWithoutItsSkin, IsUsableAsABasicPage) {
  CBasicSetting7Widget page(config, nullptr);
  open(page);
  press(page, "edtSkill_12", Qt::Key_Q);
  EXPECT_EQ(scheme.HeroSkillKey[11], KeyWord('Q', 0));
  click(page, "btn_skillcast_1");
  EXPECT_EQ(scheme.HeroSkillAutocast[0], true);
  click(page, "chkDisableLWin");
  EXPECT_EQ(scheme.DisableLWinFlag, 1);
}

TEST_P(UnskinnedWindowWithoutItsSkin, IsUsableAsAnOlderBasicPage) {
  CBasicSettingWidget page(config, nullptr);
  open(page);
  press(page, "edtGoodsKey_7", Qt::Key_Q);
  EXPECT_EQ(scheme.ItemKey[0], KeyWord('Q', 0));
  click(page, "chkKeepNoStretch");
  EXPECT_EQ(scheme.ViewNoDragFlag, 1);
}

TEST_P(UnskinnedWindowWithoutItsSkin, IsUsableAsAnAdvancedPage) {
  CAdvancedSettingWidget page(config, nullptr);
  open(page);
  press(page, "edtShowFBlood", Qt::Key_Q);
  EXPECT_EQ(scheme.ShowFBlood, KeyWord('Q', 0));
  click(page, "optChatKey_2");
  EXPECT_EQ(scheme.QuickChatIndex, 1U);
}

TEST_P(UnskinnedWindowWithoutItsSkin, IsUsableAsAChatWheelPage) {
  CChatRouletteSettingWidget page(config, nullptr);
  open(page);
  press(page, "edtChatWheelKey", Qt::Key_Q);
  EXPECT_EQ(scheme.ChatWheelkey, KeyWord('Q', 0));
}

TEST_P(UnskinnedWindowWithoutItsSkin, IsUsableAsAQuickChatWindow) {
  ChatKeySettingWidget dialog(config, nullptr);
  open(dialog);
  find<QLineEdit>(dialog, "chatLineEdit_3").setText(QStringLiteral("glhf"));
  click(dialog, "btnOK");
  EXPECT_EQ(scheme.QuickChat[2], u"glhf");
  EXPECT_FALSE(dialog.isVisible());
}

TEST_P(UnskinnedWindowWithoutItsSkin, IsUsableAsAnOrreryWindow) {
  COrrerySettingDlg dialog;
  EXPECT_TRUE(dialog.styleSheet().isEmpty());
  open(dialog);
  click(dialog, "chkShowFriendsMana");
  EXPECT_TRUE(find<QAbstractButton>(dialog, "chkShowFriendsMana").isChecked());
  click(dialog, "btnClose");
  EXPECT_FALSE(dialog.isVisible());
}

INSTANTIATE_TEST_SUITE_P(Of, UnskinnedWindowWithoutItsSkin,
                         testing::Values(Missing::Sheet, Missing::Pictures), [](const auto& what) {
                           return what.param == Missing::Sheet ? std::string("Sheet")
                                                               : std::string("Pictures");
                         });

}  // namespace
}  // namespace brennet::test
