// Loading the library into a process that has Qt, up to the interface that a host gets. Each time
// in a process of its own, because what is loaded once is known to the system afterwards.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLibrary>
#include <QProcess>

#include <chrono>
#include <cstdio>

#include "brennet/IBrennet.h"

namespace {

constexpr char kLoad[] = "--load";

// Loads the library and prints the seconds that it took. Returns the exit status.
int loadHere() {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point begin = Clock::now();
  QLibrary library(QStringLiteral(BRENNET_LIBRARY));
  const auto getPtr =
      reinterpret_cast<brennet::GetBrennetPtrFunction>(library.resolve("GetBrennetPtr"));
  if (getPtr == nullptr || getPtr() == nullptr) return 1;
  std::printf("%.9f\n", std::chrono::duration<double>(Clock::now() - begin).count());
  return 0;
}

void loadElsewhere(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(kLoad)});
    process.waitForFinished();
    const double seconds = process.readAllStandardOutput().toDouble();
    if (seconds == 0) state.SkipWithError("the library was not loaded");
    state.SetIterationTime(seconds);
  }
}

constexpr int kProcesses = 20;

BENCHMARK(loadElsewhere)
    ->Name("loadLibrary/brennet/to GetBrennetPtr")
    ->UseManualTime()
    ->Iterations(kProcesses);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  const QApplication application(argc, argv);
  if (QCoreApplication::arguments().contains(QLatin1String(kLoad))) return loadHere();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
