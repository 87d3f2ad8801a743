// What the basic page stores.

#include <QDialog>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include "model/RecommendedScheme.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/BasicPageTest.h"
#include "tests/ui/pages/ChatPageTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/capture/RefusalText.h"

namespace brennet::test {
namespace {

constexpr KeyWord kCtrlAltQ('Q', KeyWord::kCtrl | KeyWord::kAlt);

using CBasicSetting7WidgetEditsTest = BasicPage;

TEST_F(CBasicSetting7WidgetEditsTest, StoresTheKeyOfEachField) {
  struct Row {
    const char* field;
    KeyWord& key;
  };
  const Row kRows[] = {
      {"edtSkill_1", scheme.HeroSkillKey[0]},
      {"edtSkill_12", scheme.HeroSkillKey[11]},
      {"edtGoodsKey_7", scheme.ItemKey[0]},
      {"edtGoodsKey_2", scheme.ItemKey[5]},
      {"edt_skillex_L_5", scheme.HotKey[4].Src},
      {"edt_skillex_R_5", scheme.HotKey[4].Dest},
      {"edt_skillex_GROUP_L_1", scheme.ComboKey.Key_A},
      {"edt_skillex_GROUP_R_1", scheme.ComboKey.Key_D},
      {"edt_skillex_GROUP_2_L_1", scheme.ComboKey.Key_A},
      {"edt_skillex_GROUP_2_L_2", scheme.ComboKey.Key_B},
      {"edt_skillex_GROUP_2_L_3", scheme.ComboKey.Key_C},
      {"edt_skillex_GROUP_2_R_1", scheme.ComboKey.Key_D},
      {"edtMouseWheelUpKey", scheme.MouseKey[0]},
      {"edtMouseWheelMiddleKey", scheme.MouseKey[1]},
      {"edtMouseWheelDownKey", scheme.MouseKey[2]},
      {"edtShowFBlood", scheme.ShowFBlood},
      {"edtShowEBlood", scheme.ShowEBlood},
      {"edtWinLockMouse", scheme.WinLockMouse},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.field);
    const HotkeyScheme expected = scheme;
    pressKey(field(row.field), Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(field(row.field).text(), QStringLiteral("CTRL +Alt + Q"));
    EXPECT_EQ(row.key, kCtrlAltQ);
    row.key = kNoKey;
    EXPECT_EQ(scheme, expected) << "nothing else has changed";
    row.key = kCtrlAltQ;
    page.showSettings();
    EXPECT_EQ(field(row.field).text(), QStringLiteral("CTRL + Alt + Q"));
    pressKey(field(row.field), Qt::Key_Delete);
    EXPECT_EQ(row.key, kNoKey);
    EXPECT_EQ(field(row.field).text(), QString());
    EXPECT_EQ(scheme, expected);
  }
}

TEST_F(CBasicSetting7WidgetEditsTest, RefusesAKeyOfThePreset) {
  scheme.NumComboKeyIndex = 0;
  QString told;
  const auto warning = whenBoxIsShown([&](QMessageBox& box) {
    told = box.text();
    EXPECT_EQ(box.parentWidget(), &page);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    box.accept();
  });
  pressKey(field("edtSkill_4"), Qt::Key_Q, Qt::AltModifier);
  EXPECT_EQ(told, QStringLiteral("IDS_KEY_USED"));
  EXPECT_EQ(scheme.HeroSkillKey[3], kNoKey);
  EXPECT_EQ(field("edtSkill_4").text(), QString());
}

TEST_F(CBasicSetting7WidgetEditsTest, StoresEachSwitch) {
  struct Row {
    const char* box;
    std::uint8_t HotkeyScheme::*field;
  };
  const Row kRows[] = {
      {"chkDisableLWin", &HotkeyScheme::DisableLWinFlag},
      {"chkLockMouse", &HotkeyScheme::LockMouseFlag},
      {"chkShowFriendBlood", &HotkeyScheme::ShowFBloodFlag},
      {"chkShowEnimiesBlood", &HotkeyScheme::ShowEBloodFlag},
      {"chkKeepNoStretch", &HotkeyScheme::ViewNoDragFlag},
      {"chkDelayOptimization", &HotkeyScheme::StartJSQFlag},
      {"chkHideUI", &HotkeyScheme::HideUI},
      {"chkSkillHero", &HotkeyScheme::SkillHeroOnly},
      {"chkKeyModifyHero", &HotkeyScheme::CombokeyHeroOnly},
      {"chkDisableLeftAlt", &HotkeyScheme::DisableLeftAlt},
      {"chkDisableLeftAltShowHP", &HotkeyScheme::DisableLeftAltShowHP},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.box);
    HotkeyScheme expected = scheme;
    box(row.box).click();
    expected.*row.field = 1;
    EXPECT_EQ(scheme, expected);
    box(row.box).click();
    expected.*row.field = 0;
    EXPECT_EQ(scheme, expected);
    scheme.*row.field = 1;
    page.showSettings();
    EXPECT_TRUE(box(row.box).isChecked());
    scheme.*row.field = 0;
    page.showSettings();
  }
}

TEST_F(CBasicSetting7WidgetEditsTest, ShowsNoManaWithoutHealth) {
  mana().click();
  EXPECT_EQ(scheme.ShowFManaFlag, 1);
  EXPECT_EQ(scheme.ShowFBloodFlag, 1) << "mana brings health along";
  EXPECT_TRUE(box("chkShowFriendBlood").isChecked());
  box("chkShowFriendBlood").click();
  EXPECT_EQ(scheme.ShowFBloodFlag, 0);
  EXPECT_EQ(scheme.ShowFManaFlag, 0) << "and goes with it";
  EXPECT_FALSE(mana().isChecked());
  box("chkShowFriendBlood").click();
  EXPECT_EQ(scheme.ShowFManaFlag, 0) << "health does without mana";
}

TEST_F(CBasicSetting7WidgetEditsTest, ChoosesAPresetSilently) {
  box("chkGroupKey1").click();
  EXPECT_EQ(scheme.NumComboKeyIndex, 0);
  box("chkGroupKey3").click();
  EXPECT_EQ(scheme.NumComboKeyIndex, 2);
  EXPECT_FALSE(box("chkGroupKey1").isChecked());
  scheme.HeroSkillKey[0] = KeyWord('W', KeyWord::kAlt);
  box("chkGroupKey2").click();
  EXPECT_TRUE(box("chkGroupKey2").isChecked());
  EXPECT_FALSE(box("chkGroupKey3").isChecked());
  EXPECT_EQ(scheme.NumComboKeyIndex, 2) << "a refused preset leaves the stored one";
  box("chkGroupKey2").click();
  EXPECT_EQ(scheme.NumComboKeyIndex, -1);
}

TEST_F(CBasicSetting7WidgetEditsTest, ShowsWhatIsInTheWayOfAPreset) {
  const auto isOutlined = [&](const char* name) {
    return field(name).property("holdsKey").toBool();
  };
  scheme.HeroSkillKey[0] = KeyWord('W', KeyWord::kAlt);
  page.showSettings();
  box("chkGroupKey3").click();
  EXPECT_EQ(box("chkGroupKey3").toolTip(), QString());
  box("chkGroupKey2").click();
  EXPECT_EQ(box("chkGroupKey2").toolTip(),
            refusalText(takenKeysOfPreset(scheme, 1), KeyWindow::Main));
  EXPECT_TRUE(box("chkGroupKey2").toolTip().contains(QStringLiteral("Alt + W")));
  EXPECT_TRUE(isOutlined("edtSkill_1"));
  EXPECT_FALSE(isOutlined("edtSkill_2"));
  box("chkGroupKey2").click();
  EXPECT_EQ(box("chkGroupKey2").toolTip(), QString());
  EXPECT_FALSE(isOutlined("edtSkill_1"));
  box("chkGroupKey1").click();
  page.showSettings();
  EXPECT_EQ(box("chkGroupKey1").toolTip(), QString());
  EXPECT_FALSE(isOutlined("edtSkill_1"));
}

TEST_F(CBasicSetting7WidgetEditsTest, MarksSkillsAndItemsForQuickCast) {
  button("btn_skillcast_12").click();
  EXPECT_EQ(scheme.HeroSkillAutocast[11], true);
  EXPECT_EQ(scheme.HeroSkillAutocast[0], false) << "all twelve are stored";
  button("btn_goods_cast_8").click();
  EXPECT_EQ(scheme.ItemAutocast[1], true);
  EXPECT_EQ(scheme.ItemAutocast[0], false);
  button("btn_SetAll_AutoCast").click();
  for (int i = 1; i <= kHeroSkills; ++i) {
    EXPECT_EQ(scheme.HeroSkillAutocast[static_cast<std::size_t>(i - 1)], true);
    EXPECT_TRUE(button(qPrintable(QStringLiteral("btn_skillcast_%1").arg(i))).isChecked());
  }
  EXPECT_EQ(scheme.ItemAutocast[0], false) << "items are not skills";
  button("btn_SetAll_NormalCast").click();
  for (const auto& mark : scheme.HeroSkillAutocast) EXPECT_EQ(mark, false);
  EXPECT_FALSE(button("btn_skillcast_12").isChecked());
}

TEST_F(CBasicSetting7WidgetEditsTest, LeadsToTheOtherWindows) {
  QSignalSpy hotkeys(&page, &CBasicSetting7Widget::showHotKeySettingDlg);
  QSignalSpy dota7(&page, &CBasicSetting7Widget::showDota7SettingDlg);
  QSignalSpy talk(&page, &CBasicSetting7Widget::showTalkSettingDlg);
  QSignalSpy orrerySignal(&page, &CBasicSetting7Widget::showOrrerySettingDlg);
  button("btnTalkSetting").click();
  button("btnDota7Setting").click();
  page.onClickedHotKeySettingBtn();
  EXPECT_EQ(hotkeys.count(), 2);
  EXPECT_EQ(dota7.count(), 1);
  EXPECT_EQ(talk.count() + orrerySignal.count(), 0) << "nobody sends these";
}

TEST_F(CBasicSetting7WidgetEditsTest, ShowsAndHidesTheOrreryWindow) {
  button("btnOrrerySetting").click();
  EXPECT_TRUE(orrery().isVisible());
  EXPECT_FALSE(orrery().isModal());
  button("btnOrrerySetting").click();
  EXPECT_FALSE(orrery().isVisible());
}

QWidget* orreryWindow() {
  const auto windows = QApplication::topLevelWidgets();
  return *std::find_if(windows.begin(), windows.end(), [](QWidget* window) {
    return qobject_cast<COrrerySettingDlg*>(window) != nullptr;
  });
}

TEST(CBasicSetting7WidgetEditsInADialog, GivesTheOrreryWindowAnOwner) {
  HotkeyConfig config;
  QDialog dialog;
  auto* const page = new CBasicSetting7Widget(config, &dialog);
  dialog.setWindowModality(Qt::ApplicationModal);
  dialog.show();
  for (int round = 0; round < 2; ++round) {
    page->onClickedOrrerySettingBtn();
    QWidget* const orrery = orreryWindow();
    ASSERT_TRUE(orrery->isVisible());
    EXPECT_EQ(orrery->windowType(), Qt::Tool);
    EXPECT_TRUE(orrery->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(orrery->windowHandle()->transientParent(), dialog.windowHandle());
    // It can be used although its owner is modal.
    auto* const mana = orrery->findChild<QCheckBox*>(QStringLiteral("chkShowFriendsMana"));
    const bool wasOn = mana->isChecked();
    QTest::mouseClick(orrery->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      mana->mapTo(orrery, QPoint(8, mana->height() / 2)));
    EXPECT_NE(mana->isChecked(), wasOn);
    page->onClickedOrrerySettingBtn();
    EXPECT_FALSE(orrery->isVisible());
  }
}

TEST_F(CBasicSetting7WidgetEditsTest, CapturesTheKeysOfTheOrreryWindow) {
  const char* const names[] = {"edtOpenCloseLedger", "edtShowHideLedgerData",
                               "edtHotKeyLedgerSkill"};
  for (std::size_t i = 0; i < 3; ++i) {
    auto* const ledger = orrery().findChild<QLineEdit*>(QLatin1String(names[i]));
    const int key = 'A' + static_cast<int>(i);
    pressKey(*ledger, static_cast<Qt::Key>(key));
    EXPECT_EQ(scheme.SecretaryKey[i], KeyWord(static_cast<std::uint8_t>(key), 0));
    EXPECT_EQ(ledger->text(), QStringLiteral(" ") + QChar(key));
  }
  scheme.SecretaryKey[1] = kNoKey;
  page.showSettings();
  EXPECT_EQ(orrery().findChild<QLineEdit*>(QLatin1String(names[1]))->text(), QString());
}

TEST_F(CBasicSetting7WidgetEditsTest, StoresNothingWhileItShowsAScheme) {
  recommend(scheme);
  scheme.NumComboKeyIndex = 2;  // choosing it would be refused: its keys are taken
  scheme.ShowFManaFlag = 1;     // without health
  scheme.HeroSkillAutocast[3] = true;
  config.editableScheme(1)->HeroSkillKey[0] = KeyWord('X', 0);
  const HotkeyConfig before = config;
  const HotkeyScheme expected[] = {config.scheme(0), config.scheme(1), config.scheme(2)};
  for (const unsigned index : {0U, 1U, 2U, 0U}) {
    config.setIndex(index);
    page.showSettings();
  }
  for (int i = 0; i < 3; ++i) EXPECT_EQ(config.scheme(i), expected[i]);
  EXPECT_EQ(field("edtSkill_1").text(), QStringLiteral("Q"));
  EXPECT_TRUE(box("chkGroupKey3").isChecked());
  EXPECT_TRUE(button("btn_skillcast_4").isChecked());
}

TEST_F(CBasicSetting7WidgetEditsTest, ClearsTheSchemeOnReset) {
  recommend(scheme);
  scheme.HeroSkillAutocast[0] = true;
  scheme.ItemAutocast[0] = true;
  scheme.DisableLeftAlt = 1;
  scheme.LockMouseFlag = 1;
  scheme.QuickChat[2] = u"glhf";
  page.showSettings();
  page.clearSettings();
  HotkeyScheme expected;
  expected.QuickChat[2] = u"glhf";
  EXPECT_EQ(scheme, expected);
  EXPECT_EQ(field("edtSkill_1").text(), QString());
  EXPECT_FALSE(button("btn_skillcast_1").isChecked());
  EXPECT_FALSE(box("chkLockMouse").isChecked());
}

TEST_F(CBasicSetting7WidgetEditsTest, ShowsTheRecommendedKeys) {
  page.useRecommended();
  HotkeyScheme expected;
  recommend(expected);
  EXPECT_EQ(scheme, expected);
  EXPECT_EQ(field("edtSkill_1").text(), QStringLiteral("Q"));
  EXPECT_EQ(field("edtGoodsKey_2").text(), QStringLiteral("Alt + 6"));
}

TEST_F(CBasicSetting7WidgetEditsTest, LeavesSchemesThatItCannotEditAlone) {
  const HotkeyScheme expected[] = {config.scheme(0), config.scheme(1), config.scheme(2)};
  for (unsigned index = HotkeyConfig::kSchemes; index <= 10; ++index) {
    SCOPED_TRACE(index);
    ASSERT_TRUE(config.setIndex(index));
    page.showSettings();
    for (QCheckBox* const each : page.findChildren<QCheckBox*>()) each->click();
    button("btn_SetAll_AutoCast").click();
    button("btn_goods_cast_7").click();
    pressKey(field("edtSkill_1"), Qt::Key_Delete);
    expectWarning(page, "IDS_KEY_USED", [&] { pressKey(field("edtSkill_1"), Qt::Key_Q); });
    page.clearSettings();
    page.useRecommended();
    for (int i = 0; i < 3; ++i) EXPECT_EQ(config.scheme(i), expected[i]);
  }
}

TEST_F(CBasicSetting7WidgetEditsTest, TracesWhichSettingAFieldEdits) {
  CaughtMessages messages;
  pressKey(field("edtSkill_12"), Qt::Key_Q);
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_EQ(messages.texts().front(),
            QStringLiteral("getEditControlTypeByParseName\"edtSkill_12\", result:true"
                           ", nSkillIndex:12, nGoodsIndex:0, nSkillExSrcIndex:0"
                           ", nSkillExDstIndex: \n0, nSkillGroupSrcIndex:0"
                           ", nSkillGroupDstIndex:0, nMouseWheelIndex:0, nLedgerIndex:0"));
}

}  // namespace
}  // namespace brennet::test
