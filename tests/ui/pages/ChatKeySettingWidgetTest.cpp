// The quick-chat dialog: what it shows, what it stores and when.

#include "ui/pages/ChatKeySettingWidget.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <memory>

#include "tests/ui/pages/ChatPageTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/capture/RefusalText.h"
#include "ui/window/Text.h"

namespace brennet::test {
namespace {

constexpr auto kAlt = KeyWord::kAlt;
constexpr std::uint8_t kF1 = 0x70;

class ChatKeySettingWidgetTest : public testing::Test {
 protected:
  ChatKeySettingWidget& open() {
    dialog_ = std::make_unique<ChatKeySettingWidget>(config, nullptr);
    return *dialog_;
  }
  ChatKeySettingWidget& dialog() { return dialog_ ? *dialog_ : open(); }
  QLineEdit& phrase(int n) {
    return find<QLineEdit>(dialog(), QStringLiteral("chatLineEdit_%1").arg(n));
  }
  QRadioButton& family(int n) {
    return find<QRadioButton>(dialog(), QStringLiteral("optChatKey_%1").arg(n));
  }
  QPushButton& button(const char* name) { return find<QPushButton>(dialog(), QLatin1String(name)); }
  QStringList shown() {
    QStringList texts;
    for (int n = 1; n <= kPhrases; ++n) texts += phrase(n).text();
    return texts;
  }
  HotkeyScheme& scheme(int n = 0) { return *config.editableScheme(n); }
  void expectFamily(int n) {
    EXPECT_EQ(family(n).isChecked(), true);
    EXPECT_EQ(family(3 - n).isChecked(), false);
  }

  HotkeyConfig config;

