#include "GameSide.h"

#include <QDir>
#include <QFile>
#include <QOperatingSystemVersion>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextCodec>

namespace {

const QString kPreferences = QStringLiteral("Documents/Warcraft III/War3Preferences.txt");
const QString kRegistryKey = QStringLiteral("HKEY_CURRENT_USER\\Software\\Tollamere");

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
  const QTemporaryDir folder;
  const QString file = QDir::toNativeSeparators(folder.filePath(QStringLiteral("export.reg")));
  QProcess program;
  program.setStandardOutputFile(QProcess::nullDevice());
  program.setStandardErrorFile(QProcess::nullDevice());
  program.start(QStringLiteral("reg"), {QStringLiteral("export"), kRegistryKey, file});
  program.waitForFinished();
  return readText(file);
}

}  // namespace

Sections readRegistryDefaults(const QString& dataFolder) {
  return parseSections(readText(QDir(dataFolder).filePath(QStringLiteral("Tollamere.reg"))));
}

GameSide readGameSide() {
  return {.preferences = parseSections(readText(QDir::home().filePath(kPreferences))),
          .registry = parseSections(registryText())};
}
