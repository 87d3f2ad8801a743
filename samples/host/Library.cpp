#include "Library.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "LoadFailure.h"

namespace {

// Beside the program, where a client ships it, or in the build tree's lib folder.
QString defaultFile() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString name = QStringLiteral(BRENNET_LIBRARY_NAME);
  const QString beside = folder + QLatin1Char('/') + name;
  const QString built = folder + QStringLiteral("/../lib/") + name;
  return !QFileInfo::exists(beside) && QFileInfo::exists(built) ? built : beside;
}

}  // namespace

Library::Library(const QString& file) {
  const QString name = file.isEmpty() ? defaultFile() : file;
  library_.setFileName(name);
  const auto get =
      reinterpret_cast<brennet::GetBrennetPtrFunction>(library_.resolve("GetBrennetPtr"));
  if (get == nullptr) {
    error_ = library_.isLoaded() ? name + QStringLiteral(" exports no GetBrennetPtr")
                                 : loadFailure(name, library_.errorString());
    return;
  }
  brennet_ = get();
}
