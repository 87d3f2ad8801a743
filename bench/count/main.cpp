// Does each job whose instructions are counted. count.py runs it under valgrind and compares what
// it counts with bench/counts.json.

#include <QApplication>

#include "bench/count/Jobs.h"

int main(int argc, char** argv) {
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  brennet::bench::countMarkup();
  brennet::bench::countSettings();
  const QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("fusion"));
  brennet::bench::countDialog();
  return 0;
}
