// Windows as the system has them: what it is told of points, and which window owns which.

#include <windows.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <functional>

#include "model/HotkeyConfig.h"
#include "ui/CMsgBox.h"
#include "ui/ModalRun.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/COrrerySettingDlg.h"

namespace brennet::test {
namespace {

HWND handleOf(const QWidget& window) {
  return reinterpret_cast<HWND>(window.winId());
}

// What the window answers when the system asks for a point of its own.
LRESULT hitAt(const QWidget& window, QPoint point) {
  const QPoint global = window.mapToGlobal(point);
  const auto ratio = window.devicePixelRatioF();
  const auto packed = MAKELPARAM(qRound(global.x() * ratio), qRound(global.y() * ratio));
  return SendMessageW(handleOf(window), WM_NCHITTEST, 0, packed);
}

QPoint centreOf(const QWidget& widget) {
  return widget.mapTo(widget.window(), widget.rect().center());
}

TEST(TheBoxOnAScreen, TellsTheSystemWhereItCanBeDragged) {
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

TEST(TheOrreryWindowOnAScreen, CanBeDraggedByItsEmptyPlaces) {
  COrrerySettingDlg dialog;
  dialog.show();
  QCoreApplication::processEvents();
  EXPECT_EQ(hitAt(dialog, centreOf(*dialog.findChild<QLabel*>(QStringLiteral("lblTitle")))),
            HTCAPTION);
  const auto* const mana = dialog.findChild<QCheckBox*>(QStringLiteral("chkShowFriendsMana"));
  EXPECT_EQ(hitAt(dialog, centreOf(*mana)), HTCLIENT);
}

TEST(TheOrreryWindowOnAScreen, IsAToolWindowOfTheDialog) {
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

// A window of a host that knows nothing of Qt.
class HostWindow {
 public:
  HostWindow()
      : handle_(CreateWindowW(L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100,
                              nullptr, nullptr, nullptr, nullptr)) {
    SetActiveWindow(handle_);
  }
  ~HostWindow() { DestroyWindow(handle_); }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  [[nodiscard]] HWND handle() const { return handle_; }
  [[nodiscard]] bool isEnabled() const { return IsWindowEnabled(handle_) != FALSE; }

 private:
  HWND handle_;
};

// Runs a dialog, asks `look` meanwhile and ends the dialog with `result`.
int run(int result, const std::function<void()>& look) {
  QDialog dialog;
  QTimer::singleShot(0, [&] {
    look();
    dialog.done(result);
  });
  return runModal(dialog);
}

class OwnerHandling : public testing::TestWithParam<int> {
 protected:
  OwnerHandling() { setOwnerHandling(true); }
  ~OwnerHandling() override { setOwnerHandling(false); }
};

TEST_P(OwnerHandling, DisablesTheHostsWindowWhileTheDialogRuns) {
  const HostWindow host;
  ASSERT_TRUE(host.isEnabled());
  EXPECT_EQ(run(GetParam(), [&] { EXPECT_FALSE(host.isEnabled()); }), GetParam());
  EXPECT_TRUE(host.isEnabled());
  EXPECT_EQ(GetActiveWindow(), host.handle());
}

TEST_P(OwnerHandling, NeedsNoHostsWindow) {
  EXPECT_EQ(run(GetParam(), [] {}), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Of, OwnerHandling, testing::Values(QDialog::Accepted, QDialog::Rejected));

TEST(WithoutOwnerHandling, TheHostsWindowIsLeftAlone) {
  const HostWindow host;
  EXPECT_EQ(run(QDialog::Accepted, [&] { EXPECT_TRUE(host.isEnabled()); }), QDialog::Accepted);
}

}  // namespace
}  // namespace brennet::test
