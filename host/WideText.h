#pragma once

#include <string>

namespace brennet {

// The host's zero-terminated wide text as UTF-16; null gives an empty text. wchar_t is a UTF-16
// unit on Windows and a code point elsewhere; what is not a code point becomes U+FFFD.
[[nodiscard]] std::u16string fromWide(const wchar_t* text);

}  // namespace brennet
