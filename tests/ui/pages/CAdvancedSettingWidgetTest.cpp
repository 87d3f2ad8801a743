// The advanced page: what it shows, and what it stores of keys, presets and phrases.

#include "ui/pages/CAdvancedSettingWidget.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableView>
#include <QTest>

#include <memory>

#include "tests/ui/pages/ChatPageTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/chat/CCustomMsgTableModel.h"
#include "ui/window/Text.h"

namespace brennet::test {
namespace {

constexpr auto kAlt = KeyWord::kAlt;
constexpr std::uint8_t kF1 = 0x70;

struct KeyField {
  const char* name;
  const char16_t* text;
  KeyWord HotkeyScheme::*key;
};
// In the order in which they are read.
constexpr KeyField kFields[] = {
    {"HotkeyContrl", u"改键开关", &HotkeyScheme::HotkeyContrl},
    {"WinLockMouse", u"窗口锁鼠标", &HotkeyScheme::WinLockMouse},
    {"QuickChatKey", u"快捷喊话", &HotkeyScheme::QuickChatKey},
    {"ShowFBlood", u"己方血量显示", &HotkeyScheme::ShowFBlood},
    {"ShowEBlood", u"敌方血量显示", &HotkeyScheme::ShowEBlood},
};

class CAdvancedSettingWidgetTest : public testing::Test {
 protected:
  CAdvancedSettingWidget& open() {
    page_ = std::make_unique<CAdvancedSettingWidget>(config, nullptr);
    return *page_;
  }
  CAdvancedSettingWidget& page() { return page_ ? *page_ : open(); }
  QCheckBox& preset(int n) {
    return find<QCheckBox>(page(), QStringLiteral("chkGroupKey%1").arg(n));
  }
  QRadioButton& family(int n) {
    return find<QRadioButton>(page(), QStringLiteral("optChatKey_%1").arg(n));
  }
  QLineEdit& field(const char* name) {
    return find<QLineEdit>(page(), QLatin1String("edt") + QLatin1String(name));
  }
  QTableView& table() { return find<QTableView>(page(), QStringLiteral("tableStatement")); }
  QAbstractItemModel& model() { return *table().model(); }
  QString cell(int row, int column = 1) {
    return model().index(row, column).data(Qt::DisplayRole).toString();
  }
  HotkeyScheme& scheme(int n = 0) { return *config.editableScheme(n); }
  void expectPresets(bool first, bool second, bool third) {
    EXPECT_EQ(preset(1).isChecked(), first);
    EXPECT_EQ(preset(2).isChecked(), second);
    EXPECT_EQ(preset(3).isChecked(), third);
  }
  void expectFamily(int n) {
    EXPECT_TRUE(family(n).isChecked());
    EXPECT_FALSE(family(3 - n).isChecked());
  }

  HotkeyConfig config;

