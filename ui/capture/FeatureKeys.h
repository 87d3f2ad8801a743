#pragma once

#include <optional>
#include <string_view>

#include "model/KeySlot.h"

namespace brennet {

// The key that a field edits that stands for one feature of its own (health bars, cursor lock, chat
// and so on), by its object name: the same name on every page that has it.
[[nodiscard]] std::optional<KeySlot> featureKeyOf(std::u16string_view objectName);

}  // namespace brennet
