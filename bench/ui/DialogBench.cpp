// Opening the settings dialog up to its first painted frame, beside the same widgets made bare, in
// the same style sheet; the shares of its steps; and what a switch of schemes costs.

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <chrono>
#include <memory>
#include <vector>

#include "bench/ui/BarePage.h"
#include "bench/ui/Opening.h"
#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/CBasicSettingWidget.h"
#include "ui/pages/CChatRouletteSettingWidget.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"
#include "ui/window/StyleSheet.h"

namespace brennet::bench {
namespace {

const QString kSheet = QStringLiteral(":/skin/war3key.qss");

void open(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    CHotkeySettingDlg dialog(settings(), manager());
    dialog.show();
    paint();
  }
}
BENCHMARK(open)->Name("openDialog/brennet/all");

// The same, with only one of its steps counted.
enum class Step { Forms, Polish, FirstPaint };

void openStep(benchmark::State& state, Step counted) {
  using Clock = std::chrono::steady_clock;
  for ([[maybe_unused]] auto _ : state) {
    const Clock::time_point begin = Clock::now();
    CHotkeySettingDlg dialog(settings(), manager());
    const Clock::time_point made = Clock::now();
    dialog.show();
    const Clock::time_point polished = Clock::now();
    paint();
    const Clock::time_point painted = Clock::now();
    const Clock::duration steps[] = {made - begin, polished - made, painted - polished};
    const std::chrono::duration<double> time = steps[static_cast<std::size_t>(counted)];
    state.SetIterationTime(time.count());
  }
}
BENCHMARK_CAPTURE(openStep, forms, Step::Forms)
    ->Name("openDialogSteps/brennet/forms")
    ->UseManualTime();
BENCHMARK_CAPTURE(openStep, polish, Step::Polish)
    ->Name("openDialogSteps/brennet/polish")
    ->UseManualTime();
BENCHMARK_CAPTURE(openStep, firstPaint, Step::FirstPaint)
    ->Name("openDialogSteps/brennet/firstPaint")
    ->UseManualTime();

// The dialog with everything that it keeps hidden.
class BareDialog {
 public:
  BareDialog() {
    const CHotkeySettingDlg dialog(settings(), manager());
    add(dialog);
    const CAdvancedSettingWidget advanced(settings(), nullptr);
    const CBasicSettingWidget older(settings(), nullptr);
    const CChatRouletteSettingWidget wheel(settings(), nullptr);
    const ChatKeySettingWidget chat(settings(), nullptr);
    const Dota7ChatKeySettingWidget dota7Chat(manager(), nullptr);
    const COrrerySettingDlg orrery;
    for (const QWidget* const hidden : std::initializer_list<const QWidget*>{
             &advanced, &older, &wheel, &chat, &dota7Chat, &orrery}) {
      add(*hidden);
    }
  }

  [[nodiscard]] std::unique_ptr<QWidget> make() const {
    std::unique_ptr<QWidget> dialog(recipes_.front().make(nullptr));
    for (std::size_t i = 1; i < recipes_.size(); ++i) recipes_[i].make(dialog.get())->hide();
    return dialog;
  }

 private:
  void add(const QWidget& window) { recipes_.emplace_back(window); }

  std::vector<PageRecipe> recipes_;
};

void openBare(benchmark::State& state) {
  const BareDialog bare;
  for ([[maybe_unused]] auto _ : state) {
    const std::unique_ptr<QWidget> dialog = bare.make();
    loadStyleSheet(*dialog, kSheet);
    dialog->show();
    paint();
  }
}
BENCHMARK(openBare)->Name("openDialog/bare/all");

// From one scheme to a repainted page; a frame of a 60 Hz screen is 16.7 ms.
void switchScheme(benchmark::State& state) {
  CHotkeySettingDlg dialog(settings(), manager());
  dialog.show();
  paint();
  int scheme = 0;
  for ([[maybe_unused]] auto _ : state) {
    dialog.onCurrentIndexChanged_HotkeySetting(++scheme % 2);
    paint();
  }
}
BENCHMARK(switchScheme)->Name("switchScheme/brennet/repainted");

}  // namespace
}  // namespace brennet::bench
