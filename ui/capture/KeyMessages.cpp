#include "ui/capture/KeyMessages.h"

#include <QCoreApplication>

#include "ui/window/CMsgBox.h"

namespace brennet {
namespace {

// All windows share these texts, so they are looked up under the name of Qt's root class.
QString shared(const char* key) {
  return QCoreApplication::translate("QObject", key);
}

void warn(QWidget* parent, const char* key) {
  CMsgBox::showMessage(parent, QMessageBox::Warning,
                       shared(QT_TRANSLATE_NOOP("QObject", "IDS_TITLE")), shared(key));
}

}  // namespace

void tellKeyIsUsed(QWidget* parent) {
  warn(parent, QT_TRANSLATE_NOOP("QObject", "IDS_KEY_USED"));
}

void tellKeySetIsUsed(QWidget* parent) {
  warn(parent, QT_TRANSLATE_NOOP("QObject", "IDS_GROUP_KEY_USED"));
}

}  // namespace brennet
