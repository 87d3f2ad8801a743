#pragma once

#include <string_view>

#include "platform/CodePages.h"

namespace brennet {

// The Windows code page of the encoding `name` (IANA names, their aliases and Microsoft's names,
// compared without regard to case), or 0 for an unknown name.
[[nodiscard]] platform::CodePage encodingToCodePage(std::u16string_view name);

// The bucket of the name table that holds `name`: entries of two digits for the length of the
// name, five for the code page, and the name, such as u"0600437ibm437".
[[nodiscard]] std::u16string_view encodingBucket(std::u16string_view name);

}  // namespace brennet
