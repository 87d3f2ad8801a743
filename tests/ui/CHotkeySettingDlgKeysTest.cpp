// Keys that the settings dialog keeps from doing what they do in other dialogs.

#include <QKeySequence>
#include <QPushButton>

#include "tests/ui/SettingsDialogTest.h"
#include "ui/capture/VirtualKey.h"

namespace brennet::test {
namespace {

class CHotkeySettingDlgKeysTest : public SettingsDialog {
 protected:
  // Whether the dialog has taken the key.
  bool isTaken(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers, 0, virtualKeyOfQtKey(key, false), 0);
    QCoreApplication::sendEvent(dialog.get(), &press);
    return press.isAccepted();
  }
};

TEST_F(CHotkeySettingDlgKeysTest, DoNotEndIt) {
  dialog->show();
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) {
    EXPECT_TRUE(isTaken(key)) << key;
  }
  EXPECT_FALSE(isTaken(Qt::Key_F4, Qt::AltModifier)) << "that is for the system to know";
  EXPECT_FALSE(isTaken(Qt::Key_A));
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(dialog->result(), 0);
}

TEST_F(CHotkeySettingDlgKeysTest, ThatCloseWindowsAreSwallowed) {
  dialog->show();
  const QList<QKeySequence> closing = QKeySequence::keyBindings(QKeySequence::Close);
  ASSERT_FALSE(closing.isEmpty());
  for (const QKeySequence& sequence : closing) {
    const int key = sequence[0];
    const auto modifiers = Qt::KeyboardModifiers(key & static_cast<int>(Qt::KeyboardModifierMask));
    EXPECT_TRUE(isTaken(key & ~static_cast<int>(Qt::KeyboardModifierMask), modifiers))
        << qPrintable(sequence.toString());
  }
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(CHotkeySettingDlgKeysTest, ClickNotEvenADefaultButton) {
  dialog->show();
  find<QPushButton>("btnOK").setDefault(true);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    EXPECT_TRUE(isTaken(key));
    EXPECT_TRUE(dialog->isVisible());
  }
}

TEST_F(CHotkeySettingDlgKeysTest, GoToNoKeyFieldAtFirst) {
  ASSERT_NO_FATAL_FAILURE(show());
  auto& focused = find<QWidget>("titleWidget");
  ASSERT_EQ(QApplication::focusWidget(), &focused);
  const HotkeyScheme before = config.scheme();
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Q}) {
    pressKey(focused, key);
    releaseKey(focused, key);
  }
  EXPECT_EQ(config.scheme(), before);
  EXPECT_TRUE(dialog->isVisible());
}

// Buttons of dialogs are clicked by Return unless somebody takes that from them.
TEST_F(CHotkeySettingDlgKeysTest, ClickNoButtonByReturn) {
  ASSERT_NO_FATAL_FAILURE(show());
  const NoBoxes noBoxes;
  const HotkeyScheme before = config.scheme();
  const platform::RegFile registryBefore = registry.content();
  const auto pressReturn = [&](const QWidget& window) {
    int buttons = 0;
    for (QPushButton* const button : window.findChildren<QPushButton*>()) {
      if (!button->isVisible()) continue;
      ++buttons;
      button->setFocus();
      pressKey(*button, Qt::Key_Return);
      pressKey(*button, Qt::Key_Enter);
      EXPECT_TRUE(button->isVisible()) << qPrintable(button->objectName());
      EXPECT_FALSE(button->isDefault()) << qPrintable(button->objectName());
    }
    return buttons;
  };
  EXPECT_GE(pressReturn(page<CBasicSetting7Widget>()), 5 + 12 + 6);
  EXPECT_TRUE(page<CBasicSetting7Widget>().isVisible());
  EXPECT_GE(pressReturn(*dialog), 3);
  dialog->onSwitchDota7KeySettingDlg();
  EXPECT_GE(pressReturn(page<CDotA7BasicSetting>()), 1);
  EXPECT_GE(pressReturn(*dialog), 3);
  EXPECT_TRUE(page<CDotA7BasicSetting>().isVisible());
  EXPECT_EQ(config.scheme(), before);
  EXPECT_EQ(registry.content(), registryBefore);
  const auto windows = QApplication::topLevelWidgets();
  for (const QWidget* const window : windows) {
    EXPECT_EQ(window->isVisible(), window == dialog.get()) << qPrintable(window->objectName());
  }
}

}  // namespace
}  // namespace brennet::test
