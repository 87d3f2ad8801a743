// Whatever a player does in the DotA 7 windows, in any order: after Cancel the registry is as it
// was, and after OK it holds what the windows showed.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <random>

#include "model/HotkeyConfig.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/keymap/CKeyMapView.h"
#include "ui/pages/CDotA7BasicSetting.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"
#include "ui/pages/KeyMapWindow.h"

namespace brennet::test {
namespace {

class Dota7DialogPropertyTest : public Dota7Test {
 protected:
  static constexpr unsigned kPlayers = 8;
  static constexpr int kSteps = 40;

  Dota7DialogPropertyTest() {
    // Warnings that a key is in use come up all the time, and the windows that the map leads to.
    QObject::connect(&closer_, &QTimer::timeout, [] {
      QWidget* const window = QApplication::activeModalWidget();
      if (auto* const box = qobject_cast<QMessageBox*>(window)) box->accept();
      if (auto* const chat = dynamic_cast<MovableDialog*>(window)) {
        if (qobject_cast<KeyMapWindow*>(window) == nullptr) chat->reject();
      }
    });
    closer_.start(0);
    registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
    registry.set(kDota7ControlPath, u"HMoveKeyCodeQC", platform::dwordValue('M'));
    registry.set(kDota7ControlPath, u"HHoldKey", bytesValue("odd \xFF"));
    registry.set(kDota7PhrasesPath, u"SOnStartString3", bytesValue(std::string(300, 'x')));
  }

  int number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }

  template <class Widget>
  Widget& anyOf(const QWidget& window) {
    const auto all = window.findChildren<Widget*>(QRegularExpression(QStringLiteral("^(edt|chk)")));
    return *all[number(all.size())];
  }

  void pressSomething(QWidget& field) {
    const Qt::Key keys[] = {Qt::Key_Q,       Qt::Key_S,   Qt::Key_M,
                            Qt::Key_Control, Qt::Key_Alt, Qt::Key_Backspace,
                            Qt::Key_Return,  Qt::Key_F5,  Qt::Key_Delete};
    const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ControlModifier, Qt::AltModifier,
                                               Qt::ControlModifier | Qt::AltModifier};
    field.setFocus();
    pressKey(field, keys[number(std::size(keys))], modifiers[number(std::size(modifiers))]);
    if (number(2) == 0) releaseKey(field, Qt::Key_Control);
  }

  void doSomething(CHotkeySettingDlg& dialog) {
    QApplication::setActiveWindow(&dialog);
    auto& page = *dialog.findChild<CDotA7BasicSetting*>();
    auto& chat = *dialog.findChild<Dota7ChatKeySettingWidget*>();
    switch (number(11)) {
      case 0:
        return dialog.onSwitchPlatKeySettingDlg();
      case 1:
        return dialog.onSwitchDota7KeySettingDlg();
      case 2:
        return dialog.onCurrentIndexChanged_HotkeySetting(number(3));
      case 3:
        return anyOf<QAbstractButton>(page).click();
      case 4:
        return chatFor(chat, number(2));
      case 5:
        return pressSomething(anyOf<QLineEdit>(chat));
      case 6:
        return lookAtTheMap(dialog);
      case 7:
      case 8:
        return undoOrRedo(dialog);
      case 9:
        return useTheMenu(anyOf<QLineEdit>(page));
      default:
        return pressSomething(anyOf<QLineEdit>(page));
    }
  }

  void undoOrRedo(CHotkeySettingDlg& dialog) {
    const char* const name = number(3) == 0 ? "btnRedo" : "btnUndo";
    for (int times = number(4); times >= 0; --times) {
      QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
    }
  }

  // Puts a key back or clears it, if that can be done.
  void useTheMenu(QLineEdit& field) {
    QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint());
    QCoreApplication::sendEvent(&field, &request);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return;
    menu->actions().at(number(menu->actions().size()))->trigger();
    menu->close();
  }

  // Presses something there and goes to a use, or back.
  void lookAtTheMap(CHotkeySettingDlg& dialog) {
    const bool goesOn = number(2) == 0;
    const auto leave = [goesOn] {
      auto* const map = qobject_cast<KeyMapWindow*>(QApplication::activeModalWidget());
      ASSERT_NE(map, nullptr);
      pressKey(*map->findChild<CKeyMapView*>(), Qt::Key_Q);
      auto& list = *map->findChild<QTreeWidget*>();
      if (goesOn && list.topLevelItemCount() > 0) {
        emit list.itemActivated(list.topLevelItem(0), 0);
      } else {
        map->reject();
      }
    };
    QTimer::singleShot(0, leave);
    auto& link = *dialog.findChild<QLabel*>(QStringLiteral("lblKeyMap"));
    QTest::mouseClick(&link, Qt::LeftButton);
  }

  // Types a phrase and ends the chat window, as the dialog runs it.
  void chatFor(Dota7ChatKeySettingWidget& chat, int result) {
    auto& phrase =
        *chat.findChild<QLineEdit*>(QStringLiteral("edt_SOnStartString%1").arg(number(15)));
    phrase.setText(QString(number(100), QChar(u'\u8C22')));
    if (result == QDialog::Accepted) {
      chat.savePhrases();
    } else {
      chat.showSettings();
    }
  }

  // What the windows show, in both cast modes.
  std::vector<std::u16string> shown() {
    std::vector<std::u16string> texts;
    for (const Dota7Cast cast : {Dota7Cast::Quick, Dota7Cast::Normal}) {
      settings.setCast(cast);
      for (const Dota7KeyField& row : dota7KeyFields()) texts.push_back(settings.keyText(row));
    }
    for (const Dota7Phrase& row : dota7Phrases()) texts.push_back(settings.phrase(row));
    for (const Dota7Switch& row : dota7Switches())
      texts.emplace_back(settings.isOn(row) ? u"1" : u"0");
    return texts;
  }

  HotkeyConfig config;
  std::mt19937 random_;

 private:
  QTimer closer_;
};

TEST_F(Dota7DialogPropertyTest, GetsAllBackByCancel) {
  for (unsigned seed = 0; seed < kPlayers; ++seed) {
    SCOPED_TRACE(seed);
    random_.seed(seed);
    const platform::RegFile before = registry.content();
    CHotkeySettingDlg dialog(config, manager);
    dialog.show();
    for (int step = 0; step < kSteps; ++step) doSomething(dialog);
    dialog.close();
    ASSERT_EQ(registry.content(), before);
  }
}

TEST_F(Dota7DialogPropertyTest, KeepsWhatWasShownByOk) {
  for (unsigned seed = 0; seed < kPlayers; ++seed) {
    SCOPED_TRACE(seed);
    random_.seed(seed);
    CHotkeySettingDlg dialog(config, manager);
    dialog.show();
    for (int step = 0; step < kSteps; ++step) doSomething(dialog);
    // A modifier that is still down is dropped when its field loses the focus.
    if (QWidget* const field = dialog.focusWidget()) field->clearFocus();
    const std::vector<std::u16string> texts = shown();
    dialog.onClickedOkBtn();
    manager.cancelChanges();
    EXPECT_EQ(shown(), texts);
  }
}

}  // namespace
}  // namespace brennet::test
