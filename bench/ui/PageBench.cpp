// Making a page and showing it for the first time, beside a bare page of the same widgets in the
// same style sheet; and what happens in a page, beside the texts set directly.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

#include "bench/model/AllocationCount.h"
#include "bench/ui/BarePage.h"
#include "model/HotkeyConfig.h"
#include "model/RecommendedScheme.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/CBasicSettingWidget.h"
#include "ui/pages/CChatRouletteSettingWidget.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/window/StyleSheet.h"

namespace brennet::bench {
namespace {

HotkeyConfig& settings() {
  static HotkeyConfig config;
  recommend(*config.editableScheme(0));
  config.editableScheme(1)->HeroSkillKey.fill(KeyWord(0x91, KeyWord::kCtrl));
  return config;
}

void showOnce(QWidget& window) {
  window.resize(window.sizeHint());
  window.show();
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

// A page in a window with the sheet, as the dialog has it. The Orrery window brings its own.
template <class Make>
void makeAndShow(benchmark::State& state, Make make) {
  for ([[maybe_unused]] auto _ : state) {
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(make(&window));
    loadStyleSheet(window, QStringLiteral(":/skin/war3key.qss"));
    showOnce(window);
  }
}

template <class Page>
QWidget* newPage(QWidget* parent) {
  return new Page(settings(), parent);
}

template <class Page>
void product(benchmark::State& state) {
  makeAndShow(state, newPage<Page>);
}

template <class Page>
void bare(benchmark::State& state) {
  const std::unique_ptr<QWidget> page(newPage<Page>(nullptr));
  const PageRecipe recipe(*page);
  makeAndShow(state, [&recipe](QWidget* parent) { return recipe.make(parent); });
}

// The basic page brings the Orrery window along, which is made with it and not yet shown.
void bareBasic(benchmark::State& state) {
  const CBasicSetting7Widget page(settings(), nullptr);
  const COrrerySettingDlg orrery;
  const PageRecipe recipe(page);
  const PageRecipe orreryRecipe(orrery);
  makeAndShow(state, [&](QWidget* parent) {
    QWidget* const made = recipe.make(parent);
    auto* const hidden = new QWidget(made, Qt::Tool);
    auto* const layout = new QVBoxLayout(hidden);
    layout->addWidget(orreryRecipe.make(hidden));
    loadStyleSheet(*hidden, QStringLiteral(":/skin/war3key.qss"));
    return made;
  });
}

// A window of its own, with the sheet; the Orrery window brings it along.
template <class Make>
void makeAndShowWindow(benchmark::State& state, Make make) {
  for ([[maybe_unused]] auto _ : state) {
    const std::unique_ptr<QWidget> window(make());
    if (window->styleSheet().isEmpty()) {
      loadStyleSheet(*window, QStringLiteral(":/skin/war3key.qss"));
    }
    showOnce(*window);
  }
}

QWidget* newQuickChat() {
  return new ChatKeySettingWidget(settings(), nullptr);
}

QWidget* newOrrery() {
  return new COrrerySettingDlg;
}

template <QWidget* (*Make)()>
void productWindow(benchmark::State& state) {
  makeAndShowWindow(state, Make);
}

template <QWidget* (*Make)()>
void bareWindow(benchmark::State& state) {
  const std::unique_ptr<QWidget> window(Make());
  window->setStyleSheet(QString());
  const PageRecipe recipe(*window);
  makeAndShowWindow(state, [&recipe] { return recipe.make(nullptr); });
}

BENCHMARK(product<CBasicSetting7Widget>)->Name("firstShow/brennet/basic");
BENCHMARK(bareBasic)->Name("firstShow/bare/basic");
BENCHMARK(product<CBasicSettingWidget>)->Name("firstShow/brennet/basicOlder");
BENCHMARK(bare<CBasicSettingWidget>)->Name("firstShow/bare/basicOlder");
BENCHMARK(product<CAdvancedSettingWidget>)->Name("firstShow/brennet/advanced");
BENCHMARK(bare<CAdvancedSettingWidget>)->Name("firstShow/bare/advanced");
BENCHMARK(product<CChatRouletteSettingWidget>)->Name("firstShow/brennet/chatWheel");
BENCHMARK(bare<CChatRouletteSettingWidget>)->Name("firstShow/bare/chatWheel");
BENCHMARK(productWindow<newQuickChat>)->Name("firstShow/brennet/quickChat");
BENCHMARK(bareWindow<newQuickChat>)->Name("firstShow/bare/quickChat");
BENCHMARK(productWindow<newOrrery>)->Name("firstShow/brennet/orrery");
BENCHMARK(bareWindow<newOrrery>)->Name("firstShow/bare/orrery");

}  // namespace
}  // namespace brennet::bench
