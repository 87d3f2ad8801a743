// Windows of the system on the screen of this machine, whatever its size: each is wholly inside, in
// both languages.

#include <windows.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTranslator>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "tests/support/ScopedRegistry.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/keymap/SchemeKeyMap.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"
#include "ui/pages/KeyMapWindow.h"
#include "ui/pages/SchemeTransferWindow.h"
#include "ui/window/CMsgBox.h"

namespace brennet::test {
namespace {

HWND handleOf(const QWidget& window) {
  return reinterpret_cast<HWND>(window.winId());
}

class OnThisScreen : public testing::TestWithParam<const char*> {
 protected:
  OnThisScreen() {
    const QString name = QStringLiteral("brennet_%1.qm").arg(QLatin1String(GetParam()));
    EXPECT_TRUE(catalogue_.load(name, QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&catalogue_);
  }

  // Asks the system, not Qt, about the window and the screen.
  static void expectInside(QWidget& window) {
    SCOPED_TRACE(window.metaObject()->className());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    RECT frame = {};
    RECT work = {};
    ASSERT_NE(GetWindowRect(handleOf(window), &frame), FALSE);
    ASSERT_NE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0), FALSE);
    EXPECT_GE(frame.left, work.left);
    EXPECT_GE(frame.top, work.top);
    EXPECT_LE(frame.right, work.right);
    EXPECT_LE(frame.bottom, work.bottom);
    for (const char* const name : {"btnOK", "btnCancel", "btnClose"}) {
      const auto* const button = window.findChild<QWidget*>(QLatin1String(name));
      if (button == nullptr || button->window() != &window) continue;
      EXPECT_TRUE((QRegion(button->rect()) - button->visibleRegion()).isEmpty()) << name;
    }
  }

  ScopedRegistry registry;
  Dota7KeyInfoManager manager;
  HotkeyConfig config;

 private:
  QTranslator catalogue_;
};

TEST_P(OnThisScreen, TheSettingsAreWhole) {
  for (const bool isDota7 : {false, true}) {
    CHotkeySettingDlg dialog(config, manager);
    if (isDota7) dialog.onSwitchDota7KeySettingDlg();
    expectInside(dialog);
  }
}

TEST_P(OnThisScreen, TheOtherWindowsAreWhole) {
  CHotkeySettingDlg dialog(config, manager);
  dialog.show();
  dialog.move(QGuiApplication::primaryScreen()->availableGeometry().bottomRight());
  expectInside(*dialog.findChild<ChatKeySettingWidget*>());
  expectInside(*dialog.findChild<Dota7ChatKeySettingWidget*>());
  COrrerySettingDlg orrery;
  expectInside(orrery);
  KeyMapWindow keyMap(&dialog);
  keyMap.setMap(keyMapOf(config.scheme()), false);
  expectInside(keyMap);
  SchemeTransferWindow preview(QStringLiteral("Copy"), config.scheme(), {SchemeOffer()}, &dialog);
  expectInside(preview);
  CMsgBox box(QMessageBox::Warning, QCoreApplication::translate("QObject", "IDS_TITLE"),
              QCoreApplication::translate("QObject", "IDS_GROUP_KEY_USED"), QMessageBox::Ok,
              &dialog);
  box.setButtonTexts();
  expectInside(box);
}

// The host's window need not be one of Qt's.
TEST_P(OnThisScreen, TheSettingsComeUpOverAHostOfAnotherKind) {
  HWND const host = CreateWindowExW(0, L"STATIC", L"host", WS_POPUP | WS_VISIBLE, 200, 150, 640,
                                    400, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  ASSERT_NE(host, nullptr);
  SetActiveWindow(host);
  ASSERT_EQ(GetActiveWindow(), host);
  CHotkeySettingDlg dialog(config, manager);
  expectInside(dialog);
  const QRect all = QGuiApplication::primaryScreen()->availableGeometry();
  const int middle = qBound(dialog.width() / 2, 200 + 320, all.width() - dialog.width() / 2);
  EXPECT_NEAR(dialog.geometry().center().x(), middle, 2);
  DestroyWindow(host);
}

INSTANTIATE_TEST_SUITE_P(In, OnThisScreen, testing::Values("en", "zh_CN"),
                         [](const auto& language) { return std::string(language.param); });

}  // namespace
}  // namespace brennet::test
