#include "GameSide.h"

#include <QDir>
#include <QFile>
#include <QOperatingSystemVersion>
#include <QTemporaryDir>
#include <QTextCodec>
#include <cstdlib>

namespace {

const QString kPreferences = QStringLiteral("Documents/Warcraft III/War3Preferences.txt");
// The registry's editor, called by the shell; the file is in the current folder.
constexpr const char* kExportRegistry =
    "reg export HKEY_CURRENT_USER\\Software\\Tollamere export.reg >nul 2>&1";

// The text of a file in UTF-16 or UTF-8; empty if it cannot be read.
QString readText(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.readAll();
  return QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName("UTF-8"))->toUnicode(bytes);
}

// The registry as its editor exports it. On systems other than Windows a file of that kind is the
// registry.
QString registryText() {
  if (QOperatingSystemVersion::currentType() != QOperatingSystemVersion::Windows) {
    return readText(qEnvironmentVariable("BRENNET_REGISTRY"));
  }
  // The shell takes names in the system's code page alone, so the file's folder is where it works.
  // QProcess would take any, but hears of the end in another thread, at times after it is gone.
  const QTemporaryDir folder;
  const QString before = QDir::currentPath();
  if (!folder.isValid() || !QDir::setCurrent(folder.path())) return {};
  const bool isExported = std::system(kExportRegistry) == 0;
  QDir::setCurrent(before);
  return isExported ? readText(folder.filePath(QStringLiteral("export.reg"))) : QString();
}

}  // namespace

Sections readRegistryDefaults(const QString& dataFolder) {
  return parseSections(readText(QDir(dataFolder).filePath(QStringLiteral("Tollamere.reg"))));
}

GameSide readGameSide() {
  return {.preferences = parseSections(readText(QDir::home().filePath(kPreferences))),
          .registry = parseSections(registryText())};
}
