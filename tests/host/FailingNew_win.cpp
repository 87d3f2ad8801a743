#include "tests/host/FailingNew.h"

namespace brennet::test {

// A DLL gets its operator new from the DLL of the C++ library.
bool isOurs(const void* /*caller*/) {
  return true;
}

}  // namespace brennet::test
