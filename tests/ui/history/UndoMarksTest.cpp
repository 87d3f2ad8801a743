// What has changed since the dialog opened is marked, and key fields put it back.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QImage>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTranslator>

#include "tests/ui/SettingsDialogTest.h"
#include "tests/ui/history/Settle.h"
#include "ui/capture/ChangeLine.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"

namespace brennet::test {
namespace {

constexpr QRgb kGold = 0xffffd166;

class UndoMarks : public SettingsDialog {
 protected:
  UndoMarks() {
    EXPECT_TRUE(
        english_.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&english_);
    HotkeyScheme& scheme = *config.editableScheme(0);
    scheme.HeroSkillKey[0] = KeyWord('Q', 0);
    scheme.QuickChat[0] = u"first";
    registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
    registry.set(kDota7PhrasesPath, u"SOnStartString0", bytesValue("gl hf"));
    dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
    show();
  }

  QPushButton& undo() { return find<QPushButton>("btnUndo"); }
  static void press(QLineEdit& field, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    field.setFocus();
    pressKey(field, key, modifiers);
    settle();
  }
  static void click(QWidget& button) {
    QTest::mouseClick(&button, Qt::LeftButton);
    settle();
  }
  static std::string lineOf(const QWidget& control) { return changeLine(control).toStdString(); }
  // Whether the corner is drawn: of fields on the right, of other controls on the left.
  static bool hasCorner(QWidget& control) {
    const QImage picture = control.grab().toImage();
    const bool isField = qobject_cast<QLineEdit*>(&control) != nullptr;
    return picture.pixel(isField ? picture.width() - 3 : 2, 2) == kGold;
  }
  static void expectMarked(QWidget& control, const std::string& line) {
    EXPECT_EQ(lineOf(control), line) << control.objectName().toStdString();
    EXPECT_EQ(hasCorner(control), !line.empty()) << control.objectName().toStdString();
  }

  static QMenu& menuOf(QLineEdit& field,
                       QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse) {
    QContextMenuEvent request(reason, field.rect().center(),
                              field.mapToGlobal(field.rect().center()));
    QCoreApplication::sendEvent(&field, &request);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) throw std::logic_error("no menu");
    return *menu;
  }
  static void choose(QLineEdit& field, int entry) {
    QMenu& menu = menuOf(field);
    menu.actions().at(entry)->trigger();
    menu.close();
    settle();
  }

