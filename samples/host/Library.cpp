#include "samples/host/Library.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

// Beside the program, where a client ships it, or in the build tree's lib folder.
QString defaultFile() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString name = QStringLiteral(BRENNET_LIBRARY_NAME);
  const QString beside = folder + QLatin1Char('/') + name;
  return QFileInfo::exists(beside) ? beside : folder + QStringLiteral("/../lib/") + name;
}

}  // namespace

Library::Library(const QString& file) : library_(file.isEmpty() ? defaultFile() : file) {
  const auto get =
      reinterpret_cast<brennet::GetBrennetPtrFunction>(library_.resolve("GetBrennetPtr"));
  if (get == nullptr) {
    error_ = library_.errorString();
    return;
  }
  brennet_ = get();
}
