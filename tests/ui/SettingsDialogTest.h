#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <memory>

#include "model/HotkeyConfig.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/CDotA7BasicSetting.h"

namespace brennet::test {

// The settings dialog on settings and a registry of its own.
class SettingsDialog : public Dota7Test {
 protected:
  SettingsDialog() { dialog = std::make_unique<CHotkeySettingDlg>(config, manager); }

  // Puts the dialog on the screen, where its widgets can have the focus.
  void show() {
    dialog->show();
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }

  template <class Widget>
  Widget& find(const char* name) {
    return *dialog->findChild<Widget*>(QLatin1String(name));
  }
  template <class Page>
  Page& page() {
    return *dialog->findChild<Page*>();
  }
  // A control on one page; some names occur on several.
  template <class Page, class Widget = QLineEdit>
  Widget& on(const char* name) {
    return *page<Page>().template findChild<Widget*>(QLatin1String(name));
  }
  QLineEdit& skill(int number) {
    return *page<CBasicSetting7Widget>().findChild<QLineEdit*>(
        QStringLiteral("edtSkill_%1").arg(number));
  }
  QLineEdit& stopKey() { return on<CDotA7BasicSetting>("edt_HStopKey"); }
  QLabel& resetLink() { return find<QLabel>("lblResetToDefaultSetting"); }

  static void clickLink(QLabel& link) {
    QTest::mouseClick(&link, Qt::LeftButton, Qt::NoModifier, link.rect().center());
  }
  static ExpectedBox answer(QMessageBox::StandardButton button) {
    return whenBoxIsShown([button](QMessageBox& box) { box.button(button)->click(); });
  }

  HotkeyConfig config;
  std::unique_ptr<CHotkeySettingDlg> dialog;
};

}  // namespace brennet::test
