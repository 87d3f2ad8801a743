// The second opening of the settings dialog beside the first: what the first one leaves, such as
// fonts and pictures, may help the second, and must not get in its way.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QProcess>

#include <array>

#include "bench/ui/Opening.h"

namespace brennet::bench {
namespace {

// Seconds of the first and the second opening in a process of its own; zeros where it fails.
std::array<double, 2> openTwiceElsewhere() {
  QProcess process;
  process.start(QCoreApplication::applicationFilePath(), {QLatin1String(kOpenTwice)});
  process.waitForFinished();
  const QList<QByteArray> lines = process.readAllStandardOutput().split('\n');
  return lines.size() < 2 ? std::array<double, 2>{}
                          : std::array<double, 2>{lines[0].toDouble(), lines[1].toDouble()};
}

void open(benchmark::State& state, std::size_t which) {
  for ([[maybe_unused]] auto _ : state) {
    const double seconds = openTwiceElsewhere()[which];
    if (seconds == 0) state.SkipWithError("the dialog was not opened");
    state.SetIterationTime(seconds);
  }
}

constexpr int kProcesses = 10;

BENCHMARK_CAPTURE(open, first, 0)
    ->Name("openAgain/first/all")
    ->UseManualTime()
    ->Iterations(kProcesses);
BENCHMARK_CAPTURE(open, second, 1)
    ->Name("openAgain/brennet/all")
    ->UseManualTime()
    ->Iterations(kProcesses);

}  // namespace
}  // namespace brennet::bench