 private:
  QTranslator english_;
};

TEST_F(UndoMarks, StayInWordsWhenAnotherPresetIsRefused) {
  press(skill(1), Qt::Key_1, Qt::AltModifier);
  auto& chosen = find<QCheckBox>("chkGroupKey1");
  QTest::keyClick(&chosen, Qt::Key_Space);
  settle();
  const QString told = chosen.toolTip();
  ASSERT_FALSE(told.isEmpty());
  QTest::keyClick(&find<QCheckBox>("chkGroupKey3"), Qt::Key_Space);
  settle();
  ASSERT_EQ(config.scheme().NumComboKeyIndex, 0) << "Alt + 1 is a skill";
  EXPECT_EQ(chosen.toolTip(), told);
}

TEST_F(UndoMarks, AreNotThereAtFirst) {
  for (QWidget* const control : dialog->findChildren<QWidget*>()) {
    EXPECT_EQ(lineOf(*control), "") << control->objectName().toStdString();
  }
  EXPECT_FALSE(hasCorner(skill(1)));
}

TEST_F(UndoMarks, SayWhatAKeyWas) {
  press(skill(1), Qt::Key_W);
  expectMarked(skill(1), "When the dialog opened: Q");
  EXPECT_EQ(toolTipOf(skill(1)).toStdString(),
            "W: Hero skill 1 (bottom row, first)\nWhen the dialog opened: Q");
  press(skill(2), Qt::Key_E);
  expectMarked(skill(2), "When the dialog opened: none");
  EXPECT_THAT(skill(2).accessibleDescription().toStdString(),
              testing::EndsWith("\nWhen the dialog opened: none"));
}

TEST_F(UndoMarks, GoWhenAValueIsAsItWas) {
  press(skill(1), Qt::Key_W);
  press(skill(1), Qt::Key_Q);
  expectMarked(skill(1), "");
  press(skill(1), Qt::Key_W);
  click(undo());
  expectMarked(skill(1), "");
}

TEST_F(UndoMarks, AreOnSwitchesToo) {
  auto& hide = find<QCheckBox>("chkHideUI");
  auto& cast = find<QPushButton>("btn_skillcast_1");
  auto& preset = find<QCheckBox>("chkGroupKey1");
  auto& main = find<QCheckBox>("chkUseHotkeySettings");
  for (QAbstractButton* const box :
       {static_cast<QAbstractButton*>(&hide), static_cast<QAbstractButton*>(&cast),
        static_cast<QAbstractButton*>(&preset), static_cast<QAbstractButton*>(&main)}) {
    QTest::keyClick(box, Qt::Key_Space);
    settle();
    expectMarked(*box, "When the dialog opened: off");
    EXPECT_TRUE(toolTipOf(*box).contains(QStringLiteral("When the dialog opened: off")));
    EXPECT_TRUE(box->accessibleDescription().endsWith(QStringLiteral("opened: off")));
    QTest::keyClick(box, Qt::Key_Space);
    settle();
    expectMarked(*box, "");
    EXPECT_FALSE(toolTipOf(*box).contains(QStringLiteral("When")));
    EXPECT_EQ(box->accessibleDescription(), QString());
  }
  EXPECT_EQ(cast.toolTip(), QStringLiteral("Quick cast")) << "what it has by itself";
}

// A box that shows a refused choice is not marked for it; its own tool tip says why.
TEST_F(UndoMarks, LeaveTheToolTipOfARefusal) {
  press(skill(1), Qt::Key_Q, Qt::AltModifier);
  auto& preset = find<QCheckBox>("chkGroupKey1");
  QTest::keyClick(&preset, Qt::Key_Space);
  settle();
  expectMarked(preset, "");
  EXPECT_EQ(preset.toolTip().toStdString(), "Alt + Q: Hero skill 1 (bottom row, first)");
  press(skill(2), Qt::Key_E);
  EXPECT_EQ(preset.toolTip().toStdString(), "Alt + Q: Hero skill 1 (bottom row, first)");
}

TEST_F(UndoMarks, AreThoseOfTheGroupThatIsShown) {
  press(skill(1), Qt::Key_W);
  auto& groups = find<QComboBox>("cmbHotkeySetting");
  groups.setCurrentIndex(1);
  settle();
  expectMarked(skill(1), "");
  groups.setCurrentIndex(0);
  settle();
  expectMarked(skill(1), "When the dialog opened: Q");
}

TEST_F(UndoMarks, FollowEachLetterOfAPhrase) {
  auto& phrase = on<ChatKeySettingWidget>("chatLineEdit_1");
  phrase.setText(QStringLiteral("first <b>"));
  EXPECT_EQ(lineOf(phrase), "When the dialog opened: “first”");
  phrase.setText(QStringLiteral("first"));
  EXPECT_EQ(lineOf(phrase), "");
  // The fields behind it show the same phrase, since they have none.
  EXPECT_EQ(lineOf(on<ChatKeySettingWidget>("chatLineEdit_2")), "");
}

TEST_F(UndoMarks, ShowTextsAsTheyAre) {
  config.editableScheme(0)->QuickChat[0] = u"<b>first</b>";
  CHotkeySettingDlg other(config, manager);
  auto& phrase = *other.findChild<QLineEdit*>(QStringLiteral("chatLineEdit_1"));
  phrase.setText(QStringLiteral("x"));
  EXPECT_TRUE(phrase.toolTip().contains(QStringLiteral("&lt;b&gt;first"))) << "not as markup";
}

TEST_F(UndoMarks, AreInTheDota7ModeToo) {
  dialog->onSwitchDota7KeySettingDlg();
  press(stopKey(), Qt::Key_Q);
  expectMarked(stopKey(), "When the dialog opened: S");
  auto& box = on<CDotA7BasicSetting, QAbstractButton>("chk_SLegacyKeys");
  QTest::keyClick(&box, Qt::Key_Space);
  settle();
  expectMarked(box, "When the dialog opened: off");
  auto& phrase = on<Dota7ChatKeySettingWidget>("edt_SOnStartString0");
  EXPECT_EQ(phrase.text(), QStringLiteral("gl hf"));
  phrase.setText(QStringLiteral("go"));
  EXPECT_EQ(lineOf(phrase), "When the dialog opened: “gl hf”");
}

TEST_F(UndoMarks, FollowTheCastMode) {
  dialog->onSwitchDota7KeySettingDlg();
  auto& move = on<CDotA7BasicSetting>("edt_HMoveKeyC");
  press(move, Qt::Key_M);
  EXPECT_EQ(lineOf(move), "When the dialog opened: none");
  on<CDotA7BasicSetting, QAbstractButton>("chk_QuickUse").click();
  EXPECT_EQ(lineOf(move), "");
  on<CDotA7BasicSetting, QAbstractButton>("chk_Normal").click();
  EXPECT_EQ(lineOf(move), "When the dialog opened: none");
}

// As when the keys of a new player are imported while the dialog is open.
TEST_F(UndoMarks, AreNotForWhatOthersChanged) {
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('X'));
  dialog->onSwitchDota7KeySettingDlg();
  EXPECT_EQ(stopKey().text().trimmed(), QStringLiteral("X"));
  EXPECT_EQ(lineOf(stopKey()), "");
}

