#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brennet::test {

// The text of a file in UTF-8, UTF-16 or UTF-32, read one character after the other by code that
// shares nothing with decodeText. Nothing if the file is in a code page, or if finding out would
// take more than a naive look.
[[nodiscard]] std::optional<std::u16string> decodedNaively(std::string_view bytes);

}  // namespace brennet::test
