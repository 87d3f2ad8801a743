// Opening the map of the keys up to its first painted frame, beside a keyboard that has a button
// for each key, in the same style sheet; and what a press costs while it is open.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QTreeWidget>

#include "bench/ui/Opening.h"
#include "model/HotkeyConfig.h"
#include "ui/keymap/CKeyMapView.h"
#include "ui/keymap/SchemeKeyMap.h"
#include "ui/pages/KeyMapWindow.h"
#include "ui/window/StyleSheet.h"

namespace brennet::bench {
namespace {

const QString kSheet = QStringLiteral(":/skin/war3key.qss");
constexpr QSize kSize(1200, 440);

void open(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    KeyMapWindow window(nullptr);
    loadStyleSheet(window, kSheet);
    window.setMap(keyMapOf(settings().scheme()), false);
    window.resize(kSize);
    window.show();
    paint();
  }
}
BENCHMARK(open)->Name("openKeyMap/brennet/all");

void openButtons(benchmark::State& state) {
  constexpr double kUnit = 35;
  for ([[maybe_unused]] auto _ : state) {
    const KeyMap map = keyMapOf(settings().scheme());
    QWidget window;
    loadStyleSheet(window, kSheet);
    for (const MapKey& key : mapKeys()) {
      auto* const button = new QPushButton(mapLabel(key), &window);
      const QRectF place = key.place();
      button->setGeometry(QRectF(place.topLeft() * kUnit, place.size() * kUnit).toRect());
    }
    auto* const list = new QTreeWidget(&window);
    list->setColumnCount(3);
    list->setGeometry(860, 0, 340, kSize.height());
    for (const MapUse& use : map) new QTreeWidgetItem(list, {use.key, use.what, use.where});
    window.resize(kSize);
    window.show();
    paint();
  }
}
BENCHMARK(openButtons)->Name("openKeyMap/buttons/all");

// From a press to the repainted keyboard; a frame of a 60 Hz screen is 16.7 ms.
void press(benchmark::State& state) {
  KeyMapWindow window(nullptr);
  loadStyleSheet(window, kSheet);
  window.setMap(keyMapOf(settings().scheme()), false);
  window.resize(kSize);
  window.show();
  paint();
  auto& view = *window.findChild<CKeyMapView*>();
  int key = 0;
  for ([[maybe_unused]] auto _ : state) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A + ++key % 26, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &event);
    paint();
  }
}
BENCHMARK(press)->Name("pressOnKeyMap/brennet/repainted");

}  // namespace
}  // namespace brennet::bench
