#pragma once

#include <string_view>

#include "markup/ElementIndex.h"
#include "markup/ResultLog.h"

namespace brennet {

// The longest text that can be parsed: offsets are kept in 32 bits.
inline constexpr std::size_t kLongestMarkup = 0xFFFFFFFF;

// The index of the elements of `text`, which is at most kLongestMarkup units long. Appends to `log`
// what is wrong with the text. The document's own record (0) ends with the text, or where a token
// begins that has no end and so swallows the rest of the text.
//
// Attributes are not parsed. Time is linear in the text, apart from a logarithm where tags cross,
// and nothing recurses. Throws std::bad_alloc.
[[nodiscard]] ElementIndex parseMarkup(std::u16string_view text, ResultLog& log);

}  // namespace brennet
