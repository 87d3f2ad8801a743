#include <QVBoxLayout>

#include "tests/ui/shots/Shots.h"
#include "ui/window/StyleSheet.h"

namespace brennet::shots {

std::unique_ptr<QWidget> inDialog(const std::function<QWidget*(QWidget*)>& makePage) {
  auto window = std::make_unique<QWidget>();
  QPalette palette;
  palette.setColor(QPalette::Window, QColor(0x1e, 0x24, 0x2f));
  window->setPalette(palette);
  auto* const layout = new QVBoxLayout(window.get());
  layout->addWidget(makePage(window.get()));
  loadStyleSheet(*window, QStringLiteral(":/skin/war3key.qss"));
  // By themselves, windows would not become that large on so small a screen.
  window->resize(window->sizeHint());
  return window;
}

}  // namespace brennet::shots
