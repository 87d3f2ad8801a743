// Undo and redo in the settings dialog, as a player uses them.

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QTranslator>
#include <QWindow>

#include "tests/ui/SettingsDialogTest.h"
#include "tests/ui/history/Settle.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"

namespace brennet::test {
namespace {

class UndoInTheDialog : public SettingsDialog {
 protected:
  UndoInTheDialog() {
    EXPECT_TRUE(
        english_.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&english_);
    config.editableScheme(0)->HeroSkillKey[0] = KeyWord('Q', 0);
    config.editableScheme(1)->HeroSkillKey[0] = KeyWord('Y', 0);
    dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
    show();
  }

  QPushButton& undo() { return find<QPushButton>("btnUndo"); }
  QPushButton& redo() { return find<QPushButton>("btnRedo"); }
  static void click(QWidget& button) {
    QTest::mouseClick(&button, Qt::LeftButton);
    settle();
  }
  static void press(QWidget& field, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    field.setFocus();
    pressKey(field, key, modifiers);
    settle();
  }
  std::string undoText() { return undo().accessibleDescription().toStdString(); }

 private:
  QTranslator english_;
};

TEST_F(UndoInTheDialog, IsGreyedUntilThereIsSomething) {
  EXPECT_FALSE(undo().isEnabled());
  EXPECT_FALSE(redo().isEnabled());
  press(skill(1), Qt::Key_W);
  EXPECT_TRUE(undo().isEnabled());
  EXPECT_FALSE(redo().isEnabled());
}

TEST_F(UndoInTheDialog, BringsAKeyBackAndAway) {
  press(skill(1), Qt::Key_W);
  EXPECT_EQ(undoText(), "Hero skill 1: Q → W");
  click(undo());
  EXPECT_EQ(skill(1).text(), QStringLiteral("Q"));
  EXPECT_EQ(config.scheme().HeroSkillKey[0], KeyWord('Q', 0));
  EXPECT_FALSE(undo().isEnabled());
  EXPECT_EQ(undoText(), "");
  EXPECT_EQ(redo().accessibleDescription().toStdString(), "Hero skill 1: Q → W");
  click(redo());
  EXPECT_EQ(skill(1).text(), QStringLiteral("W"));
  EXPECT_FALSE(redo().isEnabled());
}

TEST_F(UndoInTheDialog, TakesPressesThatArriveTogetherOneByOne) {
  skill(1).setFocus();
  pressKey(skill(1), Qt::Key_W);
  pressKey(skill(1), Qt::Key_E);
  settle();
  click(undo());
  EXPECT_EQ(skill(1).text(), QStringLiteral("W"));
}

TEST_F(UndoInTheDialog, BringsBackWhatARefusedKeyEmptied) {
  press(skill(2), Qt::Key_W);
  {
    const auto box = answer(QMessageBox::Ok);
    press(skill(1), Qt::Key_W);
  }
  EXPECT_EQ(skill(1).text(), QString());
  EXPECT_EQ(undoText(), "Hero skill 1: Q → none");
  click(undo());
  EXPECT_EQ(skill(1).text(), QStringLiteral("Q"));
  EXPECT_EQ(skill(2).text(), QStringLiteral("W"));
}

TEST_F(UndoInTheDialog, TakesAClickForOneStep) {
  click(find<QPushButton>("btn_SetAll_AutoCast"));
  EXPECT_EQ(undoText().substr(0, 24), "Hero skill 1: quick cast");
  click(undo());
  EXPECT_FALSE(config.scheme().HeroSkillAutocast[0].has_value());
  EXPECT_FALSE(find<QPushButton>("btn_skillcast_1").isChecked());
  EXPECT_FALSE(undo().isEnabled());
}

// Mana is not shown without health, so the one takes the other along.
TEST_F(UndoInTheDialog, TakesWhatFollowsAsPartOfTheStep) {
  const auto orrery = [this]() -> QCheckBox& {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (qobject_cast<COrrerySettingDlg*>(window) != nullptr) {
        return static_cast<COrrerySettingDlg*>(window)->manaBox();
      }
    }
    throw std::logic_error("no Orrery window");
  };
  orrery().click();
  settle();
  EXPECT_EQ(config.scheme().ShowFBloodFlag, 1);
  click(undo());
  EXPECT_FALSE(orrery().isChecked());
  EXPECT_FALSE(find<QCheckBox>("chkShowFriendBlood").isChecked());
  EXPECT_FALSE(undo().isEnabled());
}

TEST_F(UndoInTheDialog, BringsBackAWholeGroup) {
  find<QCheckBox>("chkHideUI").click();
  settle();
  {
    const auto box = answer(QMessageBox::Ok);
    clickLink(resetLink());
    settle();
  }
  EXPECT_EQ(undoText(), "Clear settings\nHero skill 1: Q → none\nHide in-game buttons: on → off");
  click(undo());
  EXPECT_EQ(skill(1).text(), QStringLiteral("Q"));
  EXPECT_TRUE(find<QCheckBox>("chkHideUI").isChecked());
}

TEST_F(UndoInTheDialog, IsNoStepIfTheQuestionIsDeclined) {
  const auto box = answer(QMessageBox::Cancel);
  clickLink(resetLink());
  settle();
  EXPECT_FALSE(undo().isEnabled());
}

TEST_F(UndoInTheDialog, ShowsTheGroupOfTheStep) {
  auto& groups = find<QComboBox>("cmbHotkeySetting");
  groups.setCurrentIndex(1);
  settle();
  press(skill(1), Qt::Key_W);
  click(undo());
  EXPECT_EQ(skill(1).text(), QStringLiteral("Y"));
  EXPECT_EQ(groups.currentIndex(), 1);
  click(undo());
  EXPECT_EQ(skill(1).text(), QStringLiteral("Q"));
  EXPECT_EQ(groups.currentIndex(), 0);
}

TEST_F(UndoInTheDialog, KeepsAStepThatTheRegistryRefuses) {
  dialog->onSwitchDota7KeySettingDlg();
  press(stopKey(), Qt::Key_Q);
  ASSERT_TRUE(undo().isEnabled());
  registry.denyWriting(kDota7ControlPath);
  click(undo());
  registry.allowWriting(kDota7ControlPath);
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue('Q'));
  EXPECT_TRUE(undo().isEnabled());
  EXPECT_FALSE(find<QPushButton>("btnRedo").isEnabled());
  click(undo());
  EXPECT_EQ(stopKey().text(), QString());
}

