#include "platform/OwnerWindow.h"

namespace brennet::platform {

OwnerWindows disableOwnerWindows() {
  return {};
}

std::optional<WindowFrame> ownerFrame() {
  return std::nullopt;
}

void enableOwnerWindows(const OwnerWindows& /*windows*/) {}

}  // namespace brennet::platform
