#pragma once

#include <cstddef>
#include <string_view>

namespace brennet {

// A place in a text as editors show it. Both count from 1. A line ends in LF, CR LF or CR; a column
// is a character: a surrogate pair is one, and so is a tab.
struct TextPosition {
  std::size_t line = 1;
  std::size_t column = 1;

  friend constexpr bool operator==(const TextPosition&, const TextPosition&) = default;
};

// The position of the unit `offset` of `text`; beyond the text, that of its end. Takes time in
// proportion to the text before it.
[[nodiscard]] TextPosition positionAt(std::u16string_view text, std::size_t offset);

}  // namespace brennet
