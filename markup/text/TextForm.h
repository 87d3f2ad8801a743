#pragma once

#include <cstddef>
#include <string_view>

#include "platform/CodePages.h"

namespace brennet {

// How a text was written in the file that it was read from.
struct TextForm {
  platform::CodePage codePage = 0;  // 0: the text was not read from a file
  bool hasMark = false;             // the file began with a byte-order mark
};

// The byte-order mark of a code page; empty if it has none.
[[nodiscard]] constexpr std::string_view markOf(platform::CodePage codePage) {
  using namespace std::string_view_literals;
  switch (codePage) {
    case platform::kUtf8:
      return "\xEF\xBB\xBF"sv;
    case platform::kUtf16LittleEndian:
      return "\xFF\xFE"sv;
    case platform::kUtf16BigEndian:
      return "\xFE\xFF"sv;
    case platform::kUtf32LittleEndian:
      return "\xFF\xFE\0\0"sv;
    case platform::kUtf32BigEndian:
      return "\0\0\xFE\xFF"sv;
    default:
      return {};
  }
}

[[nodiscard]] constexpr bool isUtf16(platform::CodePage codePage) {
  return codePage == platform::kUtf16LittleEndian || codePage == platform::kUtf16BigEndian;
}
[[nodiscard]] constexpr bool isUtf32(platform::CodePage codePage) {
  return codePage == platform::kUtf32LittleEndian || codePage == platform::kUtf32BigEndian;
}
[[nodiscard]] constexpr bool isBigEndian(platform::CodePage codePage) {
  return codePage == platform::kUtf16BigEndian || codePage == platform::kUtf32BigEndian;
}

// How many bytes a unit of text in the code page takes.
[[nodiscard]] constexpr std::size_t unitSize(platform::CodePage codePage) {
  return isUtf16(codePage) ? 2 : isUtf32(codePage) ? 4 : 1;
}

}  // namespace brennet
