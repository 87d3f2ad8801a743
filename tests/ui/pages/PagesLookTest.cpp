// What holds for the look of every page: nothing is cut, whatever the size of letters and the
// length of texts, and no widget is styled again to show other settings.

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTranslator>
#include <QVBoxLayout>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "model/RecommendedScheme.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/ui/AllWindows.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/window/CMsgBox.h"
#include "ui/window/StyleSheet.h"

namespace brennet::test {
namespace {

class PagesLook : public testing::Test {
 protected:
  ~PagesLook() override { QApplication::setFont(font_); }

  // Checks a page in a window with the skin, at the window's preferred size and at its smallest.
  void checkPage(const WindowRow& row) {
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    QWidget* const page = row.make(config_, manager_, &window).release();  // the window has it
    page->setWindowFlags(Qt::Widget);
    layout->addWidget(page);
    loadStyleSheet(window, QStringLiteral(":/skin/war3key.qss"));
    for (const bool isSmallest : {false, true}) {
      SCOPED_TRACE(isSmallest ? "as small as it can be" : "as it comes");
      window.resize(isSmallest ? window.minimumSizeHint() : window.sizeHint());
      window.show();
      // Inside a scroller, one layout tells the next of its size by an event.
      for (int layouts = 0; layouts < 4; ++layouts) QCoreApplication::processEvents();
      expectNothingIsCut(*page);
    }
  }

  // The message box has only one size, and wraps its text.
  static void checkBox() {
    SCOPED_TRACE("box");
    const auto text = [](const char* id) { return QCoreApplication::translate("QObject", id); };
    CMsgBox box(QMessageBox::Warning, text("IDS_TITLE"), text("IDS_GROUP_KEY_USED"),
                QMessageBox::Ok | QMessageBox::Cancel);
    box.setButtonTexts();
    box.show();
    QCoreApplication::processEvents();
    expectNothingIsCut(box);
  }

  void checkAllSizes() {
    for (const int percent : {100, 125, 150, 200}) {
      SCOPED_TRACE(percent);
      QFont font = font_;
      font.setPointSizeF(9.0 * percent / 100);
      QApplication::setFont(font);
      checkBox();
      for (const WindowRow& row : allWindows()) {
        SCOPED_TRACE(row.form);
        if (row.isPage) checkPage(row);
      }
    }
  }

  const QFont font_ = QApplication::font();
  const ScopedRegistry registry_;
  HotkeyConfig config_;
  Dota7KeyInfoManager manager_;
};

TEST_F(PagesLook, HasRoomForLettersOfAllSizes) {
  checkAllSizes();
}

TEST_F(PagesLook, HasRoomForTextsHalfAsLongAgain) {
  const LongerTexts longer(150);
  checkAllSizes();
}

TEST_F(PagesLook, HasRoomForTextsTwiceAsLong) {
  const LongerTexts longer(200);
  checkAllSizes();
}

TEST_F(PagesLook, HasRoomForBothLanguages) {
  for (const char* const language : {"en", "zh_CN"}) {
    SCOPED_TRACE(language);
    QTranslator catalogue;  // its destructor removes it from the application
    ASSERT_TRUE(catalogue.load(QStringLiteral("brennet_%1.qm").arg(QLatin1String(language)),
                               QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&catalogue);
    checkAllSizes();
  }
}

TEST(PagesLookCheckForCutTexts, FindsThem) {
  QWidget window;
  QLabel text(QStringLiteral("a text"), &window);
  QLabel other(QStringLiteral("another"), &window);
  window.resize(300, 100);
  text.setGeometry(0, 0, 100, 30);
  other.setGeometry(101, 0, 100, 30);
  window.show();
  expectNothingIsCut(window);
  other.move(99, 0);
  EXPECT_NONFATAL_FAILURE(expectNothingIsCut(window), "overlap");
  other.move(201, 0);
  EXPECT_NONFATAL_FAILURE(expectNothingIsCut(window), "stands out of its parent");
  other.setGeometry(101, 0, 5, 30);
  EXPECT_NONFATAL_FAILURE(expectNothingIsCut(window), "QLabel");
}

// Counts the events that have a widget styled again.
class Restyled : public QObject {
 public:
  int count = 0;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    const auto type = event->type();
    if (type == QEvent::Polish || type == QEvent::StyleChange || type == QEvent::FontChange)
      ++count;
    return false;
  }
};

TEST(PagesLookBasicPage, KeepsItsLookWhenItShowsAnotherScheme) {
  HotkeyConfig config;
  recommend(*config.editableScheme(1));
  config.editableScheme(1)->HeroSkillAutocast.fill(true);
  config.editableScheme(1)->LockMouseFlag = 1;
  QWidget window;
  loadStyleSheet(window, QStringLiteral(":/skin/war3key.qss"));
  auto* const page = new CBasicSetting7Widget(config, &window);
  window.show();
  QCoreApplication::processEvents();
  Restyled restyled;
  for (QWidget* const widget : window.findChildren<QWidget*>()) {
    widget->installEventFilter(&restyled);
  }
  config.setIndex(1);
  page->showSettings();
  QCoreApplication::processEvents();
  EXPECT_EQ(restyled.count, 0);
  window.setStyleSheet(QString());
  EXPECT_GT(restyled.count, 0) << "it would be seen";
}

}  // namespace
}  // namespace brennet::test
