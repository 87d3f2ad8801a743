#include "platform/Appearance.h"

#include <windows.h>

namespace brennet::platform {

bool isHighContrast() {
  HIGHCONTRASTW setting{};
  setting.cbSize = sizeof(setting);
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(setting), &setting, 0) != FALSE &&
         (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

}  // namespace brennet::platform