TEST_F(UndoMarks, HaveAMenuThatPutsTheKeyBack) {
  press(skill(1), Qt::Key_W);
  QMenu& menu = menuOf(skill(1));
  ASSERT_EQ(menu.actions().size(), 2);
  EXPECT_EQ(menu.actions()[0]->text(), QStringLiteral("Put back: Q"));
  EXPECT_EQ(menu.actions()[1]->text(), QStringLiteral("Clear"));
  menu.close();
  choose(skill(1), 0);
  EXPECT_EQ(skill(1).text(), QStringLiteral("Q"));
  EXPECT_EQ(config.scheme().HeroSkillKey[0], KeyWord('Q', 0));
  expectMarked(skill(1), "");
  click(undo());
  EXPECT_EQ(skill(1).text(), QStringLiteral("W")) << "it is a step like any other";
}

TEST_F(UndoMarks, HaveAMenuThatClearsTheField) {
  choose(skill(1), 1);
  EXPECT_EQ(skill(1).text(), QString());
  EXPECT_EQ(config.scheme().HeroSkillKey[0], kNoKey);
  QMenu& menu = menuOf(skill(1));
  EXPECT_FALSE(menu.actions()[1]->isEnabled());
  menu.close();
}

TEST_F(UndoMarks, HaveNothingToPutBackAtFirst) {
  QMenu& menu = menuOf(skill(1));
  EXPECT_EQ(menu.actions()[0]->text(), QStringLiteral("Put back"));
  EXPECT_FALSE(menu.actions()[0]->isEnabled());
  menu.close();
}

TEST_F(UndoMarks, DoNotPutBackWhatSomethingElseHas) {
  press(skill(1), Qt::Key_W);
  press(skill(2), Qt::Key_Q);
  QMenu& menu = menuOf(skill(1));
  EXPECT_EQ(menu.actions()[0]->text(), QStringLiteral("Put back: Q (Q is Hero skill 2)"));
  EXPECT_FALSE(menu.actions()[0]->isEnabled());
  menu.close();
}

TEST_F(UndoMarks, PutBackNoKeyToo) {
  press(skill(2), Qt::Key_W);
  QMenu& menu = menuOf(skill(2));
  EXPECT_EQ(menu.actions()[0]->text(), QStringLiteral("Put back: none"));
  menu.close();
  choose(skill(2), 0);
  EXPECT_EQ(config.scheme().HeroSkillKey[1], kNoKey);
}

TEST_F(UndoMarks, HaveTheMenuInTheDota7ModeToo) {
  dialog->onSwitchDota7KeySettingDlg();
  press(stopKey(), Qt::Key_Q);
  auto& hold = on<CDotA7BasicSetting>("edt_HHoldKey");
  press(hold, Qt::Key_S);
  QMenu& refused = menuOf(stopKey());
  EXPECT_EQ(refused.actions()[0]->text(), QStringLiteral("Put back: S (Hold position)"));
  EXPECT_FALSE(refused.actions()[0]->isEnabled());
  refused.close();
  choose(hold, 1);
  EXPECT_EQ(hold.text(), QString());
  choose(stopKey(), 0);
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue('S'));
  expectMarked(stopKey(), "");
}

// By the keyboard it comes up below its field; the mouse may be anywhere.
TEST_F(UndoMarks, HaveTheMenuByTheKeyboardToo) {
  QMenu& menu = menuOf(skill(1), QContextMenuEvent::Keyboard);
  EXPECT_EQ(menu.pos(), skill(1).mapToGlobal(skill(1).rect().bottomLeft()));
  QTest::keyClick(&menu, Qt::Key_Down);
  QTest::keyClick(&menu, Qt::Key_Return);
  settle();
  EXPECT_EQ(skill(1).text(), QString());
}

}  // namespace
}  // namespace brennet::test
