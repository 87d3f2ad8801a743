// The chat wheel page: what it is made of, what it shows and what it stores.

#include "ui/pages/CChatRouletteSettingWidget.h"

#include <QLabel>
#include <QMetaMethod>
#include <QRegularExpression>

#include "tests/ui/pages/WheelPage.h"
#include "ui/chat/ChatPhrases.h"
#include "ui/window/Text.h"

namespace brennet::test {
namespace {

constexpr auto kCtrl = KeyWord::kCtrl;

QStringList signatures(const QMetaObject& type) {
  QStringList found;
  for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
    found += QString::fromLatin1(type.method(i).methodSignature());
  }
  return found;
}

using CChatRouletteSettingWidgetTest = WheelPage;

TEST_F(CChatRouletteSettingWidgetTest, HasItsSlotsInOrder) {
  EXPECT_STREQ(page().metaObject()->className(), "CChatRouletteSettingWidget");
  EXPECT_EQ(signatures(CChatRouletteSettingWidget::staticMetaObject),
            QStringList({QStringLiteral("OnChatPhraseChanged()"),
                         QStringLiteral("onChatPhraseSelected(QTreeWidgetItem*,int)"),
                         QStringLiteral("onToggled_ShowFMana(bool)")}));
}

TEST_F(CChatRouletteSettingWidgetTest, HasItsWidgetsAndTexts) {
  EXPECT_EQ(page().windowTitle(), QStringLiteral("Form"));
  EXPECT_EQ(page().font().family(), QStringLiteral("微软雅黑"));
  QWidget parent;
  EXPECT_EQ(CChatRouletteSettingWidget(config, &parent).parentWidget(), &parent);
  auto& label = find<QLabel>(page(), QStringLiteral("ChatWheelkey"));
  EXPECT_EQ(label.text(), QStringLiteral("聊天轮盘热键"));
  EXPECT_EQ(label.buddy(), &key());
  EXPECT_EQ(mana().text(), QStringLiteral("己方显蓝"));
  auto& wheel = find<QWidget>(page(), QStringLiteral("ChatWheel"));
  EXPECT_STREQ(wheel.metaObject()->className(), "QWidget");
  EXPECT_EQ(wheel.styleSheet(),
            QStringLiteral("#ChatWheel\n{\nbackground-image: url(:/skin/image/wheel.png)  0 0 0 0 "
                           "stretch stretch;\n background-repeat: no-repeat;\nbackground-position:"
                           "center;\nmargin-top:-80px;  \n}"));
}

TEST_F(CChatRouletteSettingWidgetTest, HasEightSlotsThatTakeNoTyping) {
  for (int n = 1; n <= 8; ++n) {
    EXPECT_STREQ(slot(n).metaObject()->className(), "CCustomLineEdit");
    EXPECT_EQ(slot(n).parentWidget()->objectName(), QStringLiteral("ChatWheel"));
    EXPECT_TRUE(slot(n).isReadOnly());
    EXPECT_TRUE(slot(n).acceptDrops());
    EXPECT_EQ(slot(n).focusPolicy(), Qt::StrongFocus);
    EXPECT_FALSE(slot(n).testAttribute(Qt::WA_InputMethodEnabled));
    pressKey(slot(n), Qt::Key_Q);
    pressKey(slot(n), Qt::Key_Backspace);
    EXPECT_EQ(slot(n).text(), QString());
  }
  EXPECT_FALSE(key().testAttribute(Qt::WA_InputMethodEnabled));
  EXPECT_EQ(page().findChildren<QLineEdit*>(QRegularExpression(QStringLiteral("^edt"))).size(), 9);
}

TEST_F(CChatRouletteSettingWidgetTest, IsReadInOrderByTab) {
  QStringList names;
  for (int n = 1; n <= 8; ++n) names += slot(n).objectName();
  names += QStringLiteral("edtChatWheelKey");
  EXPECT_EQ(tabOrder(page()), names);
  mana().show();
  EXPECT_EQ(tabOrder(page()), names + QStringList(QStringLiteral("chkShowMana")));
}

TEST_F(CChatRouletteSettingWidgetTest, NamesItsControlsForScreenReaders) {
  for (int n = 1; n <= 8; ++n) {
    EXPECT_EQ(accessible(slot(n), QAccessible::Name), QStringLiteral("轮盘短语 %1").arg(n));
  }
  EXPECT_EQ(accessible(key(), QAccessible::Name), QStringLiteral("聊天轮盘热键"));
  EXPECT_EQ(accessible(mana(), QAccessible::Name), QStringLiteral("己方显蓝"));
  EXPECT_EQ(accessible(tree(), QAccessible::Name), QStringLiteral("可选短语"));
  EXPECT_NE(accessible(tree(), QAccessible::Description), QString());
  page().resize(page().sizeHint());
  page().show();
  expectAccessible(page());
}

TEST_F(CChatRouletteSettingWidgetTest, HasATreeThatOnlyGivesPhrases) {
  EXPECT_STREQ(tree().metaObject()->className(), "CCustomTreeWidget");
  EXPECT_EQ(tree().focusPolicy(), Qt::NoFocus);
  EXPECT_FALSE(tree().acceptDrops());
  EXPECT_FALSE(tree().viewport()->acceptDrops());
  EXPECT_FALSE(tree().showDropIndicator());
  EXPECT_TRUE(tree().dragEnabled());
  EXPECT_EQ(tree().defaultDropAction(), Qt::MoveAction);
  EXPECT_TRUE(tree().isHeaderHidden());
  EXPECT_FALSE(tree().itemsExpandable());
}

TEST_F(CChatRouletteSettingWidgetTest, ListsThePhrasesOfAllCategories) {
  const auto categories = chatPhrases();
  ASSERT_EQ(tree().topLevelItemCount(), static_cast<int>(categories.size()));
  for (int i = 0; i < tree().topLevelItemCount(); ++i) {
    const PhraseCategory& expected = categories[static_cast<std::size_t>(i)];
    EXPECT_EQ(category(i).text(0), QLatin1String(expected.key));
    EXPECT_TRUE(category(i).isExpanded());
    ASSERT_EQ(category(i).childCount(), static_cast<int>(expected.phrases.size()));
    for (int n = 0; n < category(i).childCount(); ++n) {
      const char* const text = expected.phrases[static_cast<std::size_t>(n)];
      EXPECT_EQ(phrase(i, n).text(0), QLatin1String(text));
    }
  }
  EXPECT_EQ(category(0).childCount(), 21);
  EXPECT_EQ(category(1).childCount(), 8);
  EXPECT_EQ(category(2).childCount(), 5);
  EXPECT_EQ(category(3).childCount(), 9);
  for (const int n : {8, 10}) {
    EXPECT_EQ(phrase(0, n).text(0), QStringLiteral("farm,no group battle"));
  }
}

TEST_F(CChatRouletteSettingWidgetTest, NeverClosesACategory) {
  show();
  for (int i = 0; i < 2; ++i) {
    click(category(0));
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {},
                       tree().visualItemRect(&category(0)).center());
    QTest::keyClick(tree().viewport(), Qt::Key_Left);
    EXPECT_TRUE(category(0).isExpanded());
  }
}

