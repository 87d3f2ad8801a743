#include "LoadFailure.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QStringList>

#include "ImportTable.h"

namespace {

// Follows the imports of `file` as far as they lie beside this program, and appends those that the
// loader does not find. `seen` holds those already examined: libraries may need each other.
void findMissing(const QString& file, QStringList& seen, QStringList& missing) {
  for (const QString& name : importedLibraries(file)) {
    if (seen.contains(name, Qt::CaseInsensitive)) continue;
    seen += name;
    if (QLibrary(name).load()) continue;
    const QString beside = QDir(QCoreApplication::applicationDirPath()).filePath(name);
    if (QFileInfo::exists(beside)) {
      findMissing(beside, seen, missing);
    } else {
      missing += QStringLiteral("%1 (needed by %2)").arg(name, QFileInfo(file).fileName());
    }
  }
}

}  // namespace

QString loadFailure(const QString& file, const QString& loaderMessage) {
  const bool isPath = QFileInfo(file).isAbsolute() || file.contains(QLatin1Char('/'));
  if (isPath && !QFileInfo::exists(file)) {
    return QStringLiteral("there is no library %1").arg(QDir::toNativeSeparators(file));
  }
  QStringList seen;
  QStringList missing;
  findMissing(file, seen, missing);
  if (missing.isEmpty()) return loaderMessage;
  return QStringLiteral("%1 cannot be loaded. Missing beside this program: %2")
      .arg(QDir::toNativeSeparators(file), missing.join(QStringLiteral(", ")));
}
