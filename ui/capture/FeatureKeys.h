#pragma once

#include <optional>
#include <string_view>

#include "model/KeySlot.h"

namespace brennet {

// The key that a field edits whose name says nothing else (health bars, cursor lock, chat and so
// on): the same name on every page that has it. Names of new fields belong here.
[[nodiscard]] std::optional<KeySlot> featureKeyOf(std::u16string_view objectName);

}  // namespace brennet
