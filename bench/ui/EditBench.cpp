// What happens in a page that is shown, beside the same texts set directly.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <vector>

#include "bench/model/AllocationCount.h"
#include "model/HotkeyConfig.h"
#include "model/RecommendedScheme.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/window/StyleSheet.h"

namespace brennet::bench {
namespace {

// A page that is shown, and two schemes that have nothing in common.
struct ShownPage {
  HotkeyConfig config;
  QWidget window;
  CBasicSetting7Widget* page = nullptr;

  ShownPage() {
    recommend(*config.editableScheme(0));
    config.editableScheme(1)->HeroSkillKey.fill(KeyWord(0x91, KeyWord::kCtrl));
    loadStyleSheet(window, QStringLiteral(":/skin/war3key.qss"));
    page = new CBasicSetting7Widget(config, &window);
    window.show();
    QCoreApplication::processEvents();
  }
};

void refresh(benchmark::State& state) {
  ShownPage shown;
  unsigned scheme = 0;
  for ([[maybe_unused]] auto _ : state) {
    shown.config.setIndex(++scheme % 2);
    shown.page->showSettings();
  }
}
BENCHMARK(refresh)->Name("refresh/brennet/basic");

void setTexts(benchmark::State& state) {
  ShownPage shown;
  const auto fields = shown.window.findChildren<QLineEdit*>();
  std::vector<QString> texts[2];
  for (unsigned scheme = 0; scheme < 2; ++scheme) {
    shown.config.setIndex(scheme);
    shown.page->showSettings();
    for (const QLineEdit* const field : fields) texts[scheme].push_back(field->text());
  }
  std::size_t scheme = 0;
  for ([[maybe_unused]] auto _ : state) {
    const auto& chosen = texts[++scheme % 2];
    for (int i = 0; i < fields.size(); ++i) fields[i]->setText(chosen[static_cast<std::size_t>(i)]);
  }
}
BENCHMARK(setTexts)->Name("refresh/setText/basic");

// Two keys in turn; `show` gets each press and the field. "news" counts what is allocated with
// operator new: by Qt for its events, and by us if we did.
template <class Page, class Show>
void press(benchmark::State& state, Show show) {
  HotkeyConfig config;
  QWidget window;
  loadStyleSheet(window, QStringLiteral(":/skin/war3key.qss"));
  Page page(config, &window);
  window.show();
  QCoreApplication::processEvents();
  auto& field = *page.template findChild<QLineEdit*>(QStringLiteral("edtShowFBlood"));
  const auto modifiers = Qt::ControlModifier | Qt::AltModifier;
  QKeyEvent keys[] = {{QEvent::KeyPress, Qt::Key_F5, modifiers, 0, 0x74, 0},
                      {QEvent::KeyPress, Qt::Key_F6, modifiers, 0, 0x75, 0}};
  std::size_t count = 0;
  const std::size_t before = allocationCount();
  for ([[maybe_unused]] auto _ : state) show(field, keys[++count % 2]);
  state.counters["news"] = benchmark::Counter(static_cast<double>(allocationCount() - before),
                                              benchmark::Counter::kAvgIterations);
}

template <class Page>
void pressInPage(benchmark::State& state) {
  press<Page>(state,
              [](QLineEdit& field, QKeyEvent& key) { QApplication::sendEvent(&field, &key); });
}
BENCHMARK(pressInPage<CBasicSetting7Widget>)->Name("keyPress/brennet/basic");
BENCHMARK(pressInPage<CAdvancedSettingWidget>)->Name("keyPress/brennet/advanced");

template <class Page>
void pressSetText(benchmark::State& state) {
  const QString texts[] = {QStringLiteral("CTRL +Alt + F5"), QStringLiteral("CTRL +Alt + F6")};
  press<Page>(state, [&texts](QLineEdit& field, QKeyEvent& key) {
    field.setText(texts[key.key() == Qt::Key_F5 ? 0 : 1]);
  });
}
BENCHMARK(pressSetText<CBasicSetting7Widget>)->Name("keyPress/setText/basic");
BENCHMARK(pressSetText<CAdvancedSettingWidget>)->Name("keyPress/setText/advanced");

}  // namespace
}  // namespace brennet::bench