 private:
  std::unique_ptr<CAdvancedSettingWidget> page_;
};

TEST_F(CAdvancedSettingWidgetTest, HasItsSlotsInOrder) {
  const QMetaObject& type = CAdvancedSettingWidget::staticMetaObject;
  EXPECT_EQ(methodNames(type).join(QLatin1Char(' ')),
            QStringLiteral("onToggled_GroupKey1 onToggled_GroupKey2 onToggled_GroupKey3 "
                           "onToggled_ChatKey_1 onToggled_ChatKey_2 onDataChanged_Table"));
  EXPECT_GE(type.indexOfSlot("onDataChanged_Table(QModelIndex,QModelIndex,QVector<int>)"), 0);
}

TEST_F(CAdvancedSettingWidgetTest, HasItsGroupsWithTheirTexts) {
  EXPECT_STREQ(page().metaObject()->className(), "CAdvancedSettingWidget");
  EXPECT_EQ(page().font().family(), QStringLiteral("微软雅黑"));
  QWidget parent;
  EXPECT_EQ(CAdvancedSettingWidget(config, &parent).parentWidget(), &parent);
  const auto title = [&](const char* name) {
    return find<QGroupBox>(page(), QLatin1String(name)).title();
  };
  EXPECT_EQ(title("grpNumKeypadHotkey"), QStringLiteral("组合快捷键"));
  EXPECT_EQ(title("grpChatSetting"), QStringLiteral("快捷喊话设置"));
  EXPECT_EQ(title("grpHotkeySetting"), QStringLiteral("热键设置"));
  EXPECT_EQ(preset(1).text(), QStringLiteral("小键盘 Num784512  =  组合键 Alt+QWERDF"));
  EXPECT_EQ(preset(2).text(), QStringLiteral("小键盘 Num784512  =  组合键 Alt+QWASZX"));
  EXPECT_EQ(preset(3).text(), QStringLiteral("小键盘 Num784512  =  组合键 Alt+123456"));
  EXPECT_EQ(find<QLabel>(page(), QStringLiteral("lblChatKey")).text(),
            QStringLiteral("快捷方式选择"));
  EXPECT_EQ(buddyOf(page(), QStringLiteral("lblChatKey")), QStringLiteral("optChatKey_1"));
  EXPECT_EQ(family(1).text(), QStringLiteral("ALT + 1～8"));
  EXPECT_EQ(family(2).text(), QStringLiteral("ALT + F1～F8"));
}

TEST_F(CAdvancedSettingWidgetTest, NamesItsControlsForScreenReaders) {
  for (const KeyField& row : kFields) {
    const QString label = QLatin1String("lbl") + QLatin1String(row.name);
    EXPECT_EQ(find<QLabel>(page(), label).text(), toQString(row.text));
    EXPECT_EQ(buddyOf(page(), label), field(row.name).objectName());
    EXPECT_EQ(accessible(field(row.name), QAccessible::Name), toQString(row.text));
  }
  for (int n = 1; n <= 3; ++n)
    EXPECT_EQ(accessible(preset(n), QAccessible::Name), preset(n).text());
  for (int n = 1; n <= 2; ++n) {
    EXPECT_EQ(accessible(family(n), QAccessible::Name), family(n).text());
    EXPECT_EQ(accessible(family(n), QAccessible::Description), QStringLiteral("快捷方式选择"));
  }
  EXPECT_EQ(accessible(table(), QAccessible::Name), QStringLiteral("快捷喊话短语"));
}

TEST_F(CAdvancedSettingWidgetTest, IsReadInOrderByTab) {
  QStringList names;
  for (int n = 1; n <= 3; ++n) names += preset(n).objectName();
  names += {QStringLiteral("optChatKey_1"), QStringLiteral("optChatKey_2"),
            QStringLiteral("tableStatement")};
  for (const KeyField& row : kFields) names += field(row.name).objectName();
  page().show();
  EXPECT_EQ(tabOrder(page()), names);
  EXPECT_FALSE(table().tabKeyNavigation()) << "Tab must lead out of the table, too";
}

TEST_F(CAdvancedSettingWidgetTest, HasRoomForLongerTexts) {
  const LongerTexts longer;
  QWidget& window = open();
  window.resize(window.sizeHint());
  window.show();
  expectNothingIsCut(find<QWidget>(window, QStringLiteral("grpNumKeypadHotkey")));
  expectNothingIsCut(find<QWidget>(window, QStringLiteral("grpHotkeySetting")));
  for (const char* const name : {"lblChatKey", "optChatKey_1", "optChatKey_2"}) {
    const auto& widget = find<QWidget>(window, QLatin1String(name));
    EXPECT_GE(widget.width(), widget.sizeHint().width()) << name;
  }
}

TEST_F(CAdvancedSettingWidgetTest, HasRoomForTheLongestKey) {
  scheme().WinLockMouse = KeyWord(0x2C, KeyWord::kCtrl | kAlt);
  page().resize(page().minimumSizeHint());
  page().show();
  EXPECT_EQ(field("WinLockMouse").text(), QStringLiteral("CTRL + Alt + PRINT SCREEN"));
  for (const KeyField& row : kFields) {
    const QFontMetrics metrics = field(row.name).fontMetrics();
    EXPECT_LT(metrics.horizontalAdvance(field("WinLockMouse").text()) + 8, field(row.name).width());
  }
}

TEST_F(CAdvancedSettingWidgetTest, HasATableOfLabelsAndPhrases) {
  EXPECT_STREQ(model().metaObject()->className(), "CCustomMsgTableModel");
  EXPECT_EQ(model().rowCount(), 8);
  EXPECT_EQ(model().columnCount(), 2);
  for (int row = 0; row < 8; ++row) {
    EXPECT_EQ(cell(row, 0), QStringLiteral("message %1:").arg(row + 1));
    EXPECT_EQ(cell(row), QString());
  }
  page().show();
  EXPECT_EQ(table().columnWidth(1), 410);
  EXPECT_GE(table().columnWidth(0), table().sizeHintForIndex(model().index(7, 0)).width());
  EXPECT_LT(table().columnWidth(0), 200);
}

TEST_F(CAdvancedSettingWidgetTest, WrapsALongPhrase) {
  scheme().QuickChat[3] = std::u16string(kPhraseUnits, u'字');
  page().resize(page().sizeHint());
  page().show();
  EXPECT_GT(table().rowHeight(3), table().rowHeight(2) * 3 / 2);
}

TEST_F(CAdvancedSettingWidgetTest, ShowsTheCurrentScheme) {
  expectPresets(false, false, false);
  expectFamily(2);
  scheme(1).NumComboKeyIndex = 1;
  scheme(1).QuickChatIndex = 0;
  scheme(1).QuickChat = {u"一", u"2", u"3", u"4", u"5", u"6", u"7", u"八"};
  std::uint8_t key = 'A';
  for (const KeyField& row : kFields) scheme(1).*row.key = KeyWord(key++, KeyWord::kCtrl | kAlt);
  ASSERT_TRUE(config.setIndex(1));
  page().showSettings();
  expectPresets(false, true, false);
  expectFamily(1);
  char16_t letter = u'A';
  for (const KeyField& row : kFields) {
    EXPECT_EQ(field(row.name).text(), keyText(scheme(1).*row.key));
    EXPECT_TRUE(field(row.name).text().endsWith(QChar(letter++)));
  }
  EXPECT_EQ(cell(0), QStringLiteral("一"));
  EXPECT_EQ(cell(7), QStringLiteral("八"));
  for (const std::int32_t chosen : {0, 1, 2, -1}) {
    scheme(1).NumComboKeyIndex = chosen;
    page().showSettings();
    expectPresets(chosen == 0, chosen == 1, chosen == 2);
  }
}

TEST_F(CAdvancedSettingWidgetTest, LeavesTheRowOfAMissingPhraseAlone) {
  scheme(0).QuickChat[0] = u"a";
  scheme(0).QuickChat[1] = u"b";
  scheme(1).QuickChat[0] = u"";
  page();
  ASSERT_TRUE(config.setIndex(1));
  page().showSettings();
  EXPECT_EQ(cell(0), QString());
  EXPECT_EQ(cell(1), QStringLiteral("b"));
  EXPECT_FALSE(scheme(1).QuickChat[1].has_value());
}

TEST_F(CAdvancedSettingWidgetTest, StoresNothingAndAsksNothingWhenItRefreshes) {
  const NoBoxes noBoxes;
  scheme().HeroSkillKey[0] = KeyWord('1', kAlt);
  scheme().HeroSkillKey[1] = KeyWord(kF1, kAlt);
  scheme().HeroSkillKey[2] = KeyWord('Q', kAlt);
  scheme().QuickChat[2] = std::u16string(43, u'字');
  scheme().ShowFBlood = KeyWord('1', kAlt);
  for (const std::uint32_t set : {0U, 1U, 0U}) {
    for (const std::int32_t chosen : {0, 1, 2, -1}) {
      scheme().QuickChatIndex = set;
      scheme().NumComboKeyIndex = chosen;
      const HotkeyScheme before = scheme();
      const CaughtMessages messages;
      page().showSettings();
      EXPECT_EQ(scheme(), before);
      EXPECT_EQ(messages.texts(), QStringList());
    }
  }
  EXPECT_EQ(cell(2).size(), 43);
}

TEST_F(CAdvancedSettingWidgetTest, StoresAPresetAndUnchecksTheOthers) {
  for (const int n : {1, 3, 2}) {
    preset(n).click();
    expectPresets(n == 1, n == 2, n == 3);
    EXPECT_EQ(scheme().NumComboKeyIndex, n - 1);
  }
  preset(2).click();
  expectPresets(false, false, false);
  EXPECT_EQ(scheme().NumComboKeyIndex, -1);
}

TEST_F(CAdvancedSettingWidgetTest, RefusesAPresetSilently) {
  const NoBoxes noBoxes;
  scheme().QuickChatIndex = 0;
  page();
  preset(1).click();
  preset(3).click();
  expectPresets(false, false, true);
  EXPECT_EQ(scheme().NumComboKeyIndex, 0) << "Alt+1 sends a phrase";
  preset(3).click();
  EXPECT_EQ(scheme().NumComboKeyIndex, -1);
  scheme().SecretaryKey[1] = KeyWord('X', kAlt);
  preset(2).click();
  expectPresets(false, true, false);
  EXPECT_EQ(scheme().NumComboKeyIndex, -1) << "Alt+X is a Ledger key";
}

TEST_F(CAdvancedSettingWidgetTest, StoresAKeySet) {
  const NoBoxes noBoxes;
  family(1).click();
  EXPECT_EQ(scheme().QuickChatIndex, 0U);
  family(2).click();
  EXPECT_EQ(scheme().QuickChatIndex, 1U);
}

TEST_F(CAdvancedSettingWidgetTest, RefusesAKeySetWithAWarning) {
  scheme().NumComboKeyIndex = 2;
  expectWarning(page(), "IDS_GROUP_KEY_USED", [&] { family(1).click(); });
  expectFamily(2);
  scheme().NumComboKeyIndex = -1;
  scheme().HeroSkillKey[0] = KeyWord('8', kAlt);
  expectWarning(page(), "IDS_GROUP_KEY_USED", [&] { family(1).click(); });
  expectFamily(2);
  EXPECT_EQ(scheme().QuickChatIndex, 1U);

  scheme().QuickChatIndex = 0;
  scheme().HeroSkillKey[1] = KeyWord(kF1 + 7, kAlt);
  page().showSettings();
  expectWarning(page(), "IDS_GROUP_KEY_USED", [&] { family(2).click(); });
  expectFamily(1);
  EXPECT_EQ(scheme().QuickChatIndex, 0U);
}

TEST_F(CAdvancedSettingWidgetTest, StoresTheKeyOfEachField) {
  const NoBoxes noBoxes;
  HotkeyScheme wanted;
  int key = Qt::Key_A;
  for (const KeyField& row : kFields) {
    pressKey(field(row.name), static_cast<Qt::Key>(key), Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(field(row.name).text(), QStringLiteral("CTRL +Alt +%1").arg(QChar(key)));
    wanted.*row.key = KeyWord(static_cast<std::uint8_t>(key++), KeyWord::kCtrl | kAlt);
  }
  EXPECT_EQ(scheme(), wanted);
  pressKey(field("ShowFBlood"), Qt::Key_D, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(scheme(), wanted) << "a field may keep the key that it has";
  EXPECT_EQ(field("ShowFBlood").text(), QStringLiteral("CTRL +Alt +D"));
  pressKey(field("ShowFBlood"), Qt::Key_F9);
  EXPECT_EQ(field("ShowFBlood").text(), QStringLiteral("F9"));
}

TEST_F(CAdvancedSettingWidgetTest, RefusesAKeyThatIsUsed) {
  scheme().NumComboKeyIndex = 0;
  scheme().ItemKey[0] = KeyWord('I', 0);
  scheme().WinLockMouse = KeyWord('L', 0);
  struct Used {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
  };
  const Used used[] = {{Qt::Key_I, Qt::NoModifier},
                       {Qt::Key_L, Qt::NoModifier},
                       {Qt::Key_Q, Qt::AltModifier},
                       {Qt::Key_F1, Qt::AltModifier}};
  for (const Used& row : used) {
    scheme().ShowEBlood = KeyWord('Z', 0);
    page().showSettings();
    expectWarning(page(), "IDS_KEY_USED",
                  [&] { pressKey(field("ShowEBlood"), row.key, row.modifiers); });
    EXPECT_EQ(field("ShowEBlood").text(), QString());
    EXPECT_EQ(scheme().ShowEBlood, kNoKey) << "an old key is lost";
  }
}

TEST_F(CAdvancedSettingWidgetTest, ClearsWithBackspaceAndDelete) {
  const NoBoxes noBoxes;
  for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Delete}) {
    pressKey(field("HotkeyContrl"), Qt::Key_F8);
    ASSERT_EQ(scheme().HotkeyContrl, KeyWord(kF1 + 7, 0));
    pressKey(field("HotkeyContrl"), key);
    EXPECT_EQ(field("HotkeyContrl").text(), QString());
    EXPECT_EQ(scheme().HotkeyContrl, kNoKey);
  }
}

TEST_F(CAdvancedSettingWidgetTest, IgnoresReturnAndWaitsAfterALoneModifier) {
  const NoBoxes noBoxes;
  pressKey(field("QuickChatKey"), Qt::Key_F8);
  const HotkeyScheme before = scheme();
  pressKey(field("QuickChatKey"), Qt::Key_Return);
  EXPECT_EQ(field("QuickChatKey").text(), QStringLiteral("F8"));
  releaseKey(field("QuickChatKey"), Qt::Key_Return);
  EXPECT_EQ(field("QuickChatKey").text(), QStringLiteral("F8"));
  pressKey(field("QuickChatKey"), Qt::Key_Control);
  EXPECT_EQ(field("QuickChatKey").text(), QStringLiteral("CTRL +"));
  releaseKey(field("QuickChatKey"), Qt::Key_Control);
  EXPECT_EQ(field("QuickChatKey").text(), QString());
  pressKey(field("QuickChatKey"), Qt::Key_Alt);
  EXPECT_EQ(field("QuickChatKey").text(), QStringLiteral("Alt +"));
  EXPECT_EQ(scheme(), before);
}

TEST_F(CAdvancedSettingWidgetTest, TakesTheChatWheelsKeyForAPaste) {
  scheme().ChatWheelkey = KeyWord('W', 0);
  const auto paste = [&] { pressKey(field("QuickChatKey"), Qt::Key_V, Qt::ControlModifier); };
  expectWarning(page(), "IDS_KEY_USED", paste);
  EXPECT_EQ(scheme().ChatWheelkey, kNoKey);
  EXPECT_EQ(scheme().QuickChatKey, KeyWord('V', KeyWord::kCtrl)) << "it could be had";
  EXPECT_EQ(field("QuickChatKey").text(), QString());
}

}  // namespace
}  // namespace brennet::test
