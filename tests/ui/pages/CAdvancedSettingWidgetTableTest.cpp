// The phrases in the table of the advanced page, and the page without a scheme.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableView>
#include <QTest>

#include "tests/ui/pages/ChatPageTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/window/Text.h"

namespace brennet::test {
namespace {

class CAdvancedSettingWidgetTableTest : public testing::Test {
 protected:
  CAdvancedSettingWidget& page() { return page_; }
  QTableView& table() { return find<QTableView>(page_, QStringLiteral("tableStatement")); }
  QModelIndex at(int row, int column = 1) { return table().model()->index(row, column); }
  // Returns the debug message that comes with it.
  QString type(const QModelIndex& index, const QString& text) {
    const CaughtMessages messages;
    EXPECT_TRUE(table().model()->setData(index, text, Qt::EditRole));
    return messages.texts().join(QLatin1Char('\n'));
  }
  HotkeyScheme& scheme(int n = 0) { return *config.editableScheme(n); }

  HotkeyConfig config;

 private:
  CAdvancedSettingWidget page_{config, nullptr};
};

TEST_F(CAdvancedSettingWidgetTableTest, StoresAPhraseInTheCurrentScheme) {
  const NoBoxes noBoxes;
  ASSERT_TRUE(config.setIndex(2));
  HotkeyScheme wanted;
  for (int row = 0; row < kPhrases; ++row) {
    const QString text = QStringLiteral("第%1").arg(row);
    const QString message = type(at(row), text);
    EXPECT_TRUE(message.startsWith(QStringLiteral("item chagned:  QModelIndex(%1,1,").arg(row)))
        << qPrintable(message);
    wanted.QuickChat[static_cast<std::size_t>(row)] = text.toStdU16String();
  }
  EXPECT_EQ(scheme(2), wanted);
  EXPECT_EQ(scheme(0), HotkeyScheme());
  type(at(3), QString());
  EXPECT_EQ(scheme(2).QuickChat[3], u"");
}

TEST_F(CAdvancedSettingWidgetTableTest, CutsWhatIsTooLongAndShowsItUntilTheNextRefresh) {
  const std::u16string whole(42, u'字');
  const std::u16string typed[] = {whole, whole + u"a", whole + u"字", whole + u"12345678"};
  for (const std::u16string& text : typed) {
    type(at(4), toQString(text));
    EXPECT_EQ(scheme().QuickChat[4], whole) << text.size();
    EXPECT_EQ(at(4).data().toString(), toQString(text));
  }
  page().showSettings();
  EXPECT_EQ(at(4).data().toString(), toQString(whole));
  const std::u16string almost(41, u'字');
  type(at(4), toQString(almost + u"😀"));
  EXPECT_EQ(scheme().QuickChat[4], almost) << "no half of a character is stored";
}

TEST_F(CAdvancedSettingWidgetTableTest, StoresNothingOfOtherCells) {
  const QString message = type(at(2, 0), QStringLiteral("label"));
  EXPECT_TRUE(message.startsWith(QStringLiteral("item chagned:  QModelIndex(2,0,")));
  EXPECT_EQ(table().model()->flags(at(2, 0)) & Qt::ItemIsEditable, 0);
  ASSERT_TRUE(table().model()->insertRows(8, 1));
  type(at(8), QStringLiteral("ninth"));
  EXPECT_EQ(scheme(), HotkeyScheme());
}

TEST_F(CAdvancedSettingWidgetTableTest, StoresNothingOfSeveralCellsOrNone) {
  const CaughtMessages messages;
  emit table().model()->dataChanged(at(0), at(1));
  emit table().model()->dataChanged(at(0, 0), at(0, 1));
  emit table().model()->dataChanged(QModelIndex(), QModelIndex());
  EXPECT_EQ(messages.texts().size(), 3);
  EXPECT_EQ(scheme(), HotkeyScheme());
}

TEST_F(CAdvancedSettingWidgetTableTest, IsEditedWithTheKeyboard) {
  page().show();
  table().setCurrentIndex(at(1));
  QTest::keyClick(&table(), Qt::Key_F2);
  auto* const editor = table().viewport()->findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  const CaughtMessages messages;
  QTest::keyClicks(editor, QStringLiteral("gg"));
  EXPECT_FALSE(scheme().QuickChat[1].has_value());
  QTest::keyClick(editor, Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(scheme().QuickChat[1], u"gg");
}

TEST_F(CAdvancedSettingWidgetTableTest, IsTranslatedWithThePage) {
  const LongerTexts longer;
  const CAdvancedSettingWidget page(config, nullptr);
  const auto& model = *find<QTableView>(page, QStringLiteral("tableStatement")).model();
  EXPECT_EQ(model.index(1, 0).data().toString(), QStringLiteral("message 2:messag"));
}

TEST_F(CAdvancedSettingWidgetTableTest, AndThePageDoNothingWhereThereIsNoScheme) {
  auto& family = find<QRadioButton>(page(), QStringLiteral("optChatKey_1"));
  auto& other = find<QRadioButton>(page(), QStringLiteral("optChatKey_2"));
  auto& field = find<QLineEdit>(page(), QStringLiteral("edtShowFBlood"));
  for (std::uint32_t index = 3; index <= HotkeyConfig::kLargestIndex; ++index) {
    ASSERT_TRUE(config.setIndex(index));
    const CAdvancedSettingWidget another(config, nullptr);
    page().showSettings();
    expectWarning(page(), "IDS_GROUP_KEY_USED", [&] { family.click(); });
    EXPECT_TRUE(other.isChecked());
    expectWarning(page(), "IDS_KEY_USED", [&] { pressKey(field, Qt::Key_F8); });
    expectWarning(page(), "IDS_KEY_USED", [&] { pressKey(field, Qt::Key_V, Qt::ControlModifier); });
    const NoBoxes noBoxes;
    pressKey(field, Qt::Key_Delete);
    for (int n = 1; n <= 3; ++n) {
      auto& box = find<QCheckBox>(page(), QStringLiteral("chkGroupKey%1").arg(n));
      box.click();
      box.click();
    }
    type(at(0), QStringLiteral("text"));
    for (int n = 0; n < HotkeyConfig::kSchemes; ++n) EXPECT_EQ(scheme(n), HotkeyScheme());
  }
}

}  // namespace
}  // namespace brennet::test
