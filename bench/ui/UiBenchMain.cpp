// The windows are measured without a screen, in the style and with fonts that they are shown with
// in tests.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "bench/ui/Opening.h"
#include "tests/ui/fonts/TestFonts.h"

namespace {

// What a page says of each key, and what the platform says of itself, is not to be measured.
void ignoreMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/,
                   const QString& /*text*/) {}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  brennet::test::useFontSet("wqy");
  qInstallMessageHandler(ignoreMessage);
  const QApplication application(argc, argv);
  if (!brennet::test::hasFontsOfTheSet()) return 1;
  QApplication::setStyle(QStringLiteral("fusion"));
  QApplication::setQuitOnLastWindowClosed(false);
  if (QCoreApplication::arguments().contains(QLatin1String(brennet::bench::kOpenTwice))) {
    brennet::bench::openTwice();
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
