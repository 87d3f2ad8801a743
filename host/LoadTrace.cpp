#include "host/LoadTrace.h"

#include <QMessageLogger>

#include "model/LoadWords.h"

namespace brennet {

void trace(const LoadReport& report) {
  for (const DroppedKey& dropped : report.droppedKeys) {
    // Not a stream: that writes when it is destroyed, where running out of memory is fatal.
    QMessageLogger(nullptr, 0, nullptr, kLoadCategory).debug("%s", lineText(dropped).c_str());
  }
}

}  // namespace brennet
