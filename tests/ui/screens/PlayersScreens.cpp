#include "tests/ui/screens/PlayersScreens.h"

#include <QCoreApplication>
#include <QScrollArea>
#include <QScrollBar>

namespace brennet::test {

const std::vector<ScreenRow>& playersScreens() {
  static const std::vector<ScreenRow> kRows = {
      {"1024x768", {{1024, 768}}},
      {"1280x720", {{1280, 720}}},
      {"1366x768", {{1366, 768}}},
      {"1920x1080", {{1920, 1080}}},
      {"1920x1080-125", {{1920, 1080}, 125}},
      {"1920x1080-150", {{1920, 1080}, 150}},
      {"1920x1080-175", {{1920, 1080}, 175}},
      {"2560x1440-150", {{2560, 1440}, 150}},
      {"3840x2160-200", {{3840, 2160}, 200}},
      {"3840x2160-250", {{3840, 2160}, 250}},
  };
  return kRows;
}

bool isScrolled(const QWidget& window) {
  for (const auto* const area : window.findChildren<QScrollArea*>()) {
    const bool hasBars =
        area->horizontalScrollBar()->isVisible() || area->verticalScrollBar()->isVisible();
    if (hasBars) return true;
  }
  return false;
}

void settleLayouts() {
  for (int layouts = 0; layouts < 4; ++layouts) QCoreApplication::processEvents();
}

}  // namespace brennet::test
