// Windows as the system sees them: what it is told about points, and which window owns which.

#include <windows.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "tests/support/ScopedRegistry.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/window/CMsgBox.h"

namespace brennet::test {
namespace {

HWND handleOf(const QWidget& window) {
  return reinterpret_cast<HWND>(window.winId());
}

// What the window answers when the system asks about one of its points.
LRESULT hitAt(const QWidget& window, QPoint point) {
  const QPoint global = window.mapToGlobal(point);
  const auto ratio = window.devicePixelRatioF();
  const auto packed = MAKELPARAM(qRound(global.x() * ratio), qRound(global.y() * ratio));
  return SendMessageW(handleOf(window), WM_NCHITTEST, 0, packed);
}

QPoint centreOf(const QWidget& widget) {
  return widget.mapTo(widget.window(), widget.rect().center());
}

TEST(OnScreenBox, TellsTheSystemWhereItCanBeDragged) {
  CMsgBox box(QMessageBox::Warning, QStringLiteral("title"),
              QStringLiteral("a text that is long enough to make the box a wide one"),
              QMessageBox::Ok);
  box.setButtonTexts();
  box.show();
  QCoreApplication::processEvents();
  const QMargins margins = box.contentsMargins();
  const QPoint inStrip(box.width() / 2, margins.top() + 5);
  const auto* const close = box.findChild<QPushButton*>(QStringLiteral("btnClose"));
  EXPECT_EQ(hitAt(box, inStrip), HTCAPTION);
  EXPECT_EQ(hitAt(box, centreOf(*close)), HTCLIENT);
  EXPECT_EQ(hitAt(box, centreOf(*box.button(QMessageBox::Ok))), HTCLIENT);
  EXPECT_EQ(hitAt(box, QPoint(box.width() / 2, margins.top() + 31)), HTCLIENT) << "below the strip";
  EXPECT_EQ(hitAt(box, QPoint(0, 0)), margins.isNull() ? HTCAPTION : HTTOPLEFT);
}

TEST(OnScreenOrreryWindow, CanBeDraggedByItsEmptyPlaces) {
  COrrerySettingDlg dialog;
  dialog.show();
  QCoreApplication::processEvents();
  EXPECT_EQ(hitAt(dialog, centreOf(*dialog.findChild<QLabel*>(QStringLiteral("lblTitle")))),
            HTCAPTION);
  const auto* const mana = dialog.findChild<QCheckBox*>(QStringLiteral("chkShowFriendsMana"));
  EXPECT_EQ(hitAt(dialog, centreOf(*mana)), HTCLIENT);
}

TEST(OnScreenOrreryWindow, IsAToolWindowOfTheDialog) {
  HotkeyConfig config;
  QDialog dialog;
  auto* const page = new CBasicSetting7Widget(config, &dialog);
  dialog.show();
  page->onClickedOrrerySettingBtn();
  QCoreApplication::processEvents();
  const auto windows = QApplication::topLevelWidgets();
  const auto orrery = std::find_if(windows.begin(), windows.end(), [](QWidget* window) {
    return qobject_cast<COrrerySettingDlg*>(window) != nullptr;
  });
  ASSERT_NE(orrery, windows.end());
  EXPECT_NE(IsWindowVisible(handleOf(**orrery)), FALSE);
  EXPECT_EQ(GetWindow(handleOf(**orrery), GW_OWNER), handleOf(dialog));
  EXPECT_NE(GetWindowLongW(handleOf(**orrery), GWL_EXSTYLE) & WS_EX_TOOLWINDOW, 0);
}

TEST(OnScreenSettingsDialog, TellsTheSystemWhereItCanBeDragged) {
  const ScopedRegistry registry;
  Dota7KeyInfoManager manager;
  HotkeyConfig config;
  CHotkeySettingDlg dialog(config, manager);
  dialog.show();
  QCoreApplication::processEvents();
  const auto& page = *dialog.findChild<CBasicSetting7Widget*>();
  const auto middleOf = [&dialog](const char* name) {
    return centreOf(*dialog.findChild<QWidget*>(QLatin1String(name)));
  };
  const auto placeOn = [&](const char* group, QPoint place) {
    return page.findChild<QWidget*>(QLatin1String(group))->mapTo(&dialog, place);
  };
  struct {
    const char* what;
    QPoint place;
    LRESULT answer;
  } const kRows[] = {
      {"the title strip", {dialog.width() / 2, middleOf("titleWidget").y()}, HTCAPTION},
      {"the title", middleOf("lblTitle"), HTCAPTION},
      {"the close button", middleOf("btnClose"), HTCLIENT},
      {"the link", middleOf("lblResetToDefaultSetting"), HTCLIENT},
      {"OK", middleOf("btnOK"), HTCLIENT},
      {"a key field", middleOf("edtSkill_1"), HTCLIENT},
      {"a group box", placeOn("grpHeroSkill", {12, 3}), HTCAPTION},
      {"between groups", placeOn("grpNumKeypad", {-3, 20}), HTCAPTION},
      {"beside OK", middleOf("btnOK") - QPoint(200, 0), HTCAPTION},
  };
  for (const auto& row : kRows) EXPECT_EQ(hitAt(dialog, row.place), row.answer) << row.what;
}

}  // namespace
}  // namespace brennet::test
