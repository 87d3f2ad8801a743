// What holds for the look of every page: nothing is cut, whatever the size of letters and the
// length of texts, and showing other settings costs no new look.

#include <gtest/gtest.h>

#include <QApplication>
#include <QVBoxLayout>

#include "model/HotkeyConfig.h"
#include "model/RecommendedScheme.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/StyleSheet.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/CBasicSettingWidget.h"
#include "ui/pages/CChatRouletteSettingWidget.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/ChatKeySettingWidget.h"

namespace brennet::test {
namespace {

using Make = QWidget* (*)(HotkeyConfig&, QWidget*);

template <class Page>
QWidget* make(HotkeyConfig& config, QWidget* parent) {
  return new Page(config, parent);
}
template <>
QWidget* make<COrrerySettingDlg>(HotkeyConfig& /*config*/, QWidget* parent) {
  return new COrrerySettingDlg(parent);
}

struct PageRow {
  const char* name;
  Make make;
};
const PageRow kPages[] = {
    {"basic", make<CBasicSetting7Widget>},      {"older basic", make<CBasicSettingWidget>},
    {"advanced", make<CAdvancedSettingWidget>}, {"chat wheel", make<CChatRouletteSettingWidget>},
    {"quick chat", make<ChatKeySettingWidget>}, {"Orrery", make<COrrerySettingDlg>},
};

class PagesLook : public testing::Test {
 protected:
  ~PagesLook() override { QApplication::setFont(font_); }

  // The page in a window in the skin, as large as it asks for.
  void checkAll() {
    for (const PageRow& row : kPages) {
      SCOPED_TRACE(row.name);
      QWidget window;
      auto* const layout = new QVBoxLayout(&window);
      QWidget* const page = row.make(config_, &window);
      page->setWindowFlags(Qt::Widget);
      layout->addWidget(page);
      loadStyleSheet(window, QStringLiteral(":/skin/war3key.qss"));
      window.resize(window.sizeHint());
      window.show();
      QCoreApplication::processEvents();
      expectNothingIsCut(*page);
    }
  }

  void checkAllSizes() {
    for (const int percent : {100, 125, 150, 200}) {
      SCOPED_TRACE(percent);
      QFont font = font_;
      font.setPointSizeF(9.0 * percent / 100);
      QApplication::setFont(font);
      checkAll();
    }
  }

  const QFont font_ = QApplication::font();
  HotkeyConfig config_;
};

TEST_F(PagesLook, HasRoomForLettersOfAllSizes) {
  checkAllSizes();
}

TEST_F(PagesLook, HasRoomForTextsHalfAsLongAgain) {
  const LongerTexts longer;
  checkAllSizes();
}

// Counts what makes the style look at a widget anew.
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

TEST(TheBasicPage, KeepsItsLookWhenItShowsAnotherScheme) {
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
  page->refresh();
  QCoreApplication::processEvents();
  EXPECT_EQ(restyled.count, 0);
  window.setStyleSheet(QString());
  EXPECT_GT(restyled.count, 0) << "it would be seen";
}

}  // namespace
}  // namespace brennet::test
