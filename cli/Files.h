#pragma once

#include <string>
#include <string_view>

#include "model/HotkeyConfig.h"

namespace brennet::cli {

// The content of the file `name` (UTF-8), as it is: nothing is put right, and nothing is waited
// for. Throws CommandFailure.
[[nodiscard]] std::string readBytes(const std::string& name);

// Makes `bytes` the content of the file, whole or not at all. Throws CommandFailure.
void writeBytes(const std::string& name, std::string_view bytes);

// The settings that a load finds in the file. Throws CommandFailure.
[[nodiscard]] HotkeyConfig readSettings(const std::string& name);

}  // namespace brennet::cli
