#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/Finding.h"

namespace brennet::cli {

// What a load makes of a settings file.
struct SettingsCheck {
  bool isLoadable = false;        // else a load leaves the defaults in place
  std::string encoding;           // in which the file was read, "gb2312" for example
  std::vector<Finding> findings;  // in the order of the file
};

// Checks the content of a settings file. Throws std::bad_alloc.
[[nodiscard]] SettingsCheck checkSettings(std::string_view bytes);

}  // namespace brennet::cli
