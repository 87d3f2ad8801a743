#include "ui/window/StyleSheet.h"

#include <QCoreApplication>
#include <QFile>
#include <QString>
#include <QWidget>

namespace brennet {

bool loadStyleSheet(QWidget& widget, const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray text = file.readAll();
  if (!text.isEmpty() && QCoreApplication::instance() != nullptr) {
    widget.setStyleSheet(QString::fromUtf8(text));
    widget.update();
  }
  return true;
}

}  // namespace brennet
