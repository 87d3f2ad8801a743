// Opening the preview of another setting group up to its first painted frame, beside a window of
// the same controls that is given all texts.

#include <benchmark/benchmark.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "bench/ui/Opening.h"
#include "model/HotkeyConfig.h"
#include "ui/pages/SchemeTransferWindow.h"
#include "ui/window/StyleSheet.h"

namespace brennet::bench {
namespace {

const QString kSheet = QStringLiteral(":/skin/war3key.qss");
constexpr QSize kSize(700, 440);

SchemeTransfer transfer() {
  return transferOf(HotkeyScheme(), settings().scheme());
}

void open(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    SchemeTransferWindow window(QStringLiteral("Copy"), {}, {{QStringLiteral("2"), transfer()}},
                                nullptr);
    loadStyleSheet(window, kSheet);
    window.resize(kSize);
    window.show();
    paint();
  }
}
BENCHMARK(open)->Name("openPreview/brennet/all");

void openBare(benchmark::State& state) {
  const std::size_t rows = transfer().rows.size();
  for ([[maybe_unused]] auto _ : state) {
    QWidget window;
    auto* const list = new QTreeWidget(&window);
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel(QStringLiteral("Copy"), &window));
    layout->addWidget(new QComboBox(&window));
    layout->addWidget(list);
    layout->addWidget(new QLabel(QStringLiteral("Changes"), &window));
    layout->addWidget(new QPushButton(QStringLiteral("OK"), &window));
    layout->addWidget(new QPushButton(QStringLiteral("Cancel"), &window));
    list->setColumnCount(4);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    for (std::size_t row = 0; row < rows; ++row) {
      new QTreeWidgetItem(list, {QStringLiteral("Hero skill 1"), QStringLiteral("none"),
                                 QStringLiteral("Alt + Q"), QString()});
    }
    for (int column = 0; column < 4; ++column) list->resizeColumnToContents(column);
    loadStyleSheet(window, kSheet);
    window.resize(kSize);
    window.show();
    paint();
  }
}
BENCHMARK(openBare)->Name("openPreview/bare/all");

}  // namespace
}  // namespace brennet::bench
