#pragma once

class QString;

namespace brennet {

struct EditControl;

// Writes a debug line on what the object name of a key field came to.
void traceEditControl(const QString& name, bool isKnown, const EditControl& control);

}  // namespace brennet
