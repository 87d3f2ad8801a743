// What the basic page has, and where.

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QSet>

#include "tests/ui/pages/BasicPageTest.h"
#include "tests/ui/pages/PageChecks.h"

namespace brennet::test {
namespace {

using CBasicSetting7WidgetTest = BasicPage;

TEST_F(CBasicSetting7WidgetTest, HasItsMethodsInTheOrderThatClientsKnow) {
  const QStringList expected = {QStringLiteral("showHotKeySettingDlg"),
                                QStringLiteral("showDota7SettingDlg"),
                                QStringLiteral("showTalkSettingDlg"),
                                QStringLiteral("showOrrerySettingDlg"),
                                QStringLiteral("onToggled_DisableLWin"),
                                QStringLiteral("onToggled_LockMouse"),
                                QStringLiteral("onToggled_ShowFriendBlood"),
                                QStringLiteral("onToggled_ShowFirendMana"),
                                QStringLiteral("onToggled_ShowEnimiesBlood"),
                                QStringLiteral("onToggled_KeepNoStretch"),
                                QStringLiteral("onToggled_DelayOptimization"),
                                QStringLiteral("onToggled_GroupKey1"),
                                QStringLiteral("onToggled_GroupKey2"),
                                QStringLiteral("onToggled_GroupKey3"),
                                QStringLiteral("onToggled_HideUI"),
                                QStringLiteral("onToggled_checkBox_Skill_Hero"),
                                QStringLiteral("onToggled_checkBox_KeyModify_Hero"),
                                QStringLiteral("onToggled_checkBox_DisableLeftAlt"),
                                QStringLiteral("onToggled_checkBox_DisableLeftAltShowHP"),
                                QStringLiteral("onClickedHotKeySettingBtn"),
                                QStringLiteral("onClickedDota7SettingBtn"),
                                QStringLiteral("onClickedTalkSettingBtn"),
                                QStringLiteral("onClickedOrrerySettingBtn"),
                                QStringLiteral("onClickedHeroSkillAutocastButton"),
                                QStringLiteral("onClickedHeroSKillAutocastSetAll"),
                                QStringLiteral("onClickedHeroSkillAutocastClearAll"),
                                QStringLiteral("onClickedItemAutocastButton")};
  EXPECT_EQ(methodNames(CBasicSetting7Widget::staticMetaObject), expected);
}

TEST_F(CBasicSetting7WidgetTest, HasItsTexts) {
  struct Text {
    const char* name;
    QString text;
  };
  const Text kTexts[] = {
      {"chkSkillHero", QStringLiteral(u"只对英雄有效")},
      {"chkKeyModifyHero", QStringLiteral(u"只对英雄有效")},
      {"btn_SetAll_AutoCast", QStringLiteral(u"全部设为快捷施法")},
      {"btn_SetAll_NormalCast", QStringLiteral(u"全部设为常规施法")},
      {"chkGroupKey1", QStringLiteral("Num784512  =  Alt+QWERDF")},
      {"chkGroupKey2", QStringLiteral("Num784512  =  Alt+QWASZX")},
      {"chkGroupKey3", QStringLiteral("Num784512  =  Alt+123456")},
      {"chkDisableLWin", QStringLiteral(u"禁用左Win键")},
      {"chkLockMouse", QStringLiteral(u"窗口模式锁定鼠标")},
      {"chkShowFriendBlood", QStringLiteral(u"显示己方血量")},
      {"chkShowEnimiesBlood", QStringLiteral(u"显示敌方血量")},
      {"chkKeepNoStretch", QStringLiteral(u"画面不拉伸（留黑边）")},
      {"chkDelayOptimization", QStringLiteral(u"延迟优化")},
      {"chkHideUI", QStringLiteral(u"隐藏游戏内按钮")},
      {"chkDisableLeftAlt", QStringLiteral(u"禁用左Alt键")},
      {"chkDisableLeftAltShowHP", QStringLiteral(u"禁用左Alt键显血")},
      {"btnOrrerySetting", QStringLiteral(u"Orrery设置")},
      {"btnTalkSetting", QStringLiteral(u"快捷喊话")},
      {"btnDota7Setting", QStringLiteral(u"7.0专用改键")},
  };
  for (const Text& row : kTexts) EXPECT_EQ(find<QAbstractButton>(row.name).text(), row.text);
  struct Label {
    const char* field;
    QString text;
  };
  const Label kLabels[] = {{"edtMouseWheelUpKey", QStringLiteral(u"滚轮向上")},
                           {"edtMouseWheelMiddleKey", QStringLiteral(u"滚轮中键")},
                           {"edtMouseWheelDownKey", QStringLiteral(u"滚轮向下")}};
  for (const Label& row : kLabels) {
    QStringList texts;
    for (const QLabel* const label : page.findChildren<QLabel*>()) {
      if (label->buddy() == &field(row.field)) texts += label->text();
    }
    EXPECT_EQ(texts, QStringList(row.text));
  }
  QStringList groups;
  for (const QGroupBox* const group : page.findChildren<QGroupBox*>()) groups += group->title();
  QStringList expected = {QStringLiteral(u"英雄技能"),   QStringLiteral(u"小键盘物品栏"),
                          QStringLiteral(u"自定义改键"), QStringLiteral(u"滚轮改键"),
                          QStringLiteral(u"游戏设置"),   QStringLiteral(u"小键盘组合快捷键")};
  groups.sort();
  expected.sort();
  EXPECT_EQ(groups, expected) << "add the title of a new group to this list";
}

TEST_F(CBasicSetting7WidgetTest, ShowsTheSkillsWhereTheGameHasThem) {
  page.resize(page.sizeHint());
  page.show();
  // The rows of the command card, from its top left.
  const int rows[][4] = {{9, 10, 11, 12}, {8, 5, 6, 7}, {1, 2, 3, 4}};
  const auto place = [this](int number) {
    return field(qPrintable(QStringLiteral("edtSkill_%1").arg(number))).geometry();
  };
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 4; ++column) {
      const QRect at = place(rows[row][column]);
      EXPECT_EQ(at.top(), place(rows[row][0]).top());
      if (column > 0) {
        EXPECT_GT(at.left(), place(rows[row][column - 1]).right());
      }
      if (row > 0) {
        EXPECT_EQ(at.left(), place(rows[row - 1][column]).left());
      }
      if (row > 0) {
        EXPECT_GT(at.top(), place(rows[row - 1][column]).bottom());
      }
    }
  }
}

