#include "platform/OwnerWindow.h"

namespace brennet::platform {

OwnerWindows disableOwnerWindows() {
  return {};
}

void enableOwnerWindows(const OwnerWindows& /*windows*/) {}

}  // namespace brennet::platform
