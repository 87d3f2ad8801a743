#include "ui/pages/CBasicSettingWidget.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "model/HotkeyConfig.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/PageChecks.h"

namespace brennet::test {
namespace {

class CBasicSettingWidgetTest : public testing::Test {
 protected:
  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  CBasicSettingWidget page{config, nullptr};

  QLineEdit& field(const char* name) { return *page.findChild<QLineEdit*>(QLatin1String(name)); }
  QCheckBox& box(const char* name) { return *page.findChild<QCheckBox*>(QLatin1String(name)); }
};

TEST_F(CBasicSettingWidgetTest, HasItsMethodsInTheOrderThatClientsKnow) {
  const QStringList expected = {
      QStringLiteral("onToggled_DisableLWin"),      QStringLiteral("onToggled_LockMouse"),
      QStringLiteral("onToggled_ShowFriendBlood"),  QStringLiteral("onToggled_ShowFirendMana"),
      QStringLiteral("onToggled_ShowEnimiesBlood"), QStringLiteral("onToggled_KeepNoStretch"),
      QStringLiteral("onToggled_DelayOptimization")};
  EXPECT_EQ(methodNames(CBasicSettingWidget::staticMetaObject), expected);
}

TEST_F(CBasicSettingWidgetTest, HasItsTexts) {
  QStringList texts;
  for (const QGroupBox* const group : page.findChildren<QGroupBox*>()) texts += group->title();
  for (const QLabel* const label : page.findChildren<QLabel*>()) texts += label->text();
  for (const QCheckBox* const each : page.findChildren<QCheckBox*>()) texts += each->text();
  for (const char16_t* const text :
       {u"英雄技能快捷键", u"自定义技能快捷键", u"常用选项", u"延迟优化（请根据自身需求选用）",
        u"显示己方蓝量(需DotAOrrery)", u"小键盘物品栏快捷键", u"滚轮改键", u"技能提醒快捷键"}) {
    EXPECT_TRUE(texts.contains(QString::fromUtf16(text))) << qPrintable(QString::fromUtf16(text));
  }
}

TEST_F(CBasicSettingWidgetTest, HasSevenSkillsAndNothingThatLeadsElsewhere) {
  EXPECT_NE(page.findChild<QLineEdit*>(QStringLiteral("edtSkill_7")), nullptr);
  EXPECT_EQ(page.findChild<QLineEdit*>(QStringLiteral("edtSkill_8")), nullptr);
  EXPECT_TRUE(page.findChildren<QPushButton*>().isEmpty());
  EXPECT_EQ(page.findChild<QCheckBox*>(QStringLiteral("chkGroupKey1")), nullptr);
}

TEST_F(CBasicSettingWidgetTest, CapturesKeys) {
  pressKey(field("edtSkill_7"), Qt::Key_Q, Qt::AltModifier);
  EXPECT_EQ(scheme.HeroSkillKey[6], KeyWord('Q', KeyWord::kAlt));
  EXPECT_EQ(field("edtSkill_7").text(), QStringLiteral("Alt + Q"));
  pressKey(field("edtHotKeyLedgerSkill"), Qt::Key_W);
  EXPECT_EQ(scheme.SecretaryKey[2], KeyWord('W', 0));
  const auto warning = whenBoxIsShown([](QMessageBox& box) { box.accept(); });
  pressKey(field("edtGoodsKey_1"), Qt::Key_W);
  EXPECT_EQ(scheme.ItemKey[4], kNoKey);
  pressKey(field("edt_skillex_GROUP_L_2"), Qt::Key_E);
  EXPECT_EQ(scheme.ComboKey.Key_B, KeyWord('E', 0));
}

TEST_F(CBasicSettingWidgetTest, ParsesNamesByItsOwnRule) {
  EditControl control;
  EXPECT_TRUE(page.getEditControlTypeByParseName(QStringLiteral("edtSkill_7"), control));
  EXPECT_FALSE(page.getEditControlTypeByParseName(QStringLiteral("edtSkill_8"), control));
  EXPECT_EQ(control.nSkillIndex, 8);
  EXPECT_FALSE(page.getEditControlTypeByParseName(QStringLiteral("edtSkill_12"), control));
  EXPECT_FALSE(
      page.getEditControlTypeByParseName(QStringLiteral("edt_skillex_GROUP_2_R_1"), control));
}

TEST_F(CBasicSettingWidgetTest, StoresEachSwitch) {
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
  };
  for (const Row& row : kRows) {
    HotkeyScheme expected = scheme;
    box(row.box).click();
    expected.*row.field = 1;
    EXPECT_EQ(scheme, expected) << row.box;
    box(row.box).click();
  }
}

TEST_F(CBasicSettingWidgetTest, ShowsNoManaWithoutHealth) {
  box("chkShowFirendMana").click();
  EXPECT_EQ(scheme.ShowFManaFlag, 1);
  EXPECT_EQ(scheme.ShowFBloodFlag, 1);
  box("chkShowFriendBlood").click();
  EXPECT_EQ(scheme.ShowFManaFlag, 0);
}

TEST_F(CBasicSettingWidgetTest, HasNamesForScreenReaders) {
  page.show();
  expectAccessible(page);
}

TEST_F(CBasicSettingWidgetTest, IsReadInOrder) {
  page.show();
  // The switches, then the fields: the rows of the command card, then the other groups.
  QStringList expected;
  for (const char* const name :
       {"chkDisableLWin",      "chkLockMouse",     "chkShowFriendBlood",   "chkShowFirendMana",
        "chkShowEnimiesBlood", "chkKeepNoStretch", "chkDelayOptimization", "edtSkill_5",
        "edtSkill_6",          "edtSkill_7",       "edtSkill_1",           "edtSkill_2",
        "edtSkill_3",          "edtSkill_4",       "edtGoodsKey_7",        "edtGoodsKey_8",
        "edtGoodsKey_4",       "edtGoodsKey_5",    "edtGoodsKey_1",        "edtGoodsKey_2"}) {
    expected += QLatin1String(name);
  }
  for (int n = 1; n <= 5; ++n) {
    expected += QStringLiteral("edt_skillex_L_%1").arg(n);
    expected += QStringLiteral("edt_skillex_R_%1").arg(n);
  }
  for (const char* const name :
       {"edt_skillex_GROUP_L_1", "edt_skillex_GROUP_L_2", "edt_skillex_GROUP_R_1",
        "edtMouseWheelUpKey", "edtMouseWheelMiddleKey", "edtMouseWheelDownKey",
        "edtHotKeyLedgerSkill"}) {
    expected += QLatin1String(name);
  }
  EXPECT_EQ(tabOrder(page), expected);
}

TEST_F(CBasicSettingWidgetTest, ShowsTheSchemeAsItComes) {
  scheme.HeroSkillKey[6] = KeyWord('Q', KeyWord::kCtrl);
  scheme.ComboKey.Key_D = KeyWord('P', 0);
  scheme.SecretaryKey[2] = KeyWord('W', 0);
  scheme.ShowFManaFlag = 1;  // without health
  scheme.StartJSQFlag = 1;
  const HotkeyScheme before = scheme;
  const CBasicSettingWidget other(config, nullptr);
  const auto text = [&other](const char* name) {
    return other.findChild<QLineEdit*>(QLatin1String(name))->text();
  };
  EXPECT_EQ(text("edtSkill_7"), QStringLiteral("CTRL + Q"));
  EXPECT_EQ(text("edt_skillex_GROUP_R_1"), QStringLiteral("P"));
  EXPECT_EQ(text("edtHotKeyLedgerSkill"), QStringLiteral("W"));
  EXPECT_EQ(text("edtSkill_1"), QString());
  QStringList checked;
  for (const QCheckBox* const each : other.findChildren<QCheckBox*>()) {
    if (each->isChecked()) checked += each->objectName();
  }
  EXPECT_EQ(checked, QStringList({QStringLiteral("chkShowFirendMana"),
                                  QStringLiteral("chkDelayOptimization")}));
  EXPECT_EQ(scheme, before) << "showing it stores nothing";
}

TEST_F(CBasicSettingWidgetTest, TracesWhichSettingAFieldEdits) {
  const CaughtMessages messages;
  pressKey(field("edtGoodsKey_4"), Qt::Key_Q);
  EXPECT_EQ(messages.texts(), QStringList(QStringLiteral(
                                  "getEditControlTypeByParseName\"edtGoodsKey_4\", result:true"
                                  ", nSkillIndex:0, nGoodsIndex:4, nSkillExSrcIndex:0"
                                  ", nSkillExDstIndex: \n0, nSkillGroupSrcIndex:0"
                                  ", nSkillGroupDstIndex:0, nMouseWheelIndex:0, nLedgerIndex:0")));
}

}  // namespace
}  // namespace brennet::test
