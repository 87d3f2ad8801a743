#include "ui/capture/KeyMessages.h"

#include <QCoreApplication>

#include "ui/window/CMsgBox.h"

namespace brennet {
namespace {

// All windows share these texts, so they are looked up under the name of Qt's root class.
QString shared(const char* key) {
  return QCoreApplication::translate("QObject", key);
}

void warn(QWidget* parent, const char* key, const QString& why) {
  CMsgBox::showMessage(parent, QMessageBox::Warning,
                       shared(QT_TRANSLATE_NOOP("QObject", "IDS_TITLE")), shared(key),
                       QMessageBox::Ok, QMessageBox::NoButton, why);
}

}  // namespace

void tellKeyIsUsed(QWidget* parent, const QString& why) {
  warn(parent, QT_TRANSLATE_NOOP("QObject", "IDS_KEY_USED"), why);
}

void tellKeySetIsUsed(QWidget* parent, const QString& why) {
  warn(parent, QT_TRANSLATE_NOOP("QObject", "IDS_GROUP_KEY_USED"), why);
}

}  // namespace brennet
