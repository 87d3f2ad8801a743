#pragma once

class QDialog;

namespace brennet {

// Whether modal runs disable the host's windows themselves. Off at first: Qt keeps its own windows
// from being used, which is enough for a host that has no others.
void setOwnerHandling(bool on);

// Runs the dialog modally before everything else of the application, and returns its result:
// Rejected where it was hidden or deleted without one, or where something failed meanwhile (see
// EventGuard), unless the player had confirmed before that.
int runModal(QDialog& dialog);

// The same for a window that a modal run opens: the windows of the host are left as they are.
int runWindow(QDialog& dialog);

}  // namespace brennet
