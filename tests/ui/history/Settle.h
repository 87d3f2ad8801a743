#pragma once

#include <QCoreApplication>

namespace brennet::test {

// Until a change without input has been noted: painting it comes first, then what is due when there
// is nothing else to do.
inline void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
}

}  // namespace brennet::test
