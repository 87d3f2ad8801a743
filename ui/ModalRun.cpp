#include "ui/ModalRun.h"

#include <QDialog>

#include "platform/OwnerWindow.h"

namespace brennet {
namespace {

bool handlesOwners = false;

}  // namespace

void setOwnerHandling(bool on) {
  handlesOwners = on;
}

int runModal(QDialog& dialog) {
  dialog.setWindowModality(Qt::ApplicationModal);
  if (!handlesOwners) return dialog.exec();
  const platform::OwnerWindows owners = platform::disableOwnerWindows();
  const int result = dialog.exec();
  platform::enableOwnerWindows(owners);
  return result;
}

}  // namespace brennet
