#include "ui/window/ModalRun.h"

#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>

#include "platform/OwnerWindow.h"
#include "ui/window/EventGuard.h"

namespace brennet {
namespace {

bool handlesOwners = false;

// For the lifetime of this object, even when the dialog fails.
class DisabledOwners {
 public:
  DisabledOwners() : windows_(platform::disableOwnerWindows()) {}
  ~DisabledOwners() { platform::enableOwnerWindows(windows_); }
  DisabledOwners(const DisabledOwners&) = delete;
  DisabledOwners& operator=(const DisabledOwners&) = delete;

 private:
  platform::OwnerWindows windows_;
};

// Makes the dialog modal to the whole application for the lifetime of this object.
class MadeModal {
 public:
  explicit MadeModal(QDialog& dialog)
      : dialog_(&dialog), wasModal_(dialog.testAttribute(Qt::WA_ShowModal)) {
    dialog.setAttribute(Qt::WA_ShowModal);
  }
  ~MadeModal() {
    if (!dialog_.isNull()) dialog_->setAttribute(Qt::WA_ShowModal, wasModal_);
  }
  MadeModal(const MadeModal&) = delete;
  MadeModal& operator=(const MadeModal&) = delete;

 private:
  QPointer<QDialog> dialog_;
  bool wasModal_;
};

// The loop of one window: it ends when the window is hidden in any way, when the application quits,
// and when something fails.
class WindowLoop : public QObject {
 public:
  explicit WindowLoop(QDialog& dialog) : ended_(loop_) { dialog.installEventFilter(this); }

  void run() { loop_.exec(QEventLoop::DialogExec); }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    // A spontaneous hide is the system minimizing the window.
    if (event->type() == QEvent::Hide && !event->spontaneous()) loop_.exit();
    return false;
  }

 private:
  QEventLoop loop_;
  EndedByFailure ended_;
};

bool hasFailed() {
  const EventGuard* const guard = EventGuard::current();
  return guard != nullptr && guard->hasFailed();
}

}  // namespace

void setOwnerHandling(bool on) {
  handlesOwners = on;
}

// QDialog::exec keeps a pointer to its event loop even when an exception has ended that.
int runWindow(QDialog& dialog) {
  if (hasFailed()) return QDialog::Rejected;
  const QPointer<QDialog> alive(&dialog);
  const MadeModal modal(dialog);
  dialog.setResult(QDialog::Rejected);
  WindowLoop loop(dialog);
  dialog.show();
  if (!alive.isNull() && dialog.isVisible() && !hasFailed()) loop.run();
  if (alive.isNull()) return QDialog::Rejected;
  if (hasFailed()) guarded([&dialog] { dialog.hide(); });
  return dialog.result();
}

int runModal(QDialog& dialog) {
  dialog.setWindowModality(Qt::ApplicationModal);
  if (!handlesOwners) return runWindow(dialog);
  const DisabledOwners owners;
  return runWindow(dialog);
}

}  // namespace brennet
