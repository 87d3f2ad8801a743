// Stands for the player of the host in docs/embedding.md: confirms the dialog as soon as it is
// there, and says whether it offers DotA 7. Linked beside the host, which knows nothing of it.

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <cstdio>

namespace {

QAbstractButton& button(const QDialog& dialog, const char* name) {
  auto* const found = dialog.findChild<QAbstractButton*>(QLatin1String(name));
  if (found == nullptr) qFatal("there is no %s", name);
  return *found;
}

void confirm() {
  const auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible()) {
    QTimer::singleShot(10, qApp, confirm);
    return;
  }
  std::printf("DotA 7: %s\n", button(*dialog, "btnDota7Setting").isVisible() ? "yes" : "no");
  std::fflush(stdout);
  button(*dialog, "btnOK").click();
}

// While the application is made, it knows of no windows yet.
void start() {
  QTimer::singleShot(0, qApp, confirm);
}

Q_COREAPP_STARTUP_FUNCTION(start)

}  // namespace
