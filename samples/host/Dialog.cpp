#include "Dialog.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace {

QWidgetList visibleWindows() {
  QWidgetList windows = QApplication::topLevelWidgets();
  windows.erase(std::remove_if(windows.begin(), windows.end(),
                               [](const QWidget* window) { return !window->isVisible(); }),
                windows.end());
  return windows;
}

// Pictures of one dialog, into one folder.
class Camera {
 public:
  Camera(QDialog& dialog, const QDir& folder) : dialog_(&dialog), folder_(folder) {}

  [[nodiscard]] const QStringList& files() const { return files_; }

  void take(QWidget& window, const char* fileName) {
    QCoreApplication::processEvents();
    const QString file = folder_.filePath(QLatin1String(fileName));
    if (window.grab().save(file)) files_ += file;
  }

  // Takes a picture of the dialog after a click on the button.
  void takeAfter(const char* buttonName, const char* fileName) {
    if (click(buttonName)) take(*dialog_, fileName);
  }

  // Takes a picture of the window that the button opens, and closes it.
  void takeWindowOf(const char* buttonName, const char* fileName) {
    const QWidgetList before = visibleWindows();
    // The click does not return until a modal window is closed.
    QTimer onceOpen;
    onceOpen.setSingleShot(true);
    QObject::connect(&onceOpen, &QTimer::timeout, [&] {
      for (QWidget* const window : visibleWindows()) {
        if (before.contains(window)) continue;
        take(*window, fileName);
        window->close();
      }
    });
    onceOpen.start(0);
    if (click(buttonName)) QCoreApplication::processEvents();
  }

 private:
  bool click(const char* buttonName) {
    auto* const button = dialog_->findChild<QPushButton*>(QLatin1String(buttonName));
    if (button == nullptr || !button->isVisible()) return false;
    button->click();
    return true;
  }

  QDialog* dialog_;
  QDir folder_;
  QStringList files_;
};

QStringList takePicturesOf(QDialog& dialog, const QString& folder) {
  Camera camera(dialog, QDir(folder));
  camera.take(dialog, "settings.png");
  camera.takeWindowOf("btnOrrerySetting", "orrery.png");
  camera.takeWindowOf("btnTalkSetting", "quick-chat.png");
  camera.takeAfter("btnDota7Setting", "dota7.png");
  camera.takeWindowOf("chatHotkeyBtn", "dota7-chat.png");
  dialog.reject();
  return camera.files();
}

}  // namespace

DialogEnd openDialog(brennet::IBrennet& brennet, std::uint32_t saveTime) {
  bool saved = false;
  if (!brennet.ShowSettingsDialog(&saved, saveTime)) return DialogEnd::Cancelled;
  return saved ? DialogEnd::Saved : DialogEnd::NotSaved;
}

QStringList takePictures(brennet::IBrennet& brennet, const QString& folder) {
  QStringList files;
  QTimer onceOpen;
  onceOpen.setSingleShot(true);
  QObject::connect(&onceOpen, &QTimer::timeout, [&] {
    if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
      files = takePicturesOf(*dialog, folder);
    }
  });
  onceOpen.start(0);
  bool saved = false;
  brennet.ShowSettingsDialog(&saved, 0);
  return files;
}
