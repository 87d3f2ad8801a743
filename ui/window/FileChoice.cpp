#include "ui/window/FileChoice.h"

#include <QFileDialog>

namespace brennet {
namespace {

QString filterOf(const FileKind& kind) {
  return QStringLiteral("%1 (*.%2)").arg(kind.name, kind.suffix);
}

QString chosenIn(QFileDialog& dialog) {
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace

QString askForFile(QWidget& parent, const QString& title, const FileKind& kind) {
  QFileDialog dialog(&parent, title, QString(), filterOf(kind));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return chosenIn(dialog);
}

// The dialog must know the extension, or it would not ask about the file that is really meant.
QString askForNewFile(QWidget& parent, const QString& title, const FileKind& kind,
                      const QString& proposed) {
  QFileDialog dialog(&parent, title, QString(), filterOf(kind));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(kind.suffix);
  dialog.selectFile(proposed);
  return chosenIn(dialog);
}

}  // namespace brennet
