#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brennet::test {

// The text in the content of a file that is in UTF-8, UTF-16 or UTF-32, read one character after
// the other and sharing nothing with decodeText. Nothing where the file is in a code page, or where
// it takes a closer look to tell: then there is nothing naive about it.
[[nodiscard]] std::optional<std::u16string> decodedNaively(std::string_view bytes);

}  // namespace brennet::test