TEST_F(CBasicSetting7WidgetTest, ShowsTheItemsWhereTheGameHasThem) {
  page.resize(page.sizeHint());
  page.show();
  const auto place = [this](int digit) {
    return field(qPrintable(QStringLiteral("edtGoodsKey_%1").arg(digit))).geometry();
  };
  const int rows[][2] = {{7, 8}, {4, 5}, {1, 2}};
  for (int row = 0; row < 3; ++row) {
    EXPECT_EQ(place(rows[row][0]).top(), place(rows[row][1]).top());
    EXPECT_GT(place(rows[row][1]).left(), place(rows[row][0]).right());
    if (row > 0) {
      EXPECT_GT(place(rows[row][0]).top(), place(rows[row - 1][0]).bottom());
    }
  }
}

TEST_F(CBasicSetting7WidgetTest, HidesTheOlderViewOfTheGroupRemap) {
  page.show();
  EXPECT_FALSE(field("edt_skillex_GROUP_L_1").isVisible());
  EXPECT_TRUE(field("edt_skillex_GROUP_2_L_3").isVisible());
  pressKey(field("edt_skillex_GROUP_L_2"), Qt::Key_G);
  EXPECT_EQ(scheme.ComboKey.Key_B, KeyWord('G', 0)) << "hidden, but it works";
}

TEST_F(CBasicSetting7WidgetTest, ShowsTheGroupRemapInTheColumnsOfTheOthers) {
  page.resize(page.sizeHint());
  page.show();
  const char* const pairs[][2] = {{"edt_skillex_GROUP_2_L_1", "edt_skillex_L_1"},
                                  {"edt_skillex_GROUP_2_L_2", "edt_skillex_R_1"},
                                  {"edt_skillex_GROUP_2_L_3", "edt_skillex_L_2"},
                                  {"edt_skillex_GROUP_2_R_1", "edt_skillex_R_2"}};
  for (const int more : {0, 1, 2, 100}) {
    page.resize(page.sizeHint().width() + more, page.sizeHint().height());
    QCoreApplication::processEvents();
    for (const auto& [group, single] : pairs) {
      const auto left = [this](const char* name) { return field(name).mapTo(&page, QPoint()).x(); };
      EXPECT_EQ(left(group), left(single)) << group;
      EXPECT_EQ(field(group).width(), field(single).width()) << group;
    }
  }
}

TEST_F(CBasicSetting7WidgetTest, HasNamesForScreenReaders) {
  page.show();
  expectAccessible(page);
  expectAccessible(orrery());
}

TEST_F(CBasicSetting7WidgetTest, IsReadInOrder) {
  page.show();
  const QStringList order = tabOrder(page);
  const auto at = [&order](const char* name) { return order.indexOf(QLatin1String(name)); };
  // Key fields keep Tab as a key, so whatever it can leave comes before them.
  const char* const kInOrder[] = {
      "btn_skillcast_9",
      "chkSkillHero",
      "btn_SetAll_AutoCast",
      "chkKeyModifyHero",
      "chkLockMouse",
      "chkHideUI",
      "btn_goods_cast_7",
      "chkGroupKey1",
      "chkGroupKey3",
      "btnOrrerySetting",
      "btnDota7Setting",
      "edtSkill_9",
      "edtSkill_10",
      "edtSkill_12",
      "edtSkill_8",
      "edtSkill_1",
      "edt_skillex_L_1",
      "edt_skillex_R_1",
      "edt_skillex_GROUP_2_L_1",
      "edtWinLockMouse",
      "edtGoodsKey_7",
      "edtGoodsKey_8",
      "edtGoodsKey_4",
      "edtMouseWheelUpKey",
  };
  expectKeyFieldsLast(order);
  int last = -1;
  for (const char* const name : kInOrder) {
    EXPECT_GT(at(name), last) << name;
    last = at(name);
  }
  EXPECT_EQ(order.size(), QSet<QString>(order.begin(), order.end()).size())
      << "each is reached once";
}

}  // namespace
}  // namespace brennet::test
