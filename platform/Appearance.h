#pragma once

namespace brennet::platform {

// Whether the user has set the system to colours of high contrast: then programs are to use no
// colours of their own. False where there is no such setting.
[[nodiscard]] bool isHighContrast();

}  // namespace brennet::platform
