// Undoing and redoing a step in the settings dialog up to the repainted window, beside choosing
// another setting group, which shows as much; and taking note of an event that changed nothing,
// beside a plain comparison.

#include <benchmark/benchmark.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QPushButton>

#include "bench/ui/Opening.h"
#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/history/EditHistory.h"

namespace brennet::bench {
namespace {

// The dialog after one step: another setting group was chosen.
struct ShownDialog {
  Dota7KeyInfoManager manager;
  CHotkeySettingDlg dialog{settings(), manager};

  ShownDialog() {
    dialog.show();
    paint();
    groups().setCurrentIndex(1 - groups().currentIndex());
    for (int i = 0; i < 2; ++i) QCoreApplication::processEvents();  // painted, then noted
  }
  QComboBox& groups() { return *dialog.findChild<QComboBox*>(); }
  QPushButton& button(const char* name) {
    return *dialog.findChild<QPushButton*>(QLatin1String(name));
  }
};

void undo(benchmark::State& state) {
  ShownDialog shown;
  QPushButton* const buttons[] = {&shown.button("btnUndo"), &shown.button("btnRedo")};
  if (!buttons[0]->isEnabled()) return state.SkipWithError("there is no step");
  unsigned next = 0;
  for ([[maybe_unused]] auto _ : state) {
    buttons[next++ % 2]->click();
    paint();
  }
}
BENCHMARK(undo)->Name("step/brennet/repainted");

void choose(benchmark::State& state) {
  ShownDialog shown;
  int group = 0;
  for ([[maybe_unused]] auto _ : state) {
    shown.groups().setCurrentIndex(++group % 2);
    paint();
  }
}
BENCHMARK(choose)->Name("step/choose/repainted");

void note(benchmark::State& state) {
  HotkeyConfig config = settings();
  Dota7KeyInfoManager manager;
  EditHistory history(config, manager);
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(history.note());
}
BENCHMARK(note)->Name("note/brennet/unchanged");

void compare(benchmark::State& state) {
  const HotkeyConfig config = settings();
  const HotkeyConfig other = settings();
  for ([[maybe_unused]] auto _ : state) {
    for (int i = 0; i < HotkeyConfig::kSchemes; ++i) {
      benchmark::DoNotOptimize(config.scheme(i) == other.scheme(i));
    }
  }
}
BENCHMARK(compare)->Name("note/compare/unchanged");

}  // namespace
}  // namespace brennet::bench
