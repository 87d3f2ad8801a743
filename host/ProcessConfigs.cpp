#include "host/ProcessConfigs.h"

namespace brennet {

HotkeyConfig& mainConfig() {
  static HotkeyConfig config;
  return config;
}

HotkeyConfig& workingCopy() {
  static HotkeyConfig config;
  return config;
}

}  // namespace brennet
