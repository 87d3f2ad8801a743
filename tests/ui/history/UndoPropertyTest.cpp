// Whatever a player does, in any order: undo after undo leads to the opening state, byte by byte,
// and redo after redo to what he had.

#include <QAbstractButton>
#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

#include <array>
#include <cstring>
#include <random>

#include "model/BlockFiller.h"
#include "tests/support/TestData.h"
#include "tests/ui/SettingsDialogTest.h"
#include "tests/ui/history/Settle.h"
#include "ui/pages/SchemeTransferButtons.h"
#include "ui/window/MovableDialog.h"

namespace brennet::test {
namespace {

constexpr int kDialogs = 5;
constexpr int kSessionsOfADialog = 40;
constexpr int kMostActions = 6;
// The registry is a file here, which each value written replaces.
constexpr int kDota7Dialogs = 2;

// All that a player's steps can change.
struct State {
  bool enable;
  std::uint32_t index;
  std::array<HotkeyScheme, HotkeyConfig::kSchemes> schemes;
  HotkeyBlock block;
  platform::RegFile registry;

  friend bool operator==(const State& a, const State& b) {
    return a.enable == b.enable && a.index == b.index && a.schemes == b.schemes &&
           std::memcmp(&a.block, &b.block, sizeof(HotkeyBlock)) == 0 && a.registry == b.registry;
  }
};

class UndoPropertyTest : public Dota7Test {
 protected:
  UndoPropertyTest() {
    // A box that a window for chat opens comes up while that is being answered.
    QObject::connect(&boxAnswers_, &QTimer::timeout, [this] { answerBox(); });
    QObject::connect(&chatAnswers_, &QTimer::timeout, [this] { answerChat(); });
    boxAnswers_.start(0);
    chatAnswers_.start(0);
    registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
    registry.set(kDota7ControlPath, u"HMoveKeyCodeQC", platform::dwordValue('M'));
    registry.set(kDota7ControlPath, u"HHoldKey", bytesValue("odd \xFF"));
    registry.set(kDota7PhrasesPath, u"SOnStartString3", bytesValue(std::string(300, 'x')));
  }

  int number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }

  // As a settings file may leave them: some keys, marks and phrases that were never set.
  void fill(HotkeyConfig& config) {
    config.setEnable(number(2) == 0);
    config.setIndex(static_cast<std::uint32_t>(number(4) == 0 ? number(11) : number(3)));
    for (int i = 0; i < HotkeyConfig::kSchemes; ++i) {
      HotkeyScheme& scheme = *config.editableScheme(i);
      for (int n = 0; n < 4; ++n) {
        const KeyWord key(static_cast<std::uint8_t>('A' + number(26)), 0);
        config.SetHeroSkillKey(number(kHeroSkills), key, true, i);
        config.SetSecretaryKey(number(kLedgerKeys), key, true, i);
      }
      scheme.HeroSkillAutocast[0] = true;
      scheme.QuickChat[2] = u"third";
      scheme.ChatWheelkey = KeyWord(0x70, 0);
      scheme.ZoomValue = 77;
    }
  }

  // Confirmations are answered one way or the other, the windows for chat too.
  void answerBox() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    QAbstractButton* const cancel = box->button(QMessageBox::Cancel);
    const bool isDeclined = cancel != nullptr && number(3) == 0;
    (isDeclined ? cancel : box->button(QMessageBox::Ok))->click();
  }
  void answerChat() {
    QWidget* const chat = QApplication::activeModalWidget();
    if (dynamic_cast<MovableDialog*>(chat) == nullptr) return;
    for (QLineEdit* const field : chat->findChildren<QLineEdit*>()) {
      if (number(4) == 0 && !field->isReadOnly()) field->setText(QString::number(number(100)));
    }
    if (auto* const keys = chat->findChild<QAbstractButton*>(QStringLiteral("optChatKey_1"))) {
      if (number(2) == 0) keys->click();
    }
    if (auto* const offers = chat->findChild<QComboBox*>()) {
      offers->setCurrentIndex(number(offers->count()));
    }
    const char* const answer = number(3) == 0 ? "btnCancel" : "btnOK";
    QTest::mouseClick(chat->findChild<QPushButton*>(QLatin1String(answer)), Qt::LeftButton);
  }

  template <class Widget>
  Widget& anyOf(const QWidget& window, const char* names) {
    QList<Widget*> all;
    for (auto* const each :
         window.findChildren<Widget*>(QRegularExpression(QLatin1String(names)))) {
      if (each->isVisibleTo(&window)) all.push_back(each);
    }
    return *all[number(all.size())];
  }

