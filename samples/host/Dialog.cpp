#include "Dialog.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>

namespace {

void takePicture(QWidget& dialog, const QString& file, QStringList& files) {
  QCoreApplication::processEvents();
  if (dialog.grab().save(file)) files += file;
}

void takePicturesOf(QDialog& dialog, const QDir& folder, QStringList& files) {
  takePicture(dialog, folder.filePath(QStringLiteral("settings.png")), files);
  auto* const dota7 = dialog.findChild<QPushButton*>(QStringLiteral("btnDota7Setting"));
  if (dota7 != nullptr && dota7->isVisible()) {
    dota7->click();
    takePicture(dialog, folder.filePath(QStringLiteral("dota7.png")), files);
  }
  dialog.reject();
}

}  // namespace

QString openDialog(brennet::IBrennet& brennet, std::uint32_t saveTime) {
  bool saved = false;
  if (!brennet.ShowSettingsDialog(&saved, saveTime)) {
    return QStringLiteral("The dialog was cancelled: nothing has changed.");
  }
  return saved ? QStringLiteral("The dialog was confirmed, and the settings were saved.")
               : QStringLiteral("The dialog was confirmed, but the settings could not be saved.");
}

QStringList takePictures(brennet::IBrennet& brennet, const QString& folder) {
  QStringList files;
  QTimer onceOpen;
  onceOpen.setSingleShot(true);
  QObject::connect(&onceOpen, &QTimer::timeout, [&] {
    if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
      takePicturesOf(*dialog, QDir(folder), files);
    }
  });
  onceOpen.start(0);
  bool saved = false;
  brennet.ShowSettingsDialog(&saved, 0);
  return files;
}
