#include "platform/Keyboard.h"

namespace brennet::platform {

bool keyEventsCarryVirtualKeys() {
  return false;
}

}  // namespace brennet::platform