  void pressSomething(CHotkeySettingDlg& dialog) {
    const Qt::Key keys[] = {Qt::Key_Q,         Qt::Key_W,   Qt::Key_S, Qt::Key_1,   Qt::Key_Control,
                            Qt::Key_Backspace, Qt::Key_Alt, Qt::Key_V, Qt::Key_Down};
    const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ControlModifier,
                                               Qt::AltModifier};
    auto& field = anyOf<QLineEdit>(dialog, "^edt");
    field.setFocus();
    const Qt::Key key = keys[number(std::size(keys))];
    pressKey(field, key, modifiers[number(std::size(modifiers))]);
    if (number(2) == 0) releaseKey(field, key);
  }

  // A modifier that is still down belongs to a key that is not complete yet.
  static void letGo(CHotkeySettingDlg& dialog) {
    QWidget* const field = dialog.focusWidget();
    if (field == nullptr) return;
    for (const Qt::Key key : {Qt::Key_Control, Qt::Key_Alt}) releaseKey(*field, key);
    field->clearFocus();
  }

  static void click(CHotkeySettingDlg& dialog, const char* name) {
    QTest::mouseClick(dialog.findChild<QWidget*>(QLatin1String(name)), Qt::LeftButton);
  }

  // As if the file had been chosen after a click.
  void import(CHotkeySettingDlg& dialog) {
    if (dialog.findChild<QWidget*>(QStringLiteral("btnImport"))->isEnabled()) {
      dialog.transfers().importFrom(QString::fromLocal8Bit(sampleData("KeyInfo.xml").c_str()));
    }
  }

  void doSomething(CHotkeySettingDlg& dialog, bool playsDota7) {
    const char* const clicked[] = {"btn_SetAll_AutoCast", "btnTalkSetting",
                                   "lblResetToDefaultSetting", "btnCopyFrom"};
    switch (number(13)) {
      case 0:
        return dialog.onSwitchPlatKeySettingDlg();
      case 1:
        if (playsDota7) dialog.onSwitchDota7KeySettingDlg();
        return;
      case 2:
        QTest::keyClick(dialog.findChild<QComboBox*>(), number(2) == 0 ? Qt::Key_Down : Qt::Key_Up);
        return;
      case 3:
        return click(dialog, clicked[number(std::size(clicked))]);
      case 4:
        return emit dialog.useRecommendedSetting();
      case 5:
        if (playsDota7) dialog.onShowDota7HotKeySettingDlg();
        return;
      case 6:
        return click(dialog, number(2) == 0 ? "btnUndo" : "btnRedo");
      case 7:
        return import(dialog);
      case 8:
      case 9:
        QTest::mouseClick(&anyOf<QAbstractButton>(dialog, "^(chk|btn_)"), Qt::LeftButton);
        return;
      default:
        return pressSomething(dialog);
    }
  }

  [[nodiscard]] State state(HotkeyConfig& config) const {
    State now{.enable = config.enable(),
              .index = config.index(),
              .schemes = {config.scheme(0), config.scheme(1), config.scheme(2)},
              .block = {},
              .registry = registry.content()};
    fillBlock(config, now.block);
    return now;
  }

  static int clickAll(CHotkeySettingDlg& dialog, const char* name) {
    auto& button = *dialog.findChild<QPushButton*>(QLatin1String(name));
    int steps = 0;
    settle();
    for (; button.isEnabled(); ++steps) {
      QTest::mouseClick(&button, Qt::LeftButton);
      if (steps > 1000) return -1;
    }
    return steps;
  }

  std::mt19937 random_;

 private:
  QTimer boxAnswers_;
  QTimer chatAnswers_;
};

TEST_F(UndoPropertyTest, LeadsBackToTheOpeningStateAndForthAgain) {
  int steps = 0;
  for (unsigned seed = 0; seed < kDialogs; ++seed) {
    SCOPED_TRACE(seed);
    random_.seed(seed);
    HotkeyConfig config;
    fill(config);
    CHotkeySettingDlg dialog(config, manager);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    const State opening = state(config);
    for (int session = 0; session < kSessionsOfADialog; ++session) {
      SCOPED_TRACE(session);
      for (int action = number(kMostActions); action >= 0; --action) {
        doSomething(dialog, seed < kDota7Dialogs);
      }
      letGo(dialog);
      settle();
      const State closing = state(config);
      const bool isLast = !dialog.findChild<QWidget*>(QStringLiteral("btnRedo"))->isEnabled();
      steps += clickAll(dialog, "btnUndo");
      ASSERT_TRUE(state(config) == opening);
      clickAll(dialog, "btnRedo");
      ASSERT_TRUE(!isLast || state(config) == closing) << "what was done is done again";
      clickAll(dialog, "btnUndo");
      ASSERT_TRUE(state(config) == opening);
    }
    dialog.reject();
    ASSERT_TRUE(state(config) == opening);
  }
  EXPECT_GT(steps, kDialogs * kSessionsOfADialog) << "the player is too idle";
}

}  // namespace
}  // namespace brennet::test