TEST_F(CChatRouletteSettingWidgetTest, ShowsTheCurrentSchemeAndStoresNothing) {
  const std::u16string longPhrase(50, u'字');
  scheme().ChatWheel[0] = longPhrase;
  scheme().ChatWheel[7] = u"gank";
  scheme().ChatWheelkey = KeyWord('Y', kCtrl);
  scheme().ShowFManaFlag = 1;
  const HotkeyScheme before = scheme();
  EXPECT_EQ(slot(1).text(), toQString(longPhrase));
  EXPECT_EQ(slot(1).cursorPosition(), 0) << "the beginning is what shows";
  EXPECT_TRUE(slot(1).toolTip().contains(toQString(longPhrase)));
  EXPECT_EQ(slot(2).text(), QString());
  EXPECT_EQ(slot(8).text(), QStringLiteral("gank"));
  EXPECT_EQ(key().text(), QStringLiteral("CTRL + Y"));

  ASSERT_TRUE(config.setIndex(1));
  scheme().ChatWheel[7].reset();
  page().showSettings();
  EXPECT_EQ(slot(1).text(), QString());
  EXPECT_EQ(slot(1).toolTip(), QString());
  EXPECT_EQ(slot(8).text(), QStringLiteral("gank")) << "what is missing leaves the field";
  EXPECT_EQ(key().text(), QString());
  EXPECT_FALSE(scheme().ChatWheel[7]);
}

