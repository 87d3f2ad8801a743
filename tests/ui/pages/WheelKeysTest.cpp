// Clicks on phrases and keys for the chat wheel, as a player makes them.

#include "tests/ui/pages/WheelPage.h"

namespace brennet::test {
namespace {

constexpr auto kCtrl = KeyWord::kCtrl;
constexpr auto kAlt = KeyWord::kAlt;

using WheelKeysTest = WheelPage;

TEST_F(WheelKeysTest, PutsAClickedPhraseIntoTheSlotWithTheFocus) {
  show();
  slot(3).setFocus();
  click(phrase(0, 18));
  EXPECT_TRUE(slot(3).hasFocus()) << "the tree never takes the focus";
  EXPECT_EQ(slot(3).text(), QStringLiteral("gank"));
  EXPECT_EQ(stored(3), u"gank");
  click(phrase(1, 7));
  EXPECT_EQ(stored(3), u"phrase 8") << "another one replaces it";
  for (const int n : {1, 2, 4, 5, 6, 7, 8}) EXPECT_EQ(stored(n), u"") << n;
}

TEST_F(WheelKeysTest, KeepsTheSpacesOfAPhrase) {
  show();
  slot(1).setFocus();
  click(phrase(0, 11));
  EXPECT_EQ(stored(1), u"jungle ");
}

TEST_F(WheelKeysTest, DoesNothingForACategoryOrWithoutASlot) {
  show();
  const HotkeyScheme before = scheme();
  slot(3).setFocus();
  click(category(0));
  EXPECT_TRUE(slot(3).hasFocus());
  page().onChatPhraseSelected(nullptr, 0);
  EXPECT_EQ(slot(3).text(), QString());

  key().setFocus();
  click(phrase(0, 18));
  EXPECT_TRUE(key().hasFocus());
  EXPECT_EQ(key().text(), QString());
  key().clearFocus();
  click(phrase(0, 18));
  EXPECT_EQ(QApplication::focusWidget(), nullptr);
  EXPECT_TRUE(scheme() == before);
}

TEST_F(WheelKeysTest, TakesAKeyThatIsFree) {
  const NoBoxes none;
  pressKey(key(), Qt::Key_Y, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(key().text(), QStringLiteral("CTRL +Alt +Y"));
  EXPECT_EQ(scheme().ChatWheelkey, KeyWord('Y', kCtrl | kAlt));
  pressKey(key(), Qt::Key_Y);
  EXPECT_EQ(key().text(), QStringLiteral("Y"));
  EXPECT_EQ(scheme().ChatWheelkey, KeyWord('Y', 0));
  pressKey(key(), Qt::Key_Y);
  EXPECT_EQ(scheme().ChatWheelkey, KeyWord('Y', 0)) << "its own key is no conflict";
  pressKey(key(), Qt::Key_Return);
  EXPECT_EQ(key().text(), QStringLiteral("Y"));
  EXPECT_EQ(scheme().ChatWheelkey, KeyWord('Y', 0));
  QCoreApplication::processEvents();
}

TEST_F(WheelKeysTest, RefusesAKeyThatIsUsed) {
  scheme().HeroSkillKey[0] = KeyWord('Q', 0);
  scheme().NumComboKeyIndex = 0;
  scheme().QuickChatIndex = 1;
  struct Row {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
  };
  const Row used[] = {
      {Qt::Key_Q, Qt::NoModifier}, {Qt::Key_E, Qt::AltModifier}, {Qt::Key_F2, Qt::AltModifier}};
  for (const Row& row : used) {
    scheme().ChatWheelkey = KeyWord('Y', 0);
    page().showSettings();
    expectWarning(page(), "IDS_KEY_USED", [&] { pressKey(key(), row.key, row.modifiers); });
    EXPECT_EQ(key().text(), QString());
    EXPECT_EQ(scheme().ChatWheelkey, kNoKey) << row.key;
  }
}

TEST_F(WheelKeysTest, ClearsTheKeyWithoutAWord) {
  const NoBoxes none;
  for (const Qt::Key clear : {Qt::Key_Backspace, Qt::Key_Delete}) {
    scheme().ChatWheelkey = KeyWord('Y', 0);
    page().showSettings();
    pressKey(key(), clear);
    EXPECT_EQ(key().text(), QString());
    EXPECT_EQ(scheme().ChatWheelkey, kNoKey);
  }
  QCoreApplication::processEvents();
}

TEST_F(WheelKeysTest, NeverKeepsThePasteKey) {
  scheme().ChatWheelkey = KeyWord('V', kCtrl);
  page().showSettings();
  expectWarning(page(), "IDS_KEY_USED", [&] { pressKey(key(), Qt::Key_V, Qt::ControlModifier); });
  EXPECT_EQ(key().text(), QString());
  EXPECT_EQ(scheme().ChatWheelkey, kNoKey);
}

TEST_F(WheelKeysTest, ForgetsALoneModifier) {
  scheme().ChatWheelkey = KeyWord('Y', 0);
  page().showSettings();
  pressKey(key(), Qt::Key_Control);
  EXPECT_EQ(key().text(), QStringLiteral("CTRL +"));
  releaseKey(key(), Qt::Key_Control);
  EXPECT_EQ(key().text(), QString());
  EXPECT_EQ(scheme().ChatWheelkey, KeyWord('Y', 0));
}

TEST_F(WheelKeysTest, LeavesTheKeysOfSlotsAlone) {
  show();
  slot(1).setFocus();
  slot(1).setText(QStringLiteral("gank"));
  QTest::keyClick(&slot(1), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(slot(1).selectedText(), QStringLiteral("gank"));
  QTest::keyClick(&slot(1), Qt::Key_Tab);
  EXPECT_TRUE(slot(2).hasFocus());
  EXPECT_EQ(stored(1), u"gank");
}

TEST_F(WheelKeysTest, StoresNothingForAnIndexWithoutAScheme) {
  for (std::uint32_t index = HotkeyConfig::kSchemes; index <= 10; ++index) {
    SCOPED_TRACE(index);
    ASSERT_TRUE(config.setIndex(index));
    open();
    show();
    slot(1).setFocus();
    click(phrase(0, 18));
    EXPECT_EQ(slot(1).text(), QStringLiteral("gank"));
    mana().setChecked(true);
    pressKey(key(), Qt::Key_Delete);
    expectWarning(page(), "IDS_KEY_USED", [&] { pressKey(key(), Qt::Key_Y); });
    expectWarning(page(), "IDS_KEY_USED", [&] { pressKey(key(), Qt::Key_V, Qt::ControlModifier); });
    page().showSettings();
    EXPECT_EQ(slot(1).text(), QString()) << "the defaults have empty phrases";
    EXPECT_EQ(key().text(), QString());
    for (int n = 0; n < HotkeyConfig::kSchemes; ++n) EXPECT_EQ(config.scheme(n), HotkeyScheme());
  }
}

}  // namespace
}  // namespace brennet::test
