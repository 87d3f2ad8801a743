#include "ui/CHotkeySettingDlg.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include "model/HotkeyConfig.h"
#include "model/RecommendedScheme.h"
#include "tests/gameside/Dota7Test.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/CDotA7BasicSetting.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"

namespace brennet::test {
namespace {

class SettingsDialog : public Dota7Test {
 protected:
  SettingsDialog() { dialog = std::make_unique<CHotkeySettingDlg>(config, manager); }

  template <class Widget>
  Widget& find(const char* name) {
    return *dialog->findChild<Widget*>(QLatin1String(name));
  }
  template <class Page>
  Page& page() {
    return *dialog->findChild<Page*>();
  }
  QLineEdit& skill(int number) {
    return *page<CBasicSetting7Widget>().template findChild<QLineEdit*>(
        QStringLiteral("edtSkill_%1").arg(number));
  }
  static void clickLink(QLabel& link) {
    QTest::mouseClick(&link, Qt::LeftButton, Qt::NoModifier, link.rect().center());
  }
  ExpectedBox answer(QMessageBox::StandardButton button) {
    return whenBoxIsShown([button](QMessageBox& box) { box.button(button)->click(); });
  }

  HotkeyConfig config;
  std::unique_ptr<CHotkeySettingDlg> dialog;
};

TEST_F(SettingsDialog, HasItsMethodsInTheOrderThatClientsKnow) {
  const QStringList expected = {QStringLiteral("resetSetting"),
                                QStringLiteral("useRecommendedSetting"),
                                QStringLiteral("onSwitchSettingUI"),
                                QStringLiteral("onSwitchBasicSettingUI"),
                                QStringLiteral("onSwitchAdvancedSettingUI"),
                                QStringLiteral("onSwitchChatWheelSettingUI"),
                                QStringLiteral("onClickedOkBtn"),
                                QStringLiteral("onClickedCancelBtn"),
                                QStringLiteral("onToggled_UseHotkeySettings"),
                                QStringLiteral("onResetSetting"),
                                QStringLiteral("onUseRecommendedSetting"),
                                QStringLiteral("onCurrentIndexChanged_HotkeySetting"),
                                QStringLiteral("onShowHotKeySettingDlg"),
                                QStringLiteral("onSwitchPlatKeySettingDlg"),
                                QStringLiteral("onSwitchDota7KeySettingDlg"),
                                QStringLiteral("onShowDota7HotKeySettingDlg")};
  EXPECT_EQ(methodNames(CHotkeySettingDlg::staticMetaObject), expected);
}

TEST_F(SettingsDialog, HasItsChildrenInTheirOrder) {
  QStringList pages;
  for (const QObject* const child : dialog->findChildren<QWidget*>()) {
    const QString type = QLatin1String(child->metaObject()->className());
    if (type.endsWith(QLatin1String("Widget")) || type.endsWith(QLatin1String("BasicSetting"))) {
      if (type.startsWith(QLatin1Char('C')) || type.startsWith(QLatin1Char('D'))) pages += type;
    }
  }
  for (const char* const type :
       {"CAdvancedSettingWidget", "CBasicSettingWidget", "CBasicSetting7Widget",
        "CChatRouletteSettingWidget", "CDotA7BasicSetting", "ChatKeySettingWidget",
        "Dota7ChatKeySettingWidget"}) {
    EXPECT_TRUE(pages.contains(QLatin1String(type))) << type;
  }
  dialog->show();
  EXPECT_TRUE(page<CBasicSetting7Widget>().isVisible());
  EXPECT_FALSE(page<CDotA7BasicSetting>().isVisible());
  EXPECT_EQ(dialog->windowFlags() & 0x280B, 0x280B);
  EXPECT_EQ(dialog->minimumSize(), dialog->maximumSize()) << "its size is fixed";
  EXPECT_FALSE(dialog->styleSheet().isEmpty());
}

TEST_F(SettingsDialog, HasItsTexts) {
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral(u"魔兽改键设置"));
  EXPECT_EQ(find<QCheckBox>("chkUseHotkeySettings").text(), QStringLiteral(u"启用改键"));
  EXPECT_EQ(find<QLabel>("lblResetToDefaultSetting").text(), QStringLiteral(u"清空设置"));
  EXPECT_EQ(find<QLabel>("lblUseRecommendedSetting").text(), QStringLiteral(u"推荐方案"));
  EXPECT_EQ(find<QPushButton>("btnSwitchPlat").text(), QStringLiteral(u"切换至普通改键"));
  EXPECT_EQ(find<QPushButton>("btnSwitchDota7").text(), QStringLiteral(u"切换至DotA7.0专用改键"));
  auto& box = find<QComboBox>("cmbHotkeySetting");
  ASSERT_EQ(box.count(), 3);
  EXPECT_EQ(box.itemText(2), QStringLiteral("setting group 3"));
  EXPECT_FALSE(find<QLabel>("lblUseRecommendedSetting").isVisibleTo(dialog.get()));
}

TEST_F(SettingsDialog, SwitchesSchemes) {
  config.editableScheme(2)->HeroSkillKey[0] = KeyWord('T', 0);
  config.editableScheme(2)->QuickChat[0] = u"third";
  find<QComboBox>("cmbHotkeySetting").setCurrentIndex(2);
  EXPECT_EQ(config.index(), 2U);
  EXPECT_EQ(skill(1).text(), QStringLiteral("T"));
  auto* const phrase =
      page<ChatKeySettingWidget>().findChild<QLineEdit*>(QStringLiteral("chatLineEdit_1"));
  EXPECT_EQ(phrase->text(), QStringLiteral("third"));
  dialog->onCurrentIndexChanged_HotkeySetting(3);
  dialog->onCurrentIndexChanged_HotkeySetting(-1);
  EXPECT_EQ(config.index(), 2U);
}

TEST_F(SettingsDialog, ShowsAndStoresTheSwitch) {
  find<QCheckBox>("chkUseHotkeySettings").click();
  EXPECT_TRUE(config.enable());
  const CHotkeySettingDlg another(config, manager);
  EXPECT_TRUE(another.findChild<QCheckBox*>(QStringLiteral("chkUseHotkeySettings"))->isChecked());
}

TEST_F(SettingsDialog, ResetsTheSchemeWhenThePlayerIsSure) {
  dialog->show();
  recommend(*config.editableScheme());
  config.editableScheme()->QuickChat[1] = u"glhf";
  {
    const auto box = answer(QMessageBox::Cancel);
    clickLink(find<QLabel>("lblResetToDefaultSetting"));
  }
  EXPECT_EQ(config.scheme().HeroSkillKey[0], KeyWord('Q', 0));
  const auto box = whenBoxIsShown([](QMessageBox& shown) {
    EXPECT_EQ(shown.icon(), QMessageBox::Warning);
    EXPECT_EQ(shown.windowTitle(), QStringLiteral("reset settings"));
    EXPECT_EQ(shown.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(shown.defaultButton(), shown.button(QMessageBox::Ok));
    shown.button(QMessageBox::Ok)->click();
  });
  clickLink(find<QLabel>("lblResetToDefaultSetting"));
  EXPECT_EQ(config.scheme().HeroSkillKey[0], kNoKey);
  EXPECT_EQ(config.scheme().QuickChat[1], u"");
  EXPECT_EQ(skill(1).text(), QString());
}

TEST_F(SettingsDialog, UsesTheRecommendedKeysInOneModeOnly) {
  {
    const auto box = answer(QMessageBox::Ok);
    emit dialog->useRecommendedSetting();
  }
  EXPECT_EQ(config.scheme().HeroSkillKey[0], KeyWord('Q', 0));
  config.editableScheme()->HeroSkillKey[0] = kNoKey;
  dialog->onSwitchDota7KeySettingDlg();
  const auto box = answer(QMessageBox::Ok);
  emit dialog->useRecommendedSetting();
  EXPECT_EQ(config.scheme().HeroSkillKey[0], kNoKey);
}

TEST_F(SettingsDialog, SwitchesModes) {
  dialog->show();
  page<CBasicSetting7Widget>().findChild<QPushButton*>(QStringLiteral("btnDota7Setting"))->click();
  EXPECT_TRUE(page<CDotA7BasicSetting>().isVisible());
  EXPECT_FALSE(find<QComboBox>("cmbHotkeySetting").isVisible());
  EXPECT_FALSE(find<QCheckBox>("chkUseHotkeySettings").isVisible());
  EXPECT_TRUE(find<QPushButton>("btnSwitchPlat").isVisible());
  EXPECT_FALSE(find<QPushButton>("btnSwitchDota7").isVisible());
  find<QPushButton>("btnSwitchPlat").click();
  EXPECT_TRUE(page<CBasicSetting7Widget>().isVisible());
  EXPECT_TRUE(find<QComboBox>("cmbHotkeySetting").isVisible());
  EXPECT_FALSE(find<QPushButton>("btnSwitchPlat").isVisible());
}

TEST_F(SettingsDialog, TakesTheRegistryBackWhenItIsCancelled) {
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
  dialog->show();
  dialog->onSwitchDota7KeySettingDlg();
  const platform::RegFile before = registry.content();
  auto& stop = *page<CDotA7BasicSetting>().findChild<QLineEdit*>(QStringLiteral("edt_HStopKey"));
  EXPECT_EQ(stop.text(), QStringLiteral("S"));
  pressKey(stop, Qt::Key_X);
  dialog->onSwitchPlatKeySettingDlg();
  dialog->onSwitchDota7KeySettingDlg();
  EXPECT_EQ(stop.text(), QStringLiteral("X")) << "edits outlive a switch of modes";
  dialog->close();
  EXPECT_EQ(registry.content(), before);
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
}

TEST_F(SettingsDialog, TakesTheRegistryBackWithAModifierStillDown) {
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
  dialog->show();
  dialog->onSwitchDota7KeySettingDlg();
  const platform::RegFile before = registry.content();
  auto& stop = *page<CDotA7BasicSetting>().findChild<QLineEdit*>(QStringLiteral("edt_HStopKey"));
  QApplication::setActiveWindow(dialog.get());
  stop.setFocus();
  ASSERT_TRUE(stop.hasFocus());
  pressKey(stop, Qt::Key_Control, Qt::ControlModifier);
  dialog->close();
  EXPECT_EQ(registry.content(), before);
}

TEST_F(SettingsDialog, KeepsTheRegistryWhenItIsAccepted) {
  dialog->onSwitchDota7KeySettingDlg();
  pressKey(*page<CDotA7BasicSetting>().findChild<QLineEdit*>(QStringLiteral("edt_HStopKey")),
           Qt::Key_X);
  find<QPushButton>("btnOK").click();
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  manager.cancelChanges();
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue('X'));
}

TEST_F(SettingsDialog, IsNotEndedByKeys) {
  dialog->show();
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) pressKey(*dialog, key);
  pressKey(*dialog, Qt::Key_F4, Qt::AltModifier);
  EXPECT_TRUE(dialog->isVisible());
  // No key field has the focus at first.
  ASSERT_NE(dialog->focusWidget(), nullptr);
  const HotkeyScheme before = config.scheme();
  pressKey(*dialog->focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(config.scheme(), before);
}

TEST_F(SettingsDialog, AnswersItsLinksToTheKeyboardAndInsideOnly) {
  dialog->show();
  QSignalSpy spy(dialog.get(), &CHotkeySettingDlg::resetSetting);
  QObject::disconnect(dialog.get(), &CHotkeySettingDlg::resetSetting, dialog.get(),
                      &CHotkeySettingDlg::onResetSetting);
  auto& link = find<QLabel>("lblResetToDefaultSetting");
  QTest::keyClick(&link, Qt::Key_Space);
  QTest::keyClick(&link, Qt::Key_Enter);
  EXPECT_EQ(spy.count(), 2);
  QTest::mouseRelease(&link, Qt::LeftButton, Qt::NoModifier, QPoint(-1, 2));
  EXPECT_EQ(spy.count(), 2);
}

TEST_F(SettingsDialog, RunsTheChatWindows) {
  dialog->show();
  const auto closeNext = [](int result) {
    QTimer::singleShot(
        0, [result] { static_cast<QDialog*>(QApplication::activeModalWidget())->done(result); });
  };
  closeNext(QDialog::Rejected);
  page<CBasicSetting7Widget>().findChild<QPushButton*>(QStringLiteral("btnTalkSetting"))->click();
  EXPECT_FALSE(page<ChatKeySettingWidget>().isVisible());

  auto& phrase = *page<Dota7ChatKeySettingWidget>().findChild<QLineEdit*>(
      QStringLiteral("edt_SOnStartString0"));
  for (const int result : {QDialog::Rejected, QDialog::Accepted}) {
    QTimer::singleShot(0, [&phrase, result] {
      phrase.setText(QStringLiteral("glhf"));
      static_cast<QDialog*>(QApplication::activeModalWidget())->done(result);
    });
    dialog->onShowDota7HotKeySettingDlg();
    const bool isStored = phrases(u"SOnStartString0") == bytesValue("glhf");
    EXPECT_EQ(isStored, result == QDialog::Accepted);
  }
}

TEST_F(SettingsDialog, OffersDota7OnlyIfItsKeysCanBeHad) {
  dialog->show();
  auto& way =
      *page<CBasicSetting7Widget>().findChild<QPushButton*>(QStringLiteral("btnDota7Setting"));
  dialog->setDataFolder(u"");
  EXPECT_TRUE(way.isVisible()) << "the key is there";
}

TEST_F(SettingsDialog, ToldOfOneRefusedKeySetOnce) {
  config.editableScheme()->ShowFBlood = KeyWord('3', KeyWord::kAlt);
  auto* const digits = dialog->findChild<QWidget*>(QStringLiteral("CAdvancedSettingWidget"))
                           ->findChild<QRadioButton*>(QStringLiteral("optChatKey_1"));
  int boxes = 0;
  const auto box = whenBoxIsShown([&boxes](QMessageBox& shown) {
    ++boxes;
    shown.accept();
  });
  digits->click();
  EXPECT_EQ(boxes, 1);
  EXPECT_EQ(config.scheme().QuickChatIndex, 1U);
}

}  // namespace
}  // namespace brennet::test
