#include "ui/window/ModalRun.h"

#include <QDialog>

#include "platform/OwnerWindow.h"

namespace brennet {
namespace {

bool handlesOwners = false;

// As long as this lives; also when the dialog fails.
class DisabledOwners {
 public:
  DisabledOwners() : windows_(platform::disableOwnerWindows()) {}
  ~DisabledOwners() { platform::enableOwnerWindows(windows_); }
  DisabledOwners(const DisabledOwners&) = delete;
  DisabledOwners& operator=(const DisabledOwners&) = delete;

 private:
  platform::OwnerWindows windows_;
};

}  // namespace

void setOwnerHandling(bool on) {
  handlesOwners = on;
}

int runModal(QDialog& dialog) {
  dialog.setWindowModality(Qt::ApplicationModal);
  if (!handlesOwners) return dialog.exec();
  const DisabledOwners owners;
  return dialog.exec();
}

}  // namespace brennet
