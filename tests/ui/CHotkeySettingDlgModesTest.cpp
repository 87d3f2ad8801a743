// What the settings dialog shows: which scheme, which mode, and on which pages.

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QStackedLayout>

#include "tests/ui/SettingsDialogTest.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/CChatRouletteSettingWidget.h"
#include "ui/pages/ChatKeySettingWidget.h"

namespace brennet::test {
namespace {

class CHotkeySettingDlgModesTest : public SettingsDialog {
 protected:
  QComboBox& selector() { return find<QComboBox>("cmbHotkeySetting"); }
  int pageShown() { return dialog->findChild<QStackedLayout*>()->currentIndex(); }
  // Controls that edit the scheme are enabled or not, as expected; those that lead elsewhere or end
  // the dialog always are.
  void expectEdits(bool areEnabled) {
    for (const char* const name :
         {"edtSkill_1", "edtGoodsKey_7", "edt_skillex_L_1", "edtMouseWheelUpKey", "edtWinLockMouse",
          "chkHideUI", "chkGroupKey1", "chkSkillHero", "btn_skillcast_1", "btn_SetAll_AutoCast",
          "btnTalkSetting"}) {
      EXPECT_EQ(find<QWidget>(name).isEnabled(), areEnabled) << name;
    }
    for (const char* const name : {"cmbHotkeySetting", "btnDota7Setting", "btnOrrerySetting",
                                   "btnOK", "btnCancel", "lblResetToDefaultSetting"}) {
      EXPECT_TRUE(find<QWidget>(name).isEnabled()) << name;
    }
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (window->objectName() != QLatin1String("COrrerySettingDlg")) continue;
      EXPECT_EQ(window->findChild<QWidget*>(QStringLiteral("edtOpenCloseLedger"))->isEnabled(),
                areEnabled);
      EXPECT_EQ(window->findChild<QWidget*>(QStringLiteral("chkShowFriendsMana"))->isEnabled(),
                areEnabled);
      EXPECT_TRUE(window->findChild<QWidget*>(QStringLiteral("btnClose"))->isEnabled());
    }
  }
};

TEST_F(CHotkeySettingDlgModesTest, SwitchSchemesOnAllPages) {
  HotkeyScheme& third = *config.editableScheme(2);
  third.HeroSkillKey[0] = KeyWord('T', 0);
  third.QuickChat[0] = u"third";
  third.ChatWheel[0] = u"wheel of the third";
  third.ShowFBlood = KeyWord('B', 0);
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
  EXPECT_EQ(stopKey().text(), QString());
  selector().setCurrentIndex(2);
  EXPECT_EQ(config.index(), 2U);
  EXPECT_EQ(skill(1).text(), QStringLiteral("T"));
  EXPECT_EQ(on<ChatKeySettingWidget>("chatLineEdit_1").text(), QStringLiteral("third"));
  EXPECT_EQ(on<CAdvancedSettingWidget>("edtShowFBlood").text(), QStringLiteral("B"));
  EXPECT_EQ(on<CChatRouletteSettingWidget>("edtChatWheel_1").text(),
            QStringLiteral("wheel of the third"));
  EXPECT_EQ(stopKey().text(), QStringLiteral("S")) << "the registry is read again";
}

TEST_F(CHotkeySettingDlgModesTest, KnowThreeSchemes) {
  selector().setCurrentIndex(2);
  dialog->onCurrentIndexChanged_HotkeySetting(3);
  dialog->onCurrentIndexChanged_HotkeySetting(-1);
  EXPECT_EQ(config.index(), 2U);
}

// What is typed where there is no scheme would be lost.
TEST_F(CHotkeySettingDlgModesTest, ShowNoSchemeWhereTheFileNamesNone) {
  config.editableScheme(0)->HeroSkillKey[0] = KeyWord('Q', 0);
  for (std::uint32_t index = HotkeyConfig::kSchemes; index <= HotkeyConfig::kLargestIndex;
       ++index) {
    SCOPED_TRACE(index);
    ASSERT_TRUE(config.setIndex(index));
    dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
    dialog->show();
    EXPECT_EQ(selector().currentIndex(), -1);
    EXPECT_EQ(selector().currentText(), QString());
    EXPECT_EQ(skill(1).text(), QString());
    EXPECT_EQ(config.index(), index) << "a look changes nothing";
    expectEdits(false);
    selector().setCurrentIndex(0);
    expectEdits(true);
    EXPECT_EQ(config.index(), 0U);
    EXPECT_EQ(skill(1).text(), QStringLiteral("Q"));
  }
}

TEST_F(CHotkeySettingDlgModesTest, ShowTheSchemeOfTheFile) {
  for (const int index : {0, 1, 2}) {
    ASSERT_TRUE(config.setIndex(static_cast<std::uint32_t>(index)));
    dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
    EXPECT_EQ(selector().currentIndex(), index);
  }
}

TEST_F(CHotkeySettingDlgModesTest, ShowAndStoreTheSwitch) {
  auto& box = find<QCheckBox>("chkUseHotkeySettings");
  EXPECT_FALSE(box.isChecked());
  box.click();
  EXPECT_TRUE(config.enable());
  const CHotkeySettingDlg another(config, manager);
  EXPECT_TRUE(another.findChild<QCheckBox*>(QStringLiteral("chkUseHotkeySettings"))->isChecked());
  box.click();
  EXPECT_FALSE(config.enable());
  dialog->onToggled_UseHotkeySettings(true);
  EXPECT_TRUE(config.enable());
  dialog->onToggled_UseHotkeySettings(false);
  EXPECT_FALSE(config.enable());
}

TEST_F(CHotkeySettingDlgModesTest, HaveTheirOwnControls) {
  struct {
    const char* name;
    bool isInPlatformMode;
    bool isInDota7Mode;
  } const kRows[] = {
      {"lblSetting", true, false},
      {"cmbHotkeySetting", true, false},
      {"chkUseHotkeySettings", true, false},
      {"btnSwitchPlat", false, true},
      {"btnSwitchDota7", false, false},
      {"lblUseRecommendedSetting", false, false},
      {"lblResetToDefaultSetting", true, true},
      {"lblHeader", true, true},
      {"btnOK", true, true},
  };
  const auto expectControls = [&](bool isPlatform) {
    for (const auto& row : kRows) {
      EXPECT_EQ(find<QWidget>(row.name).isVisible(),
                isPlatform ? row.isInPlatformMode : row.isInDota7Mode)
          << row.name << (isPlatform ? ", platform" : ", DotA 7");
    }
    EXPECT_EQ(page<CBasicSetting7Widget>().isVisible(), isPlatform);
    EXPECT_EQ(page<CDotA7BasicSetting>().isVisible(), !isPlatform);
  };
  dialog->show();
  expectControls(true);
  on<CBasicSetting7Widget, QPushButton>("btnDota7Setting").click();
  expectControls(false);
  find<QPushButton>("btnSwitchPlat").click();
  expectControls(true);
  find<QPushButton>("btnSwitchDota7").click();
  expectControls(false);
}

TEST_F(CHotkeySettingDlgModesTest, ReadTheRegistryWhenTheyBegin) {
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
  dialog->onSwitchDota7KeySettingDlg();
  EXPECT_EQ(stopKey().text(), QStringLiteral("S"));
}

TEST_F(CHotkeySettingDlgModesTest, AreOfOneSize) {
  dialog->show();
  const QSize size = dialog->size();
  EXPECT_EQ(dialog->sizeHint(), size) << "as large as the skin makes it, from the start";
  expectNothingIsCut(*dialog);
  dialog->onSwitchDota7KeySettingDlg();
  QCoreApplication::processEvents();
  EXPECT_EQ(dialog->size(), size);
  expectNothingIsCut(*dialog);
  dialog->onSwitchPlatKeySettingDlg();
  QCoreApplication::processEvents();
  EXPECT_EQ(dialog->size(), size);
}

TEST_F(CHotkeySettingDlgModesTest, AreLeftAloneBySlotsThatOnlyClientsUse) {
  dialog->onSwitchAdvancedSettingUI();
  EXPECT_EQ(pageShown(), 1);
  dialog->onSwitchSettingUI();
  EXPECT_EQ(pageShown(), 1) << "nothing";
  dialog->onSwitchBasicSettingUI();
  EXPECT_EQ(pageShown(), 0);
  dialog->onSwitchSettingUI();
  EXPECT_EQ(pageShown(), 0) << "nothing";
  dialog->onSwitchAdvancedSettingUI();
  EXPECT_FALSE(find<QComboBox>("cmbHotkeySetting").isHidden());
  EXPECT_TRUE(find<QPushButton>("btnSwitchPlat").isHidden());
}

TEST_F(CHotkeySettingDlgModesTest, HaveAChatWheelThatOnlyTakesTheFocus) {
  dialog->onSwitchChatWheelSettingUI();
  EXPECT_EQ(pageShown(), 0);
  EXPECT_TRUE(page<CChatRouletteSettingWidget>().isHidden());
  const QWidget* first = nullptr;
  for (const QWidget* const inner : page<CChatRouletteSettingWidget>().findChildren<QWidget*>()) {
    if (first == nullptr && inner->focusPolicy() != Qt::NoFocus) first = inner;
  }
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(dialog->focusWidget(), first);
}

}  // namespace
}  // namespace brennet::test