TEST_F(UndoInTheDialog, MakesNoStepOfAnAnswerThatChangesNothing) {
  auto& chat = page<ChatKeySettingWidget>();
  QTimer::singleShot(0,
                     [&chat] { chat.findChild<QPushButton*>(QStringLiteral("btnOK"))->click(); });
  find<QPushButton>("btnTalkSetting").click();
  settle();
  EXPECT_FALSE(undo().isEnabled());
}

TEST_F(UndoInTheDialog, CoversTheMainSwitch) {
  find<QCheckBox>("chkUseHotkeySettings").click();
  settle();
  click(undo());
  EXPECT_FALSE(find<QCheckBox>("chkUseHotkeySettings").isChecked());
  EXPECT_FALSE(config.enable());
}

TEST_F(UndoInTheDialog, CoversQuickChat) {
  auto& chat = page<ChatKeySettingWidget>();
  QTimer::singleShot(0, [&chat] {
    chat.findChild<QLineEdit*>(QStringLiteral("chatLineEdit_1"))->setText(QStringLiteral("gg"));
    chat.findChild<QPushButton*>(QStringLiteral("btnOK"))->click();
  });
  find<QPushButton>("btnTalkSetting").click();
  settle();
  EXPECT_EQ(undoText(), "Quick-chat phrase 1: none → “gg”");
  click(undo());
  EXPECT_FALSE(config.scheme().QuickChat[0].has_value());
  EXPECT_EQ(on<ChatKeySettingWidget>("chatLineEdit_1").text(), QString());
}

