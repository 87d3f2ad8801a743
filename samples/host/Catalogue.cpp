#include "Catalogue.h"

#include <QCoreApplication>
#include <QLocale>

Catalogue::Catalogue(const QString& folder, const QStringList& languages) {
  for (const QString& language : languages + QStringList(QStringLiteral("en"))) {
    // "zh-Hans-CN" is "zh_CN" in file names; if there is no file of that name, the one of the
    // language alone is used.
    const QString name = QStringLiteral("brennet_") + QLocale(language).name();
    if (translator_.load(name, folder, QStringLiteral("_"))) {
      QCoreApplication::installTranslator(&translator_);
      return;
    }
  }
}

Catalogue::Catalogue()
    : Catalogue(QCoreApplication::applicationDirPath() + QStringLiteral("/translations"),
                QLocale::system().uiLanguages()) {}
