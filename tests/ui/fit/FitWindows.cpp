#include "tests/ui/fit/FitWindows.h"

#include <QApplication>
#include <QTest>

#include "ui/CHotkeySettingDlg.h"
#include "ui/window/CPageScroller.h"

namespace brennet::test {
namespace {

bool isWhollySeen(const QWidget& widget) {
  return (QRegion(widget.rect()) - widget.visibleRegion()).isEmpty();
}

// A page that scrolls may be too small for the whole field; it also keeps some room around it.
bool isSeenAsFarAsItCanBe(const QWidget& widget, const QWidget& window) {
  const auto* const scroller = window.findChild<CPageScroller*>();
  if (scroller == nullptr || !scroller->isAncestorOf(&widget)) return isWhollySeen(widget);
  const QSize room = scroller->viewport()->size() - QSize(30, 30);
  const QSize seen = widget.visibleRegion().boundingRect().size();
  return seen.expandedTo(widget.size().boundedTo(room)) == seen;
}

}  // namespace

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
  settleLayouts();
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
