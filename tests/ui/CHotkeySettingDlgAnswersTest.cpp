// What becomes of the registry, however the settings dialog ends.

#include <QPushButton>
#include <QTimer>

#include <functional>
#include <optional>

#include "tests/ui/SettingsDialogTest.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"

namespace brennet::test {
namespace {

class CHotkeySettingDlgAnswersTest : public SettingsDialog {
 protected:
  CHotkeySettingDlgAnswersTest() {
    registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
    before = registry.content();
  }

  // The player goes to the DotA 7 mode and chooses another key there.
  void changeAKey() {
    dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
    ASSERT_NO_FATAL_FAILURE(show());
    dialog->onSwitchDota7KeySettingDlg();
    ASSERT_EQ(stopKey().text(), QStringLiteral("S"));
    pressKey(stopKey(), Qt::Key_X);
    ASSERT_EQ(control(u"HStopKeyCode"), platform::dwordValue('X'));
  }
  // A modifier alone is a key as well, unless another key follows.
  void holdControlDown() {
    ASSERT_NO_FATAL_FAILURE(show());
    dialog->onSwitchDota7KeySettingDlg();
    stopKey().setFocus();
    ASSERT_TRUE(stopKey().hasFocus());
    pressKey(stopKey(), Qt::Key_Control, Qt::ControlModifier);
    ASSERT_EQ(control(u"HStopKeyCode"), platform::dwordValue(Dota7Key::kCtrl));
  }

  platform::RegFile before;
};

TEST_F(CHotkeySettingDlgAnswersTest, TakeTheRegistryBackUnlessItIsAccepted) {
  struct {
    const char* name;
    std::function<void(CHotkeySettingDlg&)> end;
  } const kRows[] = {
      {"Cancel", [](auto& it) { it.onClickedCancelBtn(); }},
      {"reject", [](auto& it) { it.reject(); }},
      {"close", [](auto& it) { it.close(); }},
      {"hide", [](auto& it) { it.hide(); }},
      {"done", [](auto& it) { it.done(QDialog::Rejected); }},
      {"none", [](auto& /*it*/) {}},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.name);
    ASSERT_NO_FATAL_FAILURE(changeAKey());
    row.end(*dialog);
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    dialog.reset();
    EXPECT_EQ(registry.content(), before);
  }
}

TEST_F(CHotkeySettingDlgAnswersTest, TakeItBackAtOnceWhereTheyAreCancel) {
  for (const char* const button : {"btnCancel", "btnClose"}) {
    ASSERT_NO_FATAL_FAILURE(changeAKey());
    find<QPushButton>(button).click();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(registry.content(), before);
  }
}

TEST_F(CHotkeySettingDlgAnswersTest, KeepTheRegistryWhenItIsAccepted) {
  ASSERT_NO_FATAL_FAILURE(changeAKey());
  find<QPushButton>("btnOK").click();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  dialog.reset();
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue('X'));
  manager.cancelChanges();
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue('X')) << "a later Cancel is too late";
}

TEST_F(CHotkeySettingDlgAnswersTest, LetEditsOutliveASwitchOfModes) {
  ASSERT_NO_FATAL_FAILURE(changeAKey());
  dialog->onSwitchPlatKeySettingDlg();
  dialog->onSwitchDota7KeySettingDlg();
  EXPECT_EQ(stopKey().text(), QStringLiteral("X"));
  dialog->close();
  EXPECT_EQ(registry.content(), before);
}

