#pragma once

#include <optional>
#include <string_view>

#include "ui/capture/KeySetting.h"

namespace brennet {

// The setting of a field that stands for one feature of its own (health bars, cursor lock, chat and
// so on), by its object name: the same name on every page that has it.
[[nodiscard]] std::optional<KeySetting> featureKeyOf(std::u16string_view objectName);

}  // namespace brennet
