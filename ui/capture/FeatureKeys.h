#pragma once

#include <optional>
#include <string_view>

#include "model/KeySlot.h"

namespace brennet {

// The key that a field edits by the name of its element: "edtShowFBlood" edits the key ShowFBlood,
// and "edtSpellKey_1" would edit the first key of a list SpellKey. The same name on every page that
// has it. Nothing for other names; EditControl.h knows those of older lists.
[[nodiscard]] std::optional<KeySlot> featureKeyOf(std::u16string_view objectName);

}  // namespace brennet