 private:
  std::unique_ptr<ChatKeySettingWidget> dialog_;
};

const QStringList kNothing = {{}, {}, {}, {}, {}, {}, {}, {}};

TEST_F(ChatKeySettingWidgetTest, HasNoFrameAndItsNames) {
  EXPECT_STREQ(dialog().metaObject()->className(), "ChatKeySettingWidget");
  EXPECT_EQ(dialog().windowTitle(), QStringLiteral("CAdvancedSettingWidget"));
  EXPECT_EQ(dialog().windowFlags(), Qt::Tool | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint);
  EXPECT_EQ(static_cast<unsigned>(dialog().windowFlags()), 0x280BU);
  EXPECT_EQ(dialog().font().family(), QStringLiteral("微软雅黑"));
  EXPECT_EQ(dialog().styleSheet(), QString());
  QWidget parent;
  EXPECT_EQ(ChatKeySettingWidget(config, &parent).parentWidget(), &parent);
}

TEST_F(ChatKeySettingWidgetTest, HasItsSlotsInOrder) {
  EXPECT_EQ(
      methodNames(ChatKeySettingWidget::staticMetaObject).join(QLatin1Char(' ')),
      QStringLiteral("onClickedOkBtn onClickedCancelBtn onToggled_ChatKey_1 onToggled_ChatKey_2"));
}

TEST_F(ChatKeySettingWidgetTest, HasItsWidgetsWithTheirTexts) {
  EXPECT_EQ(dialog().findChildren<QGroupBox*>().size(), 1);
  EXPECT_EQ(dialog().findChild<QGroupBox*>()->title(), QStringLiteral("快捷喊话设置"));
  for (int n = 1; n <= kPhrases; ++n) {
    const QString number = QString::number(n);
    EXPECT_EQ(find<QLabel>(dialog(), QStringLiteral("chatKey_%1").arg(n)).text(), number);
    EXPECT_EQ(buddyOf(dialog(), QStringLiteral("chatKey_%1").arg(n)), phrase(n).objectName());
    EXPECT_EQ(accessible(phrase(n), QAccessible::Name), QStringLiteral("喊话 %1").arg(n));
    EXPECT_EQ(accessible(phrase(n), QAccessible::Description), QStringLiteral("快捷喊话设置"));
    EXPECT_EQ(phrase(n).maxLength(), 32767) << "texts that are too long are cut when stored";
  }
  EXPECT_EQ(find<QLabel>(dialog(), QStringLiteral("lblChatKey")).text(), QStringLiteral("快捷键"));
  EXPECT_EQ(buddyOf(dialog(), QStringLiteral("lblChatKey")), QStringLiteral("optChatKey_1"));
  EXPECT_EQ(family(1).text(), QStringLiteral("ALT + 1～8"));
  EXPECT_EQ(family(2).text(), QStringLiteral("ALT + F1～F8"));
  EXPECT_EQ(accessible(family(1), QAccessible::Name), QStringLiteral("ALT + 1～8"));
  EXPECT_EQ(accessible(family(2), QAccessible::Description), QStringLiteral("快捷键"));
  EXPECT_EQ(button("btnOK").text(), QStringLiteral("确定"));
  EXPECT_EQ(button("btnCancel").text(), QStringLiteral("取消"));
  EXPECT_TRUE(button("btnOK").isDefault());
}

TEST_F(ChatKeySettingWidgetTest, IsReadInOrderByTab) {
  QStringList names;
  for (int n = 1; n <= kPhrases; ++n) names += phrase(n).objectName();
  names += {QStringLiteral("optChatKey_1"), QStringLiteral("optChatKey_2"), QStringLiteral("btnOK"),
            QStringLiteral("btnCancel")};
  dialog().show();
  EXPECT_EQ(tabOrder(dialog()), names);
  expectAccessible(dialog());
}

TEST_F(ChatKeySettingWidgetTest, ShowsTheLongestPhraseWholeInOneColumn) {
  dialog().show();
  const QString longest(static_cast<int>(kPhraseUnits), QChar(u'字'));
  for (int n = 1; n <= kPhrases; ++n) {
    EXPECT_LT(phrase(n).fontMetrics().horizontalAdvance(longest) + 8, phrase(n).width());
    EXPECT_EQ(phrase(n).x(), phrase(1).x());
    EXPECT_EQ(phrase(n).width(), phrase(1).width());
  }
}

TEST_F(ChatKeySettingWidgetTest, HasRoomForLongerTexts) {
  const LongerTexts longer;
  open().show();
  expectNothingIsCut(dialog());
}

TEST_F(ChatKeySettingWidgetTest, LoadsTheCurrentScheme) {
  scheme(0).QuickChatIndex = 0;
  scheme(0).QuickChat = {u"一", u"2", u"3", u"4", u"5", u"6", u"7", u"8"};
  scheme(1).QuickChat = {u"a", u"b", u"c", u"d", u"e", u"f", u"g", u"h"};
  EXPECT_EQ(shown().join(QLatin1Char(' ')), QStringLiteral("一 2 3 4 5 6 7 8"));
  expectFamily(1);
  config.setIndex(1);
  dialog().showSettings();
  EXPECT_EQ(shown().join(QLatin1Char(' ')), QStringLiteral("a b c d e f g h"));
  expectFamily(2);
}

TEST_F(ChatKeySettingWidgetTest, CarriesATextOverPhrasesThatAreMissing) {
  EXPECT_EQ(shown(), kNothing);
  scheme().QuickChat[1] = u"b";
  scheme().QuickChat[4] = u"";
  scheme().QuickChat[6] = u"g";
  dialog().showSettings();
  EXPECT_EQ(shown().join(QLatin1Char(',')), QStringLiteral(",b,b,b,,,g,g"));
}

TEST_F(ChatKeySettingWidgetTest, StoresNothingAndAsksNothingWhenItLoads) {
  const NoBoxes noBoxes;
  scheme().HeroSkillKey[0] = KeyWord('1', kAlt);
  scheme().HeroSkillKey[1] = KeyWord(kF1, kAlt);
  scheme().QuickChat[0] = std::u16string(50, u'a');
  for (const std::uint32_t set : {0U, 1U, 0U}) {
    scheme().QuickChatIndex = set;
    const HotkeyScheme before = scheme();
    dialog().showSettings();
    expectFamily(static_cast<int>(set) + 1);
    EXPECT_EQ(scheme(), before);
  }
  EXPECT_EQ(phrase(1).text().size(), 50);
}

TEST_F(ChatKeySettingWidgetTest, StoresItsPhrasesWithOk) {
  for (int n = 1; n <= kPhrases; ++n) phrase(n).setText(QStringLiteral("第%1").arg(n));
  phrase(7).clear();
  HotkeyScheme wanted = scheme();
  wanted.QuickChat = {u"第1", u"第2", u"第3", u"第4", u"第5", u"第6", u"", u"第8"};
  dialog().show();
  button("btnOK").click();
  EXPECT_EQ(dialog().result(), QDialog::Accepted);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(scheme(0), wanted);
  EXPECT_EQ(scheme(1), HotkeyScheme());
}

struct CutCase {
  std::u16string typed;
  std::u16string stored;
};

TEST_F(ChatKeySettingWidgetTest, CutsWhatIsTooLong) {
  const std::u16string whole(42, u'中');
  const CutCase cases[] = {
      {whole, whole},
      {whole + u"a", whole},
      {whole + u"ÿ", whole},
      {whole + u"中", whole + u'\u4E00'},
      {whole + u"一", whole + u"一"},
      {whole + u"中中", whole},
      {whole + u"aa", whole},
      {whole + std::u16string(8, u'中'), whole},
  };
  for (const CutCase& row : cases) {
    phrase(3).setText(toQString(row.typed));
    button("btnOK").click();
    EXPECT_EQ(scheme().QuickChat[2], row.stored) << row.typed.size();
    EXPECT_EQ(phrase(3).text(), toQString(row.typed)) << "the field stays as it is";
  }
}

TEST_F(ChatKeySettingWidgetTest, StoresNoPhraseWithCancel) {
  const auto before = scheme().QuickChat;
  family(1).click();
  phrase(1).setText(QStringLiteral("typed"));
  dialog().show();
  dialog().setResult(QDialog::Accepted);
  button("btnCancel").click();
  EXPECT_EQ(dialog().result(), QDialog::Rejected);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(scheme().QuickChat, before);
  EXPECT_EQ(phrase(1).text(), QStringLiteral("typed"));
  EXPECT_EQ(scheme().QuickChatIndex, 0U) << "the keys were stored when they were chosen";
}

TEST_F(ChatKeySettingWidgetTest, TakesReturnForOkAndEscapeForCancel) {
  dialog().show();
  phrase(2).setText(QStringLiteral("typed"));
  QTest::keyClick(&phrase(2), Qt::Key_Escape);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_FALSE(scheme().QuickChat[1].has_value());
  dialog().show();
  QTest::keyClick(&phrase(2), Qt::Key_Return);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(scheme().QuickChat[1], u"typed");
}

TEST_F(ChatKeySettingWidgetTest, StoresTheKeysAtOnce) {
  const NoBoxes noBoxes;
  family(1).click();
  EXPECT_EQ(scheme().QuickChatIndex, 0U);
  family(2).click();
  EXPECT_EQ(scheme().QuickChatIndex, 1U);
}

TEST_F(ChatKeySettingWidgetTest, RefusesKeysThatAreUsed) {
  using Use = void (*)(HotkeyScheme&);
  constexpr Use kUses[] = {
      [](HotkeyScheme& scheme) { scheme.ItemKey[2] = KeyWord('3', kAlt); },
      [](HotkeyScheme& scheme) { scheme.NumComboKeyIndex = 2; },
      [](HotkeyScheme& scheme) { scheme.QuickChatKey = KeyWord('8', kAlt); },
  };
  for (const Use use : kUses) {
    scheme() = HotkeyScheme();
    use(scheme());
    const QString why = refusalText(takenQuickChatKeys(scheme(), 0), KeyWindow::QuickChat);
    EXPECT_NE(why, QString());
    EXPECT_EQ(expectWarning(dialog(), "IDS_GROUP_KEY_USED", [&] { family(1).click(); }), why);
    expectFamily(2);
    EXPECT_EQ(scheme().QuickChatIndex, 1U);
  }
}

TEST_F(ChatKeySettingWidgetTest, AsksOnceWhenNoKeysCanBeHad) {
  scheme().HeroSkillKey[0] = KeyWord('1', kAlt);
  scheme().HeroSkillKey[1] = KeyWord(kF1, kAlt);
  expectWarning(dialog(), "IDS_GROUP_KEY_USED", [&] { family(1).click(); });
  expectFamily(2);
  scheme().QuickChatIndex = 0;
  dialog().showSettings();
  expectWarning(dialog(), "IDS_GROUP_KEY_USED", [&] { family(2).click(); });
  expectFamily(1);
  EXPECT_EQ(scheme().QuickChatIndex, 0U);
}

TEST_F(ChatKeySettingWidgetTest, ResetsKeysAndPhrases) {
  const NoBoxes noBoxes;
  config.setIndex(1);
  scheme(1).QuickChatIndex = 0;
  scheme(1).QuickChat = {u"a", u"b", u"c", u"d", u"e", u"f", u"g", std::nullopt};
  const HotkeyScheme other = scheme(0);
  phrase(5).setText(QStringLiteral("typed"));
  dialog().clearSettings();
  expectFamily(2);
  EXPECT_EQ(shown(), kNothing);
  EXPECT_EQ(scheme(1).QuickChatIndex, 1U);
  for (const auto& text : scheme(1).QuickChat) EXPECT_EQ(text, u"");
  EXPECT_EQ(scheme(0), other);
}

TEST_F(ChatKeySettingWidgetTest, ResetsKeysThatWereChosenElsewhere) {
  expectFamily(2);
  scheme().QuickChatIndex = 0;
  dialog().clearSettings();
  EXPECT_EQ(scheme().QuickChatIndex, 1U);
}

TEST_F(ChatKeySettingWidgetTest, ResetsThePhrasesEvenIfTheKeysAreUsed) {
  scheme().QuickChatIndex = 0;
  scheme().QuickChat[0] = u"a";
  scheme().HeroSkillKey[0] = KeyWord(kF1 + 7, kAlt);
  expectWarning(dialog(), "IDS_GROUP_KEY_USED", [&] { dialog().clearSettings(); });
  expectFamily(1);
  EXPECT_EQ(scheme().QuickChatIndex, 0U);
  EXPECT_EQ(scheme().QuickChat[0], u"");
  EXPECT_EQ(shown(), kNothing);
}

TEST_F(ChatKeySettingWidgetTest, StoresNothingWhereThereIsNoScheme) {
  for (std::uint32_t index = 3; index <= HotkeyConfig::kLargestIndex; ++index) {
    ASSERT_TRUE(config.setIndex(index));
    open();
    expectFamily(2);
    EXPECT_EQ(shown(), kNothing);
    expectWarning(dialog(), "IDS_GROUP_KEY_USED", [&] { family(1).click(); });
    expectFamily(2);
    phrase(1).setText(QStringLiteral("typed"));
    button("btnOK").click();
    EXPECT_EQ(dialog().result(), QDialog::Accepted);
    const NoBoxes noBoxes;
    dialog().clearSettings();
    EXPECT_EQ(shown(), kNothing);
    dialog().showSettings();
    for (int n = 0; n < HotkeyConfig::kSchemes; ++n) EXPECT_EQ(scheme(n), HotkeyScheme());
  }
}

}  // namespace
}  // namespace brennet::test