// They are stored after the window has closed, when no input need follow.
TEST_F(UndoInTheDialog, CoversThePhrasesOfDota7AtOnce) {
  auto& chat = page<Dota7ChatKeySettingWidget>();
  QTimer::singleShot(0, &chat, [&chat] {
    chat.findChild<QLineEdit*>(QStringLiteral("edt_SOnStartString0"))
        ->setText(QStringLiteral("go"));
    chat.accept();
  });
  dialog->onShowDota7HotKeySettingDlg();
  EXPECT_TRUE(undo().isEnabled());
  EXPECT_NE(undoText().find("Message 1 at the start: none → “go”"), std::string::npos)
      << undoText();
}

TEST_F(UndoInTheDialog, LeadsToTheModeOfTheStep) {
  dialog->onSwitchDota7KeySettingDlg();
  press(stopKey(), Qt::Key_S);
  dialog->onSwitchPlatKeySettingDlg();
  EXPECT_EQ(undoText(), "Stop: none → S");
  click(undo());
  EXPECT_TRUE(stopKey().isVisible());
  EXPECT_EQ(stopKey().text(), QString());
  EXPECT_EQ(control(u"HStopKeyCode"), std::nullopt);
  click(redo());
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue('S'));
}

// Ctrl by itself is a key there, until another key is pressed with it.
TEST_F(UndoInTheDialog, TakesACombinationForOneStep) {
  dialog->onSwitchDota7KeySettingDlg();
  stopKey().setFocus();
  pressKey(stopKey(), Qt::Key_Control, Qt::ControlModifier);
  settle();
  pressKey(stopKey(), Qt::Key_S, Qt::ControlModifier);
  settle();
  releaseKey(stopKey(), Qt::Key_S, Qt::ControlModifier);
  releaseKey(stopKey(), Qt::Key_Control);
  settle();
  EXPECT_EQ(undoText(), "Stop: none → CTRL + S");
  click(undo());
  EXPECT_FALSE(undo().isEnabled());
  EXPECT_EQ(stopKey().text(), QString());
}

// Input comes to the native window first, and to the widget from there.
TEST_F(UndoInTheDialog, TakesACombinationForOneStepThroughTheWindowToo) {
  dialog->onSwitchDota7KeySettingDlg();
  stopKey().setFocus();
  QWindow& window = *dialog->windowHandle();
  pressKey(window, Qt::Key_Control);
  settle();
  pressKey(window, Qt::Key_S, Qt::ControlModifier);
  settle();
  EXPECT_EQ(undoText(), "Stop: none → CTRL + S");
  releaseKey(window, Qt::Key_S, Qt::ControlModifier);
  releaseKey(window, Qt::Key_Control);
  settle();
  click(undo());
  EXPECT_FALSE(undo().isEnabled());
}

TEST_F(UndoInTheDialog, TakesALoneModifierForOneStep) {
  dialog->onSwitchDota7KeySettingDlg();
  press(stopKey(), Qt::Key_S);
  QWindow& window = *dialog->windowHandle();
  pressKey(window, Qt::Key_Control);
  settle();
  releaseKey(window, Qt::Key_Control);
  settle();
  EXPECT_EQ(undoText(), "Stop: S → none");
}

TEST_F(UndoInTheDialog, KeepsTheKeyboardOnTheTwoButtons) {
  press(skill(1), Qt::Key_W);
  undo().setFocus();
  QTest::keyClick(&undo(), Qt::Key_Space);
  settle();
  EXPECT_EQ(skill(1).text(), QStringLiteral("Q"));
  EXPECT_TRUE(redo().hasFocus());
  QTest::keyClick(&redo(), Qt::Key_Space);
  settle();
  EXPECT_EQ(skill(1).text(), QStringLiteral("W"));
  EXPECT_TRUE(undo().hasFocus());
}

TEST_F(UndoInTheDialog, IsForgottenByAnotherStep) {
  press(skill(1), Qt::Key_W);
  click(undo());
  press(skill(2), Qt::Key_E);
  EXPECT_FALSE(redo().isEnabled());
}

TEST_F(UndoInTheDialog, IsCancelledWithTheDialog) {
  const platform::RegFile before = registry.content();
  dialog->onSwitchDota7KeySettingDlg();
  press(stopKey(), Qt::Key_S);
  click(undo());
  click(redo());
  dialog->reject();
  EXPECT_EQ(registry.content(), before);
}

}  // namespace
}  // namespace brennet::test
