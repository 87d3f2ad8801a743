#pragma once

class QDialog;

namespace brennet {

// Whether modal runs disable the host's windows themselves. Off at first: Qt keeps its own windows
// from being used, which is enough for a host that has no others.
void setOwnerHandling(bool on);

// Runs the dialog modally before everything else of the application, and returns its result.
int runModal(QDialog& dialog);

}  // namespace brennet
