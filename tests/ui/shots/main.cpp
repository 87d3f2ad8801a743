// Takes pictures of the windows, without a screen: brennet-shots FOLDER
// There is one for each window, language and density of screen: NAME.zh_CN.png,
// NAME.zh_CN@1.5x.png, NAME.zh_CN@2x.png, NAME.en.png and so on. The fonts are those of the set
// "wqy", unless BRENNET_TEST_FONTS names another. For each screen of players on which the settings
// scroll, there is a picture of that as well: dialog-1024x768.en.png.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTranslator>

#include <cstdio>

#include "tests/support/World.h"
#include "tests/ui/ScopedColors.h"
#include "tests/ui/fonts/TestFonts.h"
#include "tests/ui/screens/PlayersScreens.h"
#include "tests/ui/shots/Shots.h"

namespace {

using brennet::shots::Shot;

std::unique_ptr<QWidget> show(const Shot& shot) {
  std::unique_ptr<QWidget> window = shot.make();
  window->show();
  QApplication::setActiveWindow(window.get());
  brennet::test::settleLayouts();
  return window;
}

bool save(QWidget& window, const QString& file) {
  if (window.grab().save(file)) return true;
  std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(file));
  return false;
}

// Takes the windows on each screen on which they scroll. Only units matter, so each screen gets as
// many pixels as it has units.
bool takeWhatScrolls(const QDir& folder, const QString& language) {
  for (const brennet::test::ScreenRow& row : brennet::test::playersScreens()) {
    const brennet::test::TestScreens screens({{row.shape.pixels * 100 / row.shape.percent}});
    for (const Shot& shot : brennet::shots::scrolledShots()) {
      const std::unique_ptr<QWidget> window = show(shot);
      if (!brennet::test::isScrolled(*window)) continue;
      const QString file =
          QStringLiteral("%1-%2.%3.png").arg(shot.name, QLatin1String(row.name), language);
      if (!save(*window, folder.filePath(file))) return false;
    }
  }
  return true;
}

bool takeAll(const QList<Shot>& shots, const QDir& folder, const QString& language,
             const QString& suffix) {
  QTranslator catalogue;
  if (!catalogue.load(QStringLiteral(BRENNET_TRANSLATIONS "/brennet_%1.qm").arg(language))) {
    std::fprintf(stderr, "there is no catalogue for %s\n", qUtf8Printable(language));
    return false;
  }
  QCoreApplication::installTranslator(&catalogue);
  for (const Shot& shot : shots) {
    const QString file = QStringLiteral("%1.%2%3.png").arg(shot.name, language, suffix);
    if (!save(*show(shot), folder.filePath(file))) return false;
  }
  return !suffix.isEmpty() || takeWhatScrolls(folder, language);
}

// Qt reads the density when an application starts, so each density needs an application.
bool takeAtScale(const char* scale, int argc, char** argv) {
  qputenv("QT_SCALE_FACTOR", scale);
  const QApplication application(argc, argv);
  if (!brennet::test::hasFontsOfTheSet()) return false;
  QApplication::setStyle(QStringLiteral("fusion"));
  const brennet::test::TestScreens screens({{QSize(1920, 1080) * QByteArray(scale).toDouble()}});
  // The size in a host on Windows.
  QFont font = QApplication::font();
  font.setPointSizeF(9);
  QApplication::setFont(font);
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  const QList<Shot> shots = brennet::shots::basicShots() + brennet::shots::boxShots() +
                            brennet::shots::chatShots() + brennet::shots::controlShots() +
                            brennet::shots::dialogShots() + brennet::shots::dota7Shots() +
                            brennet::shots::keyMapShots() + brennet::shots::transferShots() +
                            brennet::shots::wheelShots();
  const QString suffix =
      qstrcmp(scale, "1") == 0 ? QString() : QStringLiteral("@%1x").arg(QLatin1String(scale));
  for (const char* const language : {"zh_CN", "en"}) {
    if (!takeAll(shots, folder, QLatin1String(language), suffix)) return false;
  }
  // As they are where the system is set to high contrast.
  for (const brennet::test::Colors& colors : brennet::test::kColors) {
    if (!colors.areSystems || !suffix.isEmpty()) continue;
    const brennet::test::ScopedColors scoped(colors);
    const QString name = QLatin1Char('-') + QLatin1String(colors.name);
    if (!takeAll(shots, folder, QStringLiteral("en"), name)) return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
    std::fprintf(stderr, "usage: brennet-shots FOLDER\n");
    return 2;
  }
  brennet::test::leaveTheCallersWorld();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // They are to show Chinese letters.
  if (qEnvironmentVariableIsEmpty("BRENNET_TEST_FONTS")) qputenv("BRENNET_TEST_FONTS", "wqy");
  brennet::test::useFontSetOfTheEnvironment();
  // The DotA 7 windows show what the registry holds.
  const QTemporaryDir folder;
  const QString registry = folder.filePath(QStringLiteral("registry.reg"));
  QFile::copy(QStringLiteral(BRENNET_SAMPLE_DATA "/Tollamere.reg"), registry);
  qputenv("BRENNET_REGISTRY", QFile::encodeName(registry));
  // As in the sample host.
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  for (const char* const scale : {"1", "1.5", "2"}) {
    if (!takeAtScale(scale, argc, argv)) return 1;
  }
  return 0;
}
