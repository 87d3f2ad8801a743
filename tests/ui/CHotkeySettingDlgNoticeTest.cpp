// What the settings dialog says about keys that a load could not use.

#include <QPushButton>
#include <QTextDocument>
#include <QTranslator>

#include "model/LoadReport.h"
#include "tests/ui/SettingsDialogTest.h"
#include "tests/ui/screens/TestScreens.h"
#include "ui/window/CNoticeStrip.h"

namespace brennet::test {
namespace {

class CHotkeySettingDlgNoticeTest : public SettingsDialog {
 protected:
  CHotkeySettingDlgNoticeTest() {
    EXPECT_TRUE(
        english_.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&english_);
    dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
  }

  static LoadReport reportOf(int count) {
    LoadReport report;
    for (int i = 0; i < count; ++i) {
      DroppedKey dropped;
      dropped.slot = {SettingId::MouseKey, static_cast<std::uint8_t>(i % 3)};
      dropped.key = KeyWord('A', 0);
      dropped.conflict = KeyConflict{KeyConflict::Reason::Held, {SettingId::HeroSkillKey, 0}};
      report.droppedKeys.push_back(dropped);
    }
    return report;
  }
  CNoticeStrip* strip() { return dialog->findChild<CNoticeStrip*>(); }
  QLabel& notice() { return find<QLabel>("lblNotice"); }
  // The lines of its tool tip, as Qt shows it.
  QStringList toolTipText() {
    QTextDocument document;
    const QString toolTip = notice().toolTip();
    if (Qt::mightBeRichText(toolTip)) {
      document.setHtml(toolTip);
    } else {
      document.setPlainText(toolTip);
    }
    return document.toPlainText().split(QLatin1Char('\n'));
  }

 private:
  QTranslator english_;
  TestScreens screens_{{{{1920, 1080}}}};
};

TEST_F(CHotkeySettingDlgNoticeTest, IsNotThereWhereAllKeysAreUsed) {
  dialog->tellDroppedKeys({});
  ASSERT_NO_FATAL_FAILURE(show());
  EXPECT_EQ(strip(), nullptr);
}

TEST_F(CHotkeySettingDlgNoticeTest, TellsTheKeysAndWhoHoldsThem) {
  dialog->tellDroppedKeys(reportOf(1));
  EXPECT_EQ(notice().text(), QStringLiteral("1 key of your settings could not be used: Wheel up: A "
                                            "is Hero skill 1"));
  dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
  dialog->tellDroppedKeys(reportOf(2));
  EXPECT_EQ(notice().text(),
            QStringLiteral("2 keys of your settings could not be used: Wheel up: A is Hero skill "
                           "1; Wheel click: A is Hero skill 1"));
}

TEST_F(CHotkeySettingDlgNoticeTest, HasRoomForTheFirstFewAndAllInItsToolTip) {
  dialog->tellDroppedKeys(reportOf(40));
  EXPECT_TRUE(notice().text().startsWith(QLatin1String("40 keys")));
  EXPECT_TRUE(notice().text().endsWith(QLatin1String("; ...")));
  EXPECT_EQ(notice().text().count(QLatin1String("Hero skill 1")), 4);
  EXPECT_EQ(toolTipText().size(), 40);
  EXPECT_EQ(notice().accessibleDescription().split(QLatin1Char('\n')), toolTipText());
}

// The text comes from whoever wrote the file. As markup it could have other files read.
TEST_F(CHotkeySettingDlgNoticeTest, ShowsMarkupOfTheFileAsText) {
  LoadReport report;
  report.droppedKeys.emplace_back().slot = {SettingId::MouseKey, 0};
  report.droppedKeys.back().text = u"<b>&amp;<img src=x>";
  report.droppedKeys.push_back(report.droppedKeys.back());
  dialog->tellDroppedKeys(report);
  const QString line = QStringLiteral("Wheel up: \"<b>&amp;<img src=x>\" is no key");
  EXPECT_EQ(toolTipText(), QStringList({line, line}));
  EXPECT_EQ(notice().accessibleDescription(), line + QLatin1Char('\n') + line);
  EXPECT_EQ(notice().textFormat(), Qt::PlainText);
}

TEST_F(CHotkeySettingDlgNoticeTest, StandsBelowTheTitleAndCutsNothing) {
  ASSERT_NO_FATAL_FAILURE(show());
  const QSize without = dialog->size();
  dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
  dialog->tellDroppedKeys(reportOf(40));
  ASSERT_NO_FATAL_FAILURE(show());
  EXPECT_EQ(strip()->geometry().top(), find<QWidget>("titleWidget").geometry().bottom() + 1);
  EXPECT_EQ(dialog->width(), without.width()) << "it has as many lines as it takes";
  EXPECT_GE(notice().height(), notice().heightForWidth(notice().width()));
  EXPECT_EQ(dialog->height(), without.height() + strip()->height());
  expectNothingIsCut(*dialog);
  const auto rightOf = [&](const char* name) {
    auto& button = find<QPushButton>(name);
    return button.mapTo(dialog.get(), button.rect().topRight()).x();
  };
  EXPECT_EQ(rightOf("btnCloseNotice"), rightOf("btnClose")) << "below each other";
  const QImage picture = strip()->grab().toImage();
  EXPECT_EQ(picture.pixel(2, 0), 0xFF6886B4) << "its border";
  EXPECT_EQ(picture.pixel(2, picture.height() / 2), 0xFF2F384E) << "its background";
}

TEST_F(CHotkeySettingDlgNoticeTest, GoesWhenItIsClosed) {
  dialog->tellDroppedKeys(reportOf(2));
  ASSERT_NO_FATAL_FAILURE(show());
  const QSize with = dialog->size();
  EXPECT_TRUE(tabOrder(*dialog).contains(QStringLiteral("btnCloseNotice")));
  auto& close = find<QPushButton>("btnCloseNotice");
  EXPECT_EQ(close.accessibleName(), close.toolTip());
  EXPECT_FALSE(close.toolTip().isEmpty());
  close.setFocus();
  QTest::keyClick(&close, Qt::Key_Return);
  EXPECT_TRUE(strip()->isVisible()) << "Return is no click in this dialog";
  QTest::keyClick(&close, Qt::Key_Space);
  QCoreApplication::processEvents();
  EXPECT_FALSE(strip()->isVisible());
  EXPECT_LT(dialog->height(), with.height());
  dialog->hide();
  dialog->show();
  EXPECT_FALSE(strip()->isVisible());
}

}  // namespace
}  // namespace brennet::test
