#include "tests/ui/fit/FitWindows.h"

#include <QApplication>
#include <QScrollBar>
#include <QTest>

#include "ui/CHotkeySettingDlg.h"
#include "ui/window/CPageScroller.h"

namespace brennet::test {
namespace {

bool isWhollySeen(const QWidget& widget) {
  return (QRegion(widget.rect()) - widget.visibleRegion()).isEmpty();
}

// A field may be wider than what its page can show of it, with a little of what is around.
bool isSeenAsFarAsItCanBe(const QWidget& widget, const QWidget& window) {
  const auto* const scroller = window.findChild<CPageScroller*>();
  if (scroller == nullptr || !scroller->isAncestorOf(&widget)) return isWhollySeen(widget);
  const QSize room = scroller->viewport()->size() - QSize(30, 30);
  const QSize seen = widget.visibleRegion().boundingRect().size();
  return seen.expandedTo(widget.size().boundedTo(room)) == seen;
}

}  // namespace

const std::vector<ScreenRow>& playersScreens() {
  static const std::vector<ScreenRow> kRows = {
      {"1024x768", {{1024, 768}}},
      {"1280x720", {{1280, 720}}},
      {"1366x768", {{1366, 768}}},
      {"1920x1080", {{1920, 1080}}},
      {"1920x1080 at 125 %", {{1920, 1080}, 125}},
      {"1920x1080 at 150 %", {{1920, 1080}, 150}},
      {"1920x1080 at 175 %", {{1920, 1080}, 175}},
      {"2560x1440 at 150 %", {{2560, 1440}, 150}},
      {"3840x2160 at 200 %", {{3840, 2160}, 200}},
      {"3840x2160 at 250 %", {{3840, 2160}, 250}},
  };
  return kRows;
}

FitWindows::FitWindows() : font_(QApplication::font()) {
  QFont font = font_;
  font.setPointSizeF(9);
  QApplication::setFont(font);
  const QString name = QStringLiteral("brennet_%1.qm").arg(QLatin1String(GetParam()));
  EXPECT_TRUE(catalogue_.load(name, QStringLiteral(BRENNET_TRANSLATIONS)));
  QCoreApplication::installTranslator(&catalogue_);
}

FitWindows::~FitWindows() {
  QApplication::setFont(font_);
}

std::unique_ptr<CHotkeySettingDlg> FitWindows::showDialog(bool isDota7) {
  auto dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
  if (isDota7) dialog->onSwitchDota7KeySettingDlg();
  showWindow(*dialog);
  return dialog;
}

void FitWindows::showWindow(QWidget& window) {
  window.show();
  QApplication::setActiveWindow(&window);
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  // Scroll bars come when layouts inside each other have told each other of their sizes.
  for (int layouts = 0; layouts < 4; ++layouts) QCoreApplication::processEvents();
}

bool isScrolled(const QWidget& window) {
  const auto& scroller = *window.findChild<CPageScroller*>();
  return scroller.horizontalScrollBar()->isVisible() || scroller.verticalScrollBar()->isVisible();
}

void expectInside(const QWidget& window, const QRect& available,
                  const std::vector<const char*>& buttons) {
  EXPECT_TRUE(available.contains(window.frameGeometry()))
      << window.x() << ", " << window.y() << ": " << window.width() << " x " << window.height()
      << " of " << available.width() << " x " << available.height();
  for (const char* const name : buttons) {
    const auto* const button = window.findChild<QWidget*>(QLatin1String(name));
    ASSERT_NE(button, nullptr) << name;
    EXPECT_TRUE(button->isVisible() && isWhollySeen(*button)) << name;
  }
}

void expectFocusIsShown(QWidget& window) {
  int count = 0;
  for (QWidget* control : window.findChildren<QWidget*>()) {
    if ((control->focusPolicy() & Qt::TabFocus) == 0 || !control->isVisibleTo(&window)) continue;
    if (control->window() != &window || !control->isEnabled()) continue;
    control->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(isSeenAsFarAsItCanBe(*control, window)) << qPrintable(control->objectName());
    ++count;
  }
  EXPECT_GT(count, 0);
}

}  // namespace brennet::test
