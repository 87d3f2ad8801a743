#include "gameside/dota7/Dota7Change.h"

#include <array>

#include "markup/text/Utf8.h"

namespace brennet {

std::string dota7TextBytes(std::u16string_view text) {
  std::array<char, kDota7TextBytes> buffer{};
  return {buffer.data(), utf16ToUtf8(text, buffer)};
}

}  // namespace brennet
