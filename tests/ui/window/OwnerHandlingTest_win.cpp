// What happens to the windows of a host while a dialog of ours runs in front of them.

#include <windows.h>

#include <gtest/gtest.h>

#include <QDialog>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <functional>
#include <stdexcept>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "platform/OwnerWindow.h"
#include "tests/support/ScopedRegistry.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/window/ModalRun.h"
#include "ui/window/ScreenFit.h"

namespace brennet::test {
namespace {

struct Look {
  const wchar_t* className = L"STATIC";
  DWORD style = WS_OVERLAPPEDWINDOW;
  DWORD exStyle = 0;
  HWND owner = nullptr;
};

// A window of a host that knows nothing of Qt. The newest one is in front, and active.
class HostWindow {
 public:
  HostWindow() : HostWindow(Look{}) {}
  explicit HostWindow(const Look& look)
      : handle_(CreateWindowExW(look.exStyle, look.className, L"host", look.style | WS_VISIBLE, 0,
                                0, 200, 100, look.owner, nullptr, nullptr, nullptr)) {
    EXPECT_NE(handle_, nullptr);
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

Look popupOf(const HostWindow& owner) {
  return {.style = WS_POPUP | WS_CAPTION, .owner = owner.handle()};
}

// Registers a class of windows that answer their messages by `answer`.
void registerClass(const wchar_t* name, WNDPROC answer) {
  WNDCLASSW type{};
  type.lpfnWndProc = answer;
  type.hInstance = GetModuleHandleW(nullptr);
  type.lpszClassName = name;
  ASSERT_NE(RegisterClassW(&type), 0);
}

// Runs a dialog, calls `look` meanwhile and ends the dialog with `result`.
int run(int result, const std::function<void()>& look) {
  QDialog dialog;
  QTimer::singleShot(0, [&] {
    look();
    dialog.done(result);
  });
  return runModal(dialog);
}

class OwnerHandling : public testing::Test {
 protected:
  OwnerHandling() { setOwnerHandling(true); }
  ~OwnerHandling() override { setOwnerHandling(false); }
};

class OwnerHandlingByResult : public OwnerHandling, public testing::WithParamInterface<int> {};

TEST_P(OwnerHandlingByResult, DisablesTheHostsWindowWhileTheDialogRuns) {
  const HostWindow host;
  ASSERT_TRUE(host.isEnabled());
  EXPECT_EQ(run(GetParam(), [&] { EXPECT_FALSE(host.isEnabled()); }), GetParam());
  EXPECT_TRUE(host.isEnabled());
  EXPECT_EQ(GetActiveWindow(), host.handle());
}

TEST_P(OwnerHandlingByResult, NeedsNoHostsWindow) {
  EXPECT_EQ(run(GetParam(), [] {}), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Of, OwnerHandlingByResult,
                         testing::Values(QDialog::Accepted, QDialog::Rejected));

TEST_F(OwnerHandling, DisablesThePopupAndItsRoot) {
  const HostWindow root;
  const HostWindow popup(popupOf(root));
  ASSERT_EQ(GetActiveWindow(), popup.handle());
  run(QDialog::Rejected, [&] {
    EXPECT_FALSE(root.isEnabled());
    EXPECT_FALSE(popup.isEnabled());
  });
  EXPECT_TRUE(root.isEnabled());
  EXPECT_TRUE(popup.isEnabled());
  EXPECT_EQ(GetActiveWindow(), popup.handle()) << "the player was there";
}

TEST_F(OwnerHandling, DisablesThePopupThatWasActiveLast) {
  const HostWindow root;
  Look look = popupOf(root);
  look.exStyle = WS_EX_TOOLWINDOW;  // which is no owner itself
  const HostWindow popup(look);
  SetActiveWindow(nullptr);
  ASSERT_EQ(GetActiveWindow(), nullptr);
  ASSERT_EQ(GetLastActivePopup(root.handle()), popup.handle());
  run(QDialog::Rejected, [&] {
    EXPECT_FALSE(root.isEnabled());
    EXPECT_FALSE(popup.isEnabled());
  });
  EXPECT_TRUE(root.isEnabled());
  EXPECT_TRUE(popup.isEnabled());
  EXPECT_EQ(GetActiveWindow(), popup.handle());
}

TEST_F(OwnerHandling, LeavesDisabledWhatWasDisabled) {
  const HostWindow root;
  const HostWindow popup(popupOf(root));
  EnableWindow(root.handle(), FALSE);
  ASSERT_EQ(GetActiveWindow(), popup.handle());
  run(QDialog::Rejected, [&] { EXPECT_FALSE(popup.isEnabled()); });
  EXPECT_FALSE(root.isEnabled()) << "the host's own modal window stands before it";
  EXPECT_TRUE(popup.isEnabled());
  EXPECT_EQ(GetActiveWindow(), popup.handle());
}

// Keeps the mouse when the window is disabled; other windows let go of it then.
LRESULT CALLBACK keepTheMouse(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return message == WM_CANCELMODE ? 0 : DefWindowProcW(window, message, wParam, lParam);
}

TEST_F(OwnerHandling, TakesTheMouseFromTheRoot) {
  registerClass(L"BrennetKeepsTheMouse", keepTheMouse);
  const HostWindow root(Look{.className = L"BrennetKeepsTheMouse"});
  const HostWindow popup(popupOf(root));
  SetCapture(root.handle());
  ASSERT_EQ(GetCapture(), root.handle());
  const platform::OwnerWindows disabled = platform::disableOwnerWindows();
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(disabled.root, root.handle());
  EXPECT_EQ(disabled.popup, popup.handle());
  platform::enableOwnerWindows(disabled);
  EXPECT_TRUE(root.isEnabled());
}

TEST_F(OwnerHandling, PassesOverToolWindowsAndToolTips) {
  registerClass(L"tooltips_class32", DefWindowProcW);
  const HostWindow host;
  const HostWindow hidden;
  ShowWindow(hidden.handle(), SW_HIDE);
  const HostWindow tool(Look{.exStyle = WS_EX_TOOLWINDOW});
  const HostWindow toolTip(Look{.className = L"tooltips_class32", .style = WS_POPUP});
  SetActiveWindow(nullptr);
  ASSERT_EQ(GetActiveWindow(), nullptr) << "else it would be the owner";
  run(QDialog::Rejected, [&] {
    EXPECT_FALSE(host.isEnabled());
    EXPECT_TRUE(hidden.isEnabled());
    EXPECT_TRUE(tool.isEnabled());
    EXPECT_TRUE(toolTip.isEnabled());
  });
  EXPECT_TRUE(host.isEnabled());
  EXPECT_EQ(GetActiveWindow(), host.handle());
}

// A host may make the active window the child of another one.
TEST_F(OwnerHandling, TakesTheParentInPlaceOfAChild) {
  const HostWindow host;
  const HostWindow inner;
  SetParent(inner.handle(), host.handle());
  SetActiveWindow(inner.handle());
  SetWindowLongW(inner.handle(), GWL_STYLE, WS_CHILD | WS_VISIBLE);
  ASSERT_EQ(GetActiveWindow(), inner.handle());
  run(QDialog::Rejected, [&] {
    EXPECT_FALSE(host.isEnabled());
    EXPECT_TRUE(inner.isEnabled()) << "not for itself";
  });
  EXPECT_TRUE(host.isEnabled());
  EXPECT_TRUE(inner.isEnabled());
  EXPECT_EQ(GetActiveWindow(), host.handle());
}

// The dialog on settings of its own, run in front of a host's window.
class OwnerHandlingBeforeAHost : public OwnerHandling {
 protected:
  // Runs the dialog, calls `look` when it has come up, and cancels it.
  int runSettings(const std::function<void()>& look) {
    QTimer::singleShot(0, [&] {
      look();
      dialog.findChild<QPushButton*>(QStringLiteral("btnCancel"), Qt::FindDirectChildrenOnly)
          ->click();
    });
    return runModal(dialog);
  }

  HostWindow host;
  ScopedRegistry registry;
  Dota7KeyInfoManager manager;
  HotkeyConfig config;
  CHotkeySettingDlg dialog{config, manager};
};

TEST_F(OwnerHandlingBeforeAHost, GiveTheWindowBackWhenTheyAreCancelled) {
  EXPECT_EQ(runSettings([&] {
              EXPECT_TRUE(dialog.isVisible());
              EXPECT_FALSE(host.isEnabled());
            }),
            QDialog::Rejected);
  EXPECT_TRUE(host.isEnabled());
  EXPECT_EQ(GetActiveWindow(), host.handle());
}

TEST_F(OwnerHandlingBeforeAHost, HaveTheKeyboard) {
  runSettings([&] { EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog)); });
}

TEST_F(OwnerHandlingBeforeAHost, GiveTheKeyboardToTheirOwnWindows) {
  runSettings([&] {
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto& chat = *dialog.findChild<ChatKeySettingWidget*>();
    QTimer::singleShot(0, [&chat] {
      EXPECT_TRUE(QTest::qWaitForWindowActive(&chat));
      chat.reject();
    });
    dialog.onShowHotKeySettingDlg();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog)) << "and have it again";
  });
}

platform::WindowFrame frameOf(const HostWindow& window) {
  RECT frame{};
  GetWindowRect(window.handle(), &frame);
  return {frame.left, frame.top, frame.right - frame.left, frame.bottom - frame.top};
}

void expectPlaceOf(const HostWindow& window) {
  const auto place = platform::ownerFrame();
  ASSERT_TRUE(place.has_value());
  const platform::WindowFrame frame = frameOf(window);
  EXPECT_EQ(place->left, frame.left);
  EXPECT_EQ(place->top, frame.top);
  EXPECT_EQ(place->width, frame.width);
  EXPECT_EQ(place->height, frame.height);
}

void moveTo(const HostWindow& window, int x, int y) {
  SetWindowPos(window.handle(), nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

TEST(OwnerHandlingPlace, IsThatOfTheWindowThatThePlayerHasBeforeHim) {
  const HostWindow root;
  moveTo(root, 30, 20);
  expectPlaceOf(root);
  const HostWindow popup(popupOf(root));
  moveTo(popup, 300, 200);
  ASSERT_EQ(GetActiveWindow(), popup.handle());
  expectPlaceOf(popup);
}

TEST(OwnerHandlingPlace, IsNoneWithoutAWindowThatIsSeen) {
  EXPECT_FALSE(platform::ownerFrame().has_value());
  const HostWindow host;
  ShowWindow(host.handle(), SW_MINIMIZE);
  SetActiveWindow(host.handle());
  EXPECT_FALSE(platform::ownerFrame().has_value());
}

TEST_F(OwnerHandlingBeforeAHost, ComeUpInTheMiddleOfIt) {
  moveTo(host, 250, 300);
  runSettings([&] {
    const QScreen& screen = *dialog.screen();
    const platform::WindowFrame frame = frameOf(host);
    const QPoint middle(frame.left + frame.width / 2, frame.top + frame.height / 2);
    const QPoint corner = middle / screen.devicePixelRatio() - dialog.rect().center();
    EXPECT_LE((dialog.pos() - cornerInside(screen.availableGeometry(), dialog.size(), corner))
                  .manhattanLength(),
              2);
  });
}

class AFailingDialog : public QDialog {
 public:
  void setVisible(bool visible) override {
    if (visible) throw std::runtime_error("out of luck");
  }
};

TEST_F(OwnerHandling, GivesTheWindowBackWhenTheDialogFails) {
  const HostWindow host;
  AFailingDialog dialog;
  EXPECT_THROW(runModal(dialog), std::runtime_error);
  EXPECT_TRUE(host.isEnabled());
  EXPECT_EQ(GetActiveWindow(), host.handle());
}

TEST(OwnerHandlingLeftOut, TheHostsWindowIsLeftAlone) {
  const HostWindow host;
  EXPECT_EQ(run(QDialog::Accepted, [&] { EXPECT_TRUE(host.isEnabled()); }), QDialog::Accepted);
}

}  // namespace
}  // namespace brennet::test
