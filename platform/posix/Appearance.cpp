#include "platform/Appearance.h"

namespace brennet::platform {

// Each desktop has a setting of its own.
bool isHighContrast() {
  return false;
}

}  // namespace brennet::platform
