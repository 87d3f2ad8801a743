// Takes pictures of the windows, without a screen: brennet-shots FOLDER
// Each is taken in its own size, NAME.png, and as a screen of double density shows it, NAME@2x.png.

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QPixmap>

#include <cstdio>

#include "tests/ui/shots/Shots.h"

namespace {

using brennet::shots::Shot;

bool take(const Shot& shot, const QDir& folder, int scale) {
  const std::unique_ptr<QWidget> window = shot.make();
  window->show();
  QApplication::setActiveWindow(window.get());
  QCoreApplication::processEvents();
  QPixmap picture(window->size() * scale);
  picture.setDevicePixelRatio(scale);
  window->render(&picture);
  const QString suffix = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
  const QString file = folder.filePath(shot.name + suffix + QStringLiteral(".png"));
  if (picture.save(file)) return true;
  std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(file));
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
    std::fprintf(stderr, "usage: brennet-shots FOLDER\n");
    return 2;
  }
  QApplication::setStyle(QStringLiteral("fusion"));
  // As large as a host on Windows has it: 9 points.
  QFont font = QApplication::font();
  font.setPointSizeF(9);
  QApplication::setFont(font);
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  const QList<Shot> shots = brennet::shots::basicShots() + brennet::shots::boxShots() + brennet::shots::chatShots() +
                            brennet::shots::controlShots() + brennet::shots::wheelShots();
  for (const Shot& shot : shots) {
    for (const int scale : {1, 2}) {
      if (!take(shot, folder, scale)) return 1;
    }
  }
  return 0;
}
