// Takes pictures of the windows, without a screen: brennet-shots FOLDER
// Each is taken in each language, in its own size and as a screen of double density shows it:
// NAME.zh_CN.png, NAME.zh_CN@2x.png, NAME.en.png, NAME.en@2x.png. Chinese texts take a font that
// has their characters, such as that of Debian's package fonts-wqy-microhei.

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QPixmap>
#include <QTranslator>

#include <cstdio>

#include "tests/ui/shots/Shots.h"

namespace {

using brennet::shots::Shot;

bool take(const Shot& shot, const QDir& folder, const QString& language, int scale) {
  const std::unique_ptr<QWidget> window = shot.make();
  window->show();
  QApplication::setActiveWindow(window.get());
  QCoreApplication::processEvents();
  QPixmap picture(window->size() * scale);
  picture.setDevicePixelRatio(scale);
  window->render(&picture);
  const QString suffix = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
  const QString file =
      folder.filePath(QStringLiteral("%1.%2%3.png").arg(shot.name, language, suffix));
  if (picture.save(file)) return true;
  std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(file));
  return false;
}

bool takeAll(const QList<Shot>& shots, const QDir& folder, const QString& language) {
  QTranslator catalogue;
  if (!catalogue.load(QStringLiteral(BRENNET_TRANSLATIONS "/brennet_%1.qm").arg(language))) {
    std::fprintf(stderr, "there is no catalogue for %s\n", qUtf8Printable(language));
    return false;
  }
  QCoreApplication::installTranslator(&catalogue);
  for (const Shot& shot : shots) {
    for (const int scale : {1, 2}) {
      if (!take(shot, folder, language, scale)) return false;
    }
  }
  return true;
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
  const QList<Shot> shots = brennet::shots::basicShots() + brennet::shots::boxShots() +
                            brennet::shots::chatShots() + brennet::shots::controlShots() +
                            brennet::shots::dialogShots() + brennet::shots::dota7Shots() +
                            brennet::shots::wheelShots();
  for (const char* const language : {"zh_CN", "en"}) {
    if (!takeAll(shots, folder, QLatin1String(language))) return 1;
  }
  return 0;
}