// The same dialog edits the chat wheel of the settings, in its other mode.
TEST_F(CHotkeySettingDlgAnswersTest, TakeTheChatWheelsKeyAwayForAPasteInTheOtherMode) {
  config.editableScheme()->ChatWheelkey = KeyWord('W', 0);
  ASSERT_NO_FATAL_FAILURE(changeAKey());
  const auto box = whenBoxIsShown([](QMessageBox& shown) { shown.accept(); });
  pressKey(stopKey(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(config.scheme().ChatWheelkey, kNoKey);
}

TEST_F(CHotkeySettingDlgAnswersTest, TakeTheRegistryBackWithAModifierStillDown) {
  ASSERT_NO_FATAL_FAILURE(holdControlDown());
  find<QPushButton>("btnCancel").click();
  EXPECT_EQ(registry.content(), before);
  EXPECT_TRUE(manager.records().empty());
}

TEST_F(CHotkeySettingDlgAnswersTest, KeepNoModifierThatIsStillDown) {
  ASSERT_NO_FATAL_FAILURE(holdControlDown());
  find<QPushButton>("btnOK").click();
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue(0));
  EXPECT_TRUE(manager.records().empty()) << "it went before the changes were counted";
  manager.cancelChanges();
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue(0));
}

// The windows for phrases, which the dialog runs.
class CHotkeySettingDlgAnswersOfChat : public SettingsDialog {
 protected:
  QLineEdit& greeting() { return on<Dota7ChatKeySettingWidget>("edt_SOnStartString0"); }
  // Runs the window and calls `act` with it.
  void run(const std::function<void(QDialog&)>& act) {
    bool isOpen = false;
    QTimer::singleShot(0, [&] {
      auto* const window =
          qobject_cast<Dota7ChatKeySettingWidget*>(QApplication::activeModalWidget());
      isOpen = window != nullptr;
      if (isOpen) act(*window);
    });
    dialog->onShowDota7HotKeySettingDlg();
    EXPECT_TRUE(isOpen);
  }
  static void click(QDialog& window, const char* button) {
    window.findChild<QPushButton*>(QLatin1String(button))->click();
  }
};

TEST_F(CHotkeySettingDlgAnswersOfChat, ShowsWhatIsStoredWheneverItOpens) {
  dialog->show();
  registry.set(kDota7PhrasesPath, u"SOnStartString0", bytesValue("stored"));
  run([&](QDialog& window) {
    EXPECT_EQ(greeting().text(), QStringLiteral("stored"));
    greeting().setText(QStringLiteral("typed"));
    click(window, "btnCancel");
  });
  EXPECT_EQ(greeting().text(), QStringLiteral("stored"));
  EXPECT_EQ(phrases(u"SOnStartString0"), bytesValue("stored"));
  registry.set(kDota7PhrasesPath, u"SOnStartString0", bytesValue("newer"));
  run([&](QDialog& window) {
    EXPECT_EQ(greeting().text(), QStringLiteral("newer"));
    click(window, "btnCancel");
  });
}

TEST_F(CHotkeySettingDlgAnswersOfChat, WritesWhatItShowsByOk) {
  dialog->show();
  run([&](QDialog& window) {
    greeting().setText(QStringLiteral("glhf"));
    click(window, "btnOK");
  });
  EXPECT_EQ(phrases(u"SOnStartString0"), bytesValue("glhf"));
  run([&](QDialog& window) {
    EXPECT_EQ(greeting().text(), QStringLiteral("glhf"));
    click(window, "btnOK");
  });
  dialog->reject();
  EXPECT_EQ(phrases(u"SOnStartString0"), std::nullopt) << "Cancel of the dialog takes it back";
}

TEST_F(CHotkeySettingDlgAnswersOfChat, IsOpenedByItsButtons) {
  dialog->show();
  struct {
    QPushButton& button;
    const char* window;
  } const kRows[] = {
      {on<CBasicSetting7Widget, QPushButton>("btnTalkSetting"), "ChatKeySettingWidget"},
      {on<CDotA7BasicSetting, QPushButton>("chatHotkeyBtn"), "Dota7ChatKeySettingWidget"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.window);
    QString opened;
    QTimer::singleShot(0, [&] {
      auto* const window = static_cast<QDialog*>(QApplication::activeModalWidget());
      opened = QLatin1String(window->metaObject()->className());
      window->reject();
    });
    row.button.click();
    EXPECT_EQ(opened, QLatin1String(row.window));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  }
}

}  // namespace
}  // namespace brennet::test
