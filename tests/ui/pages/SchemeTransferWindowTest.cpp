#include "ui/pages/SchemeTransferWindow.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTranslator>
#include <QTreeWidget>

#include "model/FixedKeys.h"
#include "tests/ui/pages/PageChecks.h"

namespace brennet::test {
namespace {

using Row = std::array<std::string, 4>;

class SchemeTransferWindowTest : public testing::Test {
 protected:
  SchemeTransferWindowTest() {
    EXPECT_TRUE(
        english_.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&english_);
    current_.HeroSkillKey[0] = KeyWord('Q', 0);
  }

  SchemeOffer offer(const char* name, const HotkeyScheme& source) {
    return {QString::fromLatin1(name), transferOf(current_, source)};
  }
  void open(std::vector<SchemeOffer> offers) {
    window_ = std::make_unique<SchemeTransferWindow>(QStringLiteral("Copy"), current_,
                                                     std::move(offers), nullptr);
    window_->show();
  }

  template <class Widget>
  Widget& find(const char* name) {
    return *window_->findChild<Widget*>(QLatin1String(name));
  }
  QTreeWidget& list() { return find<QTreeWidget>("lstChanges"); }
  std::vector<Row> rows() {
    std::vector<Row> all;
    for (int i = 0; i < list().topLevelItemCount(); ++i) {
      Row& row = all.emplace_back();
      for (int column = 0; column < 4; ++column) {
        row[static_cast<std::size_t>(column)] = list().topLevelItem(i)->text(column).toStdString();
      }
    }
    return all;
  }
  std::string summary() { return find<QLabel>("lblSummary").text().toStdString(); }

  HotkeyScheme current_;
  std::unique_ptr<SchemeTransferWindow> window_;

 private:
  QTranslator english_;
};

TEST_F(SchemeTransferWindowTest, ShowsWhatIsAndWhatWouldBe) {
  HotkeyScheme source;
  source.HeroSkillKey[0] = KeyWord('W', KeyWord::kAlt);
  source.HeroSkillAutocast[0] = true;
  source.QuickChat[1] = u"<b>go</b>";
  open({offer("2", source)});
  EXPECT_EQ(rows(), (std::vector<Row>{{"Hero skill 1", "Q", "Alt + W", ""},
                                      {"Hero skill 1: quick cast", "off", "on", ""},
                                      {"Quick-chat phrase 2", "none", "“<b>go</b>”", ""}}));
  EXPECT_EQ(summary(), "Changes: 3");
  EXPECT_TRUE(list().isColumnHidden(3)) << "there is nothing to note";
}

TEST_F(SchemeTransferWindowTest, ShowsPhrasesWholeIfTheyDifferOnlyThen) {
  HotkeyScheme source = current_;
  current_.QuickChat[0] = u"all middle missing, go back now";
  source.QuickChat[0] = u"all middle missing, go  back now";
  open({offer("2", source)});
  EXPECT_EQ(rows(), (std::vector<Row>{{"Quick-chat phrase 1", "“all middle missing, go back now”",
                                       "“all middle missing, go  back now”", ""}}));
}

TEST_F(SchemeTransferWindowTest, MarksWhatIsRefusedAndSaysWhy) {
  HotkeyScheme source;
  source.HeroSkillKey[0] = KeyWord('Q', 0);
  source.ShowFBlood = KeyWord('Q', 0);
  source.HeroSkillKey[1] = kItemPresetKeys[0][0];
  source.NumComboKeyIndex = 0;
  open({offer("2", source)});
  EXPECT_FALSE(list().isColumnHidden(3));
  const std::vector<Row> shown = rows();
  ASSERT_EQ(shown.size(), 3U);
  EXPECT_EQ(shown[0][3], "Cannot be taken over: Alt + Q is Hero skill 2");
  EXPECT_EQ(shown[1], (Row{"Show ally health bars", "none", "none",
                           "Cannot be taken over: Q is Hero skill 1"}));
  EXPECT_FALSE(list().topLevelItem(2)->font(0).bold());
  EXPECT_TRUE(list().topLevelItem(0)->font(0).bold());
  EXPECT_EQ(summary(), "Changes: 1, cannot be taken over: 2");
}

// For the first list and for one that is chosen later.
TEST_F(SchemeTransferWindowTest, ShowsTheWholeOfEachColumn) {
  HotkeyScheme refused;
  refused.ShowFBlood = KeyWord('Q', 0);
  HotkeyScheme longer;
  longer.HeroSkillKey[0] = KeyWord(0x6D, KeyWord::kCtrl | KeyWord::kAlt);
  longer.QuickChat[0] = std::u16string(60, u'W');
  open({offer("2", refused), offer("3", longer)});
  for (const int each : {0, 1}) {
    find<QComboBox>("cmbSource").setCurrentIndex(each);
    for (int column = 0; column < 4; ++column) {
      if (list().isColumnHidden(column)) continue;
      const int width = list().columnWidth(column);
      list().resizeColumnToContents(column);
      EXPECT_EQ(width, list().columnWidth(column)) << "offer " << each << ", column " << column;
    }
  }
}

TEST_F(SchemeTransferWindowTest, ShowsTheGroupThatIsChosen) {
  HotkeyScheme source;
  source.HeroSkillKey[0] = KeyWord('W', 0);
  open({offer("2", current_), offer("3", source)});
  EXPECT_TRUE(rows().empty());
  EXPECT_EQ(summary(), "Changes: 0");
  EXPECT_FALSE(find<QPushButton>("btnOK").isEnabled());
  find<QComboBox>("cmbSource").setCurrentIndex(1);
  EXPECT_EQ(rows().size(), 1U);
  EXPECT_EQ(window_->chosen().name, QStringLiteral("3"));
  find<QPushButton>("btnOK").click();
  EXPECT_EQ(window_->result(), QDialog::Accepted);
}

TEST_F(SchemeTransferWindowTest, OffersNoChoiceWhereThereIsNone) {
  open({offer("1", HotkeyScheme())});
  EXPECT_FALSE(find<QComboBox>("cmbSource").isEnabled());
  EXPECT_EQ(find<QComboBox>("cmbSource").currentText(), QStringLiteral("1"));
  find<QPushButton>("btnCancel").click();
  EXPECT_EQ(window_->result(), QDialog::Rejected);
  EXPECT_FALSE(window_->isVisible());
}

}  // namespace
}  // namespace brennet::test
