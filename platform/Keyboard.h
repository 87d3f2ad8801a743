#pragma once

namespace brennet::platform {

// Whether the window system sends a Windows virtual-key code with each key event.
[[nodiscard]] bool keyEventsCarryVirtualKeys();

}  // namespace brennet::platform
