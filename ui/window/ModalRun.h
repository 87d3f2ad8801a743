#pragma once

class QDialog;

namespace brennet {

// Whether modal runs disable the host's windows themselves. Off by default: Qt blocks its own
// windows, which is enough for a host that has no others.
void setOwnerHandling(bool on);

// Runs the dialog, modal to the whole application, and returns its result: Rejected if it was
// hidden or deleted without one, or if something failed (see EventGuard) before the player had
// confirmed.
int runModal(QDialog& dialog);

// The same for a window that is opened during a modal run: the host's windows stay as they are.
int runWindow(QDialog& dialog);

}  // namespace brennet
