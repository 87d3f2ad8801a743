#include "ui/pages/CDotA7BasicSetting.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalSpy>

#include "model/HotkeyConfig.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/capture/Dota7FieldText.h"
#include "ui/capture/RefusalText.h"

namespace brennet::test {
namespace {

// The page on a registry with both keys and no values.
class CDotA7BasicSettingTest : public Dota7Test {
 protected:
  CDotA7BasicSettingTest() { page = std::make_unique<CDotA7BasicSetting>(manager, nullptr); }

  QLineEdit& fieldOf(std::u16string_view name) {
    return *page->findChild<QLineEdit*>(QString::fromStdU16String(std::u16string(name)));
  }
  QAbstractButton& button(const char* name) {
    return *page->findChild<QAbstractButton*>(QLatin1String(name));
  }

  // What the registry has; nothing if it has no such value.
  std::optional<std::uint32_t> number(std::u16string_view name) {
    const auto value = control(name);
    return value ? platform::numberIn(*value) : std::nullopt;
  }
  std::optional<std::string> bytes(std::u16string_view name) {
    const auto value = control(name);
    return value ? std::optional(value->data) : std::nullopt;
  }

  std::unique_ptr<CDotA7BasicSetting> page;
};

TEST_F(CDotA7BasicSettingTest, HasItsMethodsInTheOrderThatClientsKnow) {
  const QStringList expected = {QStringLiteral("showDota7HotKeySettingDlg"),
                                QStringLiteral("onClickedDota7HotKeySettingBtn"),
                                QStringLiteral("onClickedSLegacyKeys"),
                                QStringLiteral("onClickedSCtrlLearnAbility"),
                                QStringLiteral("onClickedLegacyOnlyQuickCast"),
                                QStringLiteral("onClickedSDoubleClickHero"),
                                QStringLiteral("onClickedNormal"),
                                QStringLiteral("onClickedQuickUse")};
  EXPECT_EQ(methodNames(CDotA7BasicSetting::staticMetaObject), expected);
  EXPECT_EQ(page->windowTitle(), QStringLiteral("Form"));
}

TEST_F(CDotA7BasicSettingTest, HasItsTexts) {
  QStringList groups;
  for (const QGroupBox* const group : page->findChildren<QGroupBox*>()) groups += group->title();
  groups.sort();
  QStringList expected = {QStringLiteral(u"英雄技能"), QStringLiteral(u"单位动作"),
                          QStringLiteral(u"小键盘物品栏"), QStringLiteral(u"基本设置")};
  expected.sort();
  EXPECT_EQ(groups, expected);
  struct Text {
    const char* name;
    const char16_t* text;
  };
  const Text kTexts[] = {{"chk_Normal", u"一般"},
                         {"chk_QuickUse", u"快捷施法"},
                         {"chk_SLegacyKeys", u"使用默认技能按键"},
                         {"chk_SCtrlLearnAbility", u"按CTRL+技能键学技能"},
                         {"chk_LegacyOnlyQuickCast", u"在鼠标当前位置快速施法"},
                         {"chk_SDoubleClickHero", u"双击自动施法"},
                         {"chatHotkeyBtn", u"快捷喊话设置"}};
  for (const Text& row : kTexts) EXPECT_EQ(button(row.name).text(), QString::fromUtf16(row.text));
}

TEST_F(CDotA7BasicSettingTest, NamesEachField) {
  struct Text {
    std::u16string_view field;
    const char16_t* label;
  };
  const Text kTexts[] = {{u"edt_HMoveKeyC", u"移动"},
                         {u"edt_HHoldKey", u"保持原地"},
                         {u"edt_HStopKey", u"停止"},
                         {u"edt_HPatrolKeyC", u"巡逻"},
                         {u"edt_HAttackKeyC", u"攻击"},
                         {u"edt_HMenuAbilityLearnKey", u"技能学习"},
                         {u"edt_HMenuTalentLearnKey", u"天赋学习"},
                         {u"edt_HSelectMainHeroKey", u"选择主英雄"},
                         {u"edt_HSelectHero2Key", u"选择英雄2"},
                         {u"edt_HSelectHero3Key", u"选择英雄3"},
                         {u"edt_HSelectHero4Key", u"选择英雄4"},
                         {u"edt_HSelectHero5Key", u"选择英雄5"},
                         {u"edt_HSelectCourierKey", u"选择信使"},
                         {u"edt_HSelectAllUnitsKey", u"选择所有单位"},
                         {u"edt_HSelectAllOtherUnitsKey", u"选择其他单位"},
                         {u"edt_HSelectCircleOfPowerKey", u"选择能量圈"},
                         {u"edt_HScoreboardKey", u"计分板"},
                         {u"edt_HGlyphButtonKey", u"激活防御符文"},
                         {u"edt_ItemKeyC0", u"1-"},
                         {u"edt_ItemKeyC1", u"2-"},
                         {u"edt_ItemKeyC2", u"3-"},
                         {u"edt_ItemKeyC3", u"4-"},
                         {u"edt_ItemKeyC4", u"5-"},
                         {u"edt_ItemKeyC5", u"6-"},
                         {u"edt_ItemKeyHTeleportKeyC", u"回程-"}};
  for (const Text& row : kTexts) {
    const auto labels = page->findChildren<QLabel*>();
    const auto label = std::find_if(labels.begin(), labels.end(), [&](const QLabel* each) {
      return each->buddy() == &fieldOf(row.field);
    });
    ASSERT_NE(label, labels.end());
    EXPECT_EQ((*label)->text(), QString::fromUtf16(row.label));
  }
}

// For each field of the control key, in both cast modes: the pair of values that it edits, and no
// others.
TEST_F(CDotA7BasicSettingTest, WritesTheValuesOfEachFieldInBothModes) {
  for (const Dota7Cast cast : {Dota7Cast::Normal, Dota7Cast::Quick}) {
    button(cast == Dota7Cast::Normal ? "chk_Normal" : "chk_QuickUse").setChecked(false);
    button(cast == Dota7Cast::Normal ? "chk_Normal" : "chk_QuickUse").click();
    for (const Dota7KeyField& row : dota7KeyFields()) {
      if (row.keyPath != kDota7ControlPath) continue;
      SCOPED_TRACE(qPrintable(QString::fromStdU16String(std::u16string(row.objectName))));
      pressKey(fieldOf(row.objectName), Qt::Key_Q, Qt::AltModifier);
      EXPECT_EQ(fieldOf(row.objectName).text(), QStringLiteral("ALT + Q"));
      const Dota7ValuePair& values = row.values(cast);
      EXPECT_EQ(number(values.code), 0x51U);
      EXPECT_EQ(bytes(values.text), "ALT + Q");
      pressKey(fieldOf(row.objectName), Qt::Key_Delete);
      EXPECT_EQ(fieldOf(row.objectName).text(), QString());
      EXPECT_EQ(number(values.code), 0U);
      EXPECT_EQ(bytes(values.text), "");
    }
  }
}

TEST_F(CDotA7BasicSettingTest, KeepsTheModesApart) {
  pressKey(fieldOf(u"edt_HMoveKeyC"), Qt::Key_M);
  button("chk_QuickUse").click();
  EXPECT_FALSE(button("chk_Normal").isChecked());
  EXPECT_EQ(fieldOf(u"edt_HMoveKeyC").text(), QString()) << "the other pair";
  pressKey(fieldOf(u"edt_HMoveKeyC"), Qt::Key_N);
  EXPECT_EQ(number(u"HMoveKeyCodeQC"), 0x4EU);
  EXPECT_EQ(number(u"HMoveKeyCodeC"), 0x4DU);
  button("chk_Normal").click();
  EXPECT_EQ(fieldOf(u"edt_HMoveKeyC").text(), QStringLiteral("M"));
}

TEST_F(CDotA7BasicSettingTest, AlwaysHasOneMode) {
  EXPECT_TRUE(button("chk_Normal").isChecked());
  button("chk_Normal").click();
  EXPECT_FALSE(button("chk_Normal").isChecked());
  EXPECT_TRUE(button("chk_QuickUse").isChecked());
  EXPECT_EQ(manager.settings().cast(), Dota7Cast::Quick);
  button("chk_QuickUse").click();
  EXPECT_TRUE(button("chk_Normal").isChecked());
  EXPECT_FALSE(button("chk_QuickUse").isChecked());
  EXPECT_EQ(manager.settings().cast(), Dota7Cast::Normal);
}

TEST_F(CDotA7BasicSettingTest, ShowsKeysAsTheyArePressed) {
  QLineEdit& move = fieldOf(u"edt_HMoveKeyC");
  pressKey(move, Qt::Key_Q);
  EXPECT_EQ(move.text(), QStringLiteral(" Q"));
  pressKey(move, Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(move.text(), QStringLiteral("CTRL + W"));
  pressKey(move, Qt::Key_E, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(move.text(), QStringLiteral("CTRL +ALT + E"));
  EXPECT_EQ(bytes(u"HMoveKeyC"), "ALT + E") << "Alt wins";
  pressKey(move, Qt::Key_Return);
  EXPECT_EQ(move.text(), QStringLiteral("CTRL +ALT + E")) << "Return does nothing";
}

TEST_F(CDotA7BasicSettingTest, StoresALoneModifierUntilItIsReleased) {
  QLineEdit& move = fieldOf(u"edt_HMoveKeyC");
  pressKey(move, Qt::Key_Alt, Qt::AltModifier);
  EXPECT_EQ(move.text(), QStringLiteral("ALT"));
  EXPECT_EQ(number(u"HMoveKeyCodeC"), 0x12U);
  releaseKey(move, Qt::Key_Alt);
  EXPECT_EQ(move.text(), QString());
  EXPECT_EQ(number(u"HMoveKeyCodeC"), 0U);
}

TEST_F(CDotA7BasicSettingTest, RefusesAKeyThatAnotherFieldHas) {
  pressKey(fieldOf(u"edt_HStopKey"), Qt::Key_S);
  pressKey(fieldOf(u"edt_HHoldKey"), Qt::Key_H);
  QString told;
  const auto guard = whenBoxIsShown([&](QMessageBox& box) {
    told = box.text();
    const Dota7KeyField& holder = *findDota7KeyField(u"edt_HStopKey");
    EXPECT_EQ(box.informativeText(), keyLine(QStringLiteral(" S"), dota7FieldText(holder)));
    EXPECT_TRUE(fieldOf(u"edt_HStopKey").property("holdsKey").toBool());
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("IDS_TITLE"));
    EXPECT_EQ(box.parentWidget(), page.get());
    box.accept();
  });
  pressKey(fieldOf(u"edt_HHoldKey"), Qt::Key_S);
  EXPECT_EQ(told, QStringLiteral("IDS_KEY_USED"));
  EXPECT_EQ(fieldOf(u"edt_HHoldKey").text(), QString());
  EXPECT_EQ(number(u"HHoldKeyCode"), 0U);
  EXPECT_EQ(number(u"HStopKeyCode"), 0x53U);
  pressKey(fieldOf(u"edt_HHoldKey"), Qt::Key_J);
  EXPECT_FALSE(fieldOf(u"edt_HStopKey").property("holdsKey").toBool());
}

TEST_F(CDotA7BasicSettingTest, TellsInToolTipsWhatAKeyDoesAndWhatElseHasIt) {
  const Dota7KeyField& stop = *findDota7KeyField(u"edt_HStopKey");
  EXPECT_EQ(toolTipOf(fieldOf(u"edt_HStopKey")), noKeyLine(dota7FieldText(stop)));
  pressKey(fieldOf(u"edt_HStopKey"), Qt::Key_S, Qt::AltModifier);
  const QString line = keyLine(QStringLiteral("ALT + S"), dota7FieldText(stop));
  EXPECT_EQ(toolTipOf(fieldOf(u"edt_HStopKey")), line);
  // Another program has given two fields one key.
  for (const Dota7KeyField* const row : {&dota7UnitKeys()[0], &dota7ChatKeys()[0]}) {
    settings.reset();
    const Dota7Key key{'S', Dota7Key::kAlt};
    ASSERT_TRUE(settings.storeKey(*row, key));
    const std::pair<std::u16string_view, std::u16string_view> kCopies[] = {
        {row->normal.code, stop.normal.code}, {row->normal.text, stop.normal.text}};
    for (const auto& [from, to] : kCopies) {
      registry.set(stop.keyPath, to, valueOf(row->keyPath, from).value());
    }
    settings.load();
    ASSERT_EQ(settings.holderOf(stop, key), row);
    const bool isHere = row == &dota7UnitKeys()[0];
    EXPECT_EQ(toolTipOf(fieldOf(u"edt_HStopKey")),
              line + QLatin1Char('\n') +
                  alsoLine(isHere ? dota7FieldText(*row) : dota7FieldTextElsewhere(*row)));
  }
}

TEST_F(CDotA7BasicSettingTest, StoresItsOptions) {
  struct Row {
    const char* box;
    std::u16string_view value;
  };
  const Row kRows[] = {{"chk_SLegacyKeys", u"SLegacyKeys"},
                       {"chk_SCtrlLearnAbility", u"SCtrlLearnAbility"},
                       {"chk_LegacyOnlyQuickCast", u"LegacyOnlyQuickCast"},
                       {"chk_SDoubleClickHero", u"SDoubleClickHero"}};
  for (const Row& row : kRows) {
    EXPECT_FALSE(button(row.box).isChecked());
    button(row.box).click();
    EXPECT_EQ(number(row.value), 1U) << row.box;
    page->showSettings();
    EXPECT_TRUE(button(row.box).isChecked()) << row.box;
    button(row.box).click();
    EXPECT_EQ(number(row.value), 0U) << row.box;
  }
}

TEST_F(CDotA7BasicSettingTest, BeginsWithNormalCast) {
  button("chk_QuickUse").click();
  EXPECT_EQ(settings.cast(), Dota7Cast::Quick);
  page = std::make_unique<CDotA7BasicSetting>(manager, nullptr);
  EXPECT_TRUE(button("chk_Normal").isChecked());
  EXPECT_FALSE(button("chk_QuickUse").isChecked());
  pressKey(fieldOf(u"edt_HMoveKeyC"), Qt::Key_X);
  EXPECT_EQ(number(u"HMoveKeyCodeC"), 'X');
  EXPECT_EQ(number(u"HMoveKeyCodeQC"), std::nullopt);
}

// In the game's chat, Ctrl+V pastes.
TEST_F(CDotA7BasicSettingTest, TakesTheKeyOfTheChatWheelAwayForAPaste) {
  HotkeyConfig config;
  page = std::make_unique<CDotA7BasicSetting>(manager, nullptr, &config);
  const Qt::KeyboardModifiers both = Qt::ControlModifier | Qt::AltModifier;
  for (const Qt::KeyboardModifiers modifiers : {Qt::KeyboardModifiers(Qt::ControlModifier), both}) {
    config.editableScheme()->ChatWheelkey = KeyWord('W', 0);
    // The second time another field has the key, so the edited one is left without.
    for (const char16_t* const name : {u"edt_HStopKey", u"edt_HHoldKey"}) {
      const auto box = whenBoxIsShown([&](QMessageBox& shown) {
        EXPECT_EQ(shown.text(), QStringLiteral("IDS_KEY_USED"));
        shown.accept();
      });
      pressKey(fieldOf(name), Qt::Key_V, modifiers);
      EXPECT_EQ(fieldOf(name).text(), QString());
      EXPECT_EQ(config.scheme().ChatWheelkey, kNoKey);
    }
    EXPECT_EQ(number(u"HStopKeyCode"), 'V') << "stored all the same";
    EXPECT_EQ(number(u"HHoldKeyCode"), 0U);
  }
  pressKey(fieldOf(u"edt_HHoldKey"), Qt::Key_V);
  EXPECT_EQ(fieldOf(u"edt_HHoldKey").text(), QStringLiteral(" V"));
}

TEST_F(CDotA7BasicSettingTest, ShowsWhatTheRegistryHolds) {
  registry.set(kDota7ControlPath, u"HScoreboardKeyCode", platform::dwordValue(0x09));
  page->showSettings();
  EXPECT_EQ(fieldOf(u"edt_HScoreboardKey").text(), QStringLiteral("Tab"));
}

TEST_F(CDotA7BasicSettingTest, GivesAllBackWhenItIsCancelled) {
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
  page->showSettings();
  const platform::RegFile before = registry.content();
  pressKey(fieldOf(u"edt_HStopKey"), Qt::Key_X);
  pressKey(fieldOf(u"edt_HHoldKey"), Qt::Key_Y);
  button("chk_SLegacyKeys").click();
  manager.cancelChanges();
  page->showSettings();
  EXPECT_EQ(registry.content(), before);
  EXPECT_EQ(fieldOf(u"edt_HStopKey").text(), QStringLiteral("S"));
  EXPECT_EQ(fieldOf(u"edt_HHoldKey").text(), QString());
}

TEST_F(CDotA7BasicSettingTest, ResetsAllToNothing) {
  pressKey(fieldOf(u"edt_HStopKey"), Qt::Key_X);
  button("chk_SLegacyKeys").click();
  button("chk_QuickUse").click();
  page->clearSettings();
  EXPECT_EQ(fieldOf(u"edt_HStopKey").text(), QString());
  EXPECT_EQ(number(u"HStopKeyCode"), 0U);
  EXPECT_EQ(number(u"SLegacyKeys"), 0U);
  EXPECT_TRUE(button("chk_Normal").isChecked());
}

TEST_F(CDotA7BasicSettingTest, AsksForTheChatWindow) {
  const QSignalSpy spy(page.get(), &CDotA7BasicSetting::showDota7HotKeySettingDlg);
  button("chatHotkeyBtn").click();
  EXPECT_EQ(spy.count(), 1);
}

TEST_F(CDotA7BasicSettingTest, HasTheAbilitiesInTheOrderOfTheGame) {
  page->resize(page->sizeHint());
  page->show();
  const char16_t* const rows[][6] = {{u"edtOrderSkill_2", u"edtOrderSkill_5", u"edtOrderSkill_8",
                                      u"edtOrderSkill_11", u"edtOrderSkill_4", u"edtOrderSkill_7"},
                                     {u"edtHACSkill_3", u"edtHACSkill_6", u"edtHACSkill_9",
                                      u"edtHACSkill_12", u"edtHACSkill_5", u"edtHACSkill_8"}};
  for (const auto& row : rows) {
    for (int column = 1; column < 6; ++column) {
      EXPECT_GT(fieldOf(row[column]).x(), fieldOf(row[column - 1]).x());
      EXPECT_EQ(fieldOf(row[column]).y(), fieldOf(row[0]).y());
    }
  }
  EXPECT_GT(fieldOf(u"edtHACSkill_3").y(), fieldOf(u"edtOrderSkill_2").y());
}

TEST_F(CDotA7BasicSettingTest, IsReadInOrder) {
  page->show();
  const QStringList order = tabOrder(*page);
  int last = -1;
  for (const char* const name : {"chk_Normal", "chk_QuickUse", "chk_SLegacyKeys", "chatHotkeyBtn",
                                 "edtOrderSkill_2", "edtHACSkill_8", "edt_HMoveKeyC",
                                 "edt_HGlyphButtonKey", "edt_ItemKeyC0", "edt_ItemKeyC1"}) {
    const int at = order.indexOf(QLatin1String(name));
    EXPECT_GT(at, last) << name;
    last = at;
  }
  expectKeyFieldsLast(order);
}

TEST(CDotA7BasicSettingWithoutRegistry, StaysQuiet) {
  ScopedRegistry registry;
  Dota7KeyInfoManager manager;
  CDotA7BasicSetting page(manager, nullptr);
  const NoBoxes noBoxes;
  const platform::RegFile before = registry.content();
  auto& stop = *page.findChild<QLineEdit*>(QStringLiteral("edt_HStopKey"));
  pressKey(stop, Qt::Key_S);
  EXPECT_EQ(stop.text(), QStringLiteral(" S"));
  page.findChild<QAbstractButton*>(QStringLiteral("chk_SLegacyKeys"))->click();
  page.clearSettings();
  QCoreApplication::processEvents();
  EXPECT_EQ(registry.content(), before) << "no key is made";
}

TEST_F(CDotA7BasicSettingTest, HasNamesForScreenReaders) {
  page->show();
  expectAccessible(*page);
}

}  // namespace
}  // namespace brennet::test
