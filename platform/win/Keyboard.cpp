#include "platform/Keyboard.h"

namespace brennet::platform {

bool keyEventsCarryVirtualKeys() {
  return true;
}

}  // namespace brennet::platform