TEST_F(CChatRouletteSettingWidgetTest, CutsNothingByShowingIt) {
  EXPECT_EQ(slot(4).text(), QString());
  const std::u16string longPhrase(50, u'字');
  scheme().ChatWheel[3] = longPhrase;
  page().showSettings();
  EXPECT_EQ(slot(4).text(), toQString(longPhrase));
  EXPECT_EQ(stored(4), longPhrase);
}

TEST_F(CChatRouletteSettingWidgetTest, ShowsMarkupInAPhraseAsText) {
  slot(1).setText(QStringLiteral("<img src='//host/a'>"));
  EXPECT_EQ(slot(1).text(), QStringLiteral("<img src='//host/a'>"));
  EXPECT_TRUE(slot(1).toolTip().contains(QStringLiteral("&lt;img"))) << "and the tool tip";
}

TEST_F(CChatRouletteSettingWidgetTest, HidesTheCheckBoxThatStillWorks) {
  show();
  EXPECT_FALSE(mana().isVisible());
  mana().show();
  page().showSettings();
  EXPECT_FALSE(mana().isVisible());
  mana().setChecked(true);
  EXPECT_EQ(scheme().ShowFManaFlag, 1);
  mana().setChecked(false);
  EXPECT_EQ(scheme().ShowFManaFlag, 0);
}

TEST_F(CChatRouletteSettingWidgetTest, StoresWhatASlotShowsCut) {
  struct Row {
    int length;
    int stored;
  };
  for (const Row row : {Row{0, 0}, Row{42, 42}, Row{43, 42}, Row{44, 42}, Row{50, 42}}) {
    slot(6).setText(QStringLiteral("before"));
    const QString text(row.length, QLatin1Char('x'));
    slot(6).setText(text);
    EXPECT_EQ(stored(6), std::u16string(static_cast<std::size_t>(row.stored), u'x')) << row.length;
    EXPECT_EQ(slot(6).text(), text) << "the field keeps all of it";
  }
  page().showSettings();
  EXPECT_EQ(slot(6).text().size(), 42);
  slot(6).setText(QString(43, QChar(u'\u5B57')));
  EXPECT_EQ(stored(6), std::u16string(42, u'\u5B57') + u'\u5B00');
}

TEST_F(CChatRouletteSettingWidgetTest, StoresEachSlotAtItsPlaceInTheCurrentScheme) {
  ASSERT_TRUE(config.setIndex(2));
  for (int n = 1; n <= 8; ++n) slot(n).setText(QString::number(n));
  for (int n = 1; n <= 8; ++n) EXPECT_EQ(toQString(stored(n)), QString::number(n));
  EXPECT_EQ(config.scheme(0), HotkeyScheme());
}

TEST_F(CChatRouletteSettingWidgetTest, IgnoresTextsOfOtherFields) {
  const HotkeyScheme before = scheme();
  page().OnChatPhraseChanged();
  for (const char* const name : {"", "edtChatWheel_0", "edtChatWheel_9", "edtChatWheel_x"}) {
    QLineEdit other;
    other.setObjectName(QLatin1String(name));
    QObject::connect(&other, &QLineEdit::textChanged, &page(),
                     &CChatRouletteSettingWidget::OnChatPhraseChanged);
    other.setText(QStringLiteral("text"));
  }
  EXPECT_TRUE(scheme() == before);
}

}  // namespace
}  // namespace brennet::test
