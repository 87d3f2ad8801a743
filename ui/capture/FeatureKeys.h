#pragma once

#include <optional>
#include <string_view>

#include "model/KeySlot.h"

namespace brennet {

// The key that a field edits if it is named after the key's element: "edtShowFBlood" edits the key
// ShowFBlood, and "edtSpellKey_1" would edit the first key of a list SpellKey. A name means the
// same on every page. Nothing for other names; EditControl.h knows those of older lists.
[[nodiscard]] std::optional<KeySlot> featureKeyOf(std::u16string_view objectName);

}  // namespace brennet
