// Pages that come and go while a window of theirs is open.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

#include "tests/ui/UiTest.h"
#include "tests/ui/pages/BasicPageTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/window/CMsgBox.h"

namespace brennet::test {
namespace {

COrrerySettingDlg* orreryWindow() {
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (auto* const dialog = qobject_cast<COrrerySettingDlg*>(window)) return dialog;
  }
  return nullptr;
}

TEST(PageLifeBox, MayGoWithItsParentWhileItIsOpen) {
  auto parent = std::make_unique<QWidget>();
  bool isShown = false;
  QTimer::singleShot(0, [&] {
    isShown = qobject_cast<CMsgBox*>(QApplication::activeModalWidget()) != nullptr;
    parent.reset();
  });
  EXPECT_EQ(CMsgBox::showMessage(parent.get(), QMessageBox::Warning, QStringLiteral("title"),
                                 QStringLiteral("text")),
            QMessageBox::NoButton);
  EXPECT_TRUE(isShown);
}

TEST(PageLifePage, MayGoWhileItTellsOfAUsedKey) {
  HotkeyConfig config;
  config.editableScheme()->HeroSkillKey[0] = KeyWord('Q', 0);
  auto page = std::make_unique<CBasicSetting7Widget>(config, nullptr);
  QTimer::singleShot(0, [&] { page.reset(); });
  pressKey(*page->findChild<QLineEdit*>(QStringLiteral("edtSkill_2")), Qt::Key_Q);
  EXPECT_EQ(page, nullptr);
  EXPECT_EQ(config.scheme().HeroSkillKey[1], kNoKey);
}

TEST(PageLifeBasicPage, TakesTheOrreryWindowAlongWhenItGoes) {
  HotkeyConfig config;
  auto page = std::make_unique<CBasicSetting7Widget>(config, nullptr);
  page->onClickedOrrerySettingBtn();
  orreryWindow()->findChild<QLineEdit*>(QStringLiteral("edtOpenCloseLedger"))->setFocus();
  page.reset();
  EXPECT_EQ(orreryWindow(), nullptr);
}

TEST(PageLifeBasicPage, HidesTheOrreryWindowWithItself) {
  HotkeyConfig config;
  QDialog dialog;
  auto* const page = new CBasicSetting7Widget(config, &dialog);
  dialog.show();
  page->onClickedOrrerySettingBtn();
  ASSERT_TRUE(orreryWindow()->isVisible());
  dialog.accept();
  EXPECT_FALSE(orreryWindow()->isVisible());
}

// The dialog connects the advanced page's buttons to the quick-chat window, so both show the same.
TEST(PageLifeKeySetsOfTwoWindows, StayTogether) {
  HotkeyConfig config;
  CAdvancedSettingWidget page(config, nullptr);
  ChatKeySettingWidget window(config, nullptr);
  auto* const digits = page.findChild<QRadioButton*>(QStringLiteral("optChatKey_1"));
  QObject::connect(digits, &QRadioButton::toggled, &window,
                   &ChatKeySettingWidget::onToggled_ChatKey_1);
  digits->click();
  EXPECT_EQ(config.scheme().QuickChatIndex, 0U);
  EXPECT_TRUE(window.findChild<QRadioButton*>(QStringLiteral("optChatKey_1"))->isChecked());
}

TEST(PageLifeKeyFieldsOfTheBasicPage, TellAKeyThatIsTooLongToShow) {
  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  scheme.HeroSkillKey[0] = KeyWord(0x22, KeyWord::kCtrl | KeyWord::kAlt);  // Page Down
  CBasicSetting7Widget page(config, nullptr);
  page.show();
  auto& field = *page.findChild<QLineEdit*>(QStringLiteral("edtSkill_1"));
  EXPECT_TRUE(toolTipOf(field).startsWith(QStringLiteral("CTRL + Alt + PAGEDOWN")));
}

}  // namespace
}  // namespace brennet::test
