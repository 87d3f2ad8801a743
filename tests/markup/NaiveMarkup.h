#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brennet::test {

// A second parser of markup texts, which shares only the table of entity names with the document's
// own. It is as plain as can be, goes from one character to the next and does not care about speed,
// so that it can be checked by reading. The two are compared on texts of all kinds.

struct NaiveElement {
  std::size_t depth;  // 0 for the root
  std::size_t start;  // where the start tag begins
  std::u16string name;
  std::vector<std::pair<std::u16string, std::u16string>> attributes;  // unescaped, as written
  std::u16string data;                                                // unescaped, as getData
};

struct NaiveDocument {
  bool isWellFormed = false;
  std::vector<NaiveElement> elements;  // in the order of their start tags
  std::u16string log;                  // as MarkupDocument::result, but of any length
};

[[nodiscard]] NaiveDocument parseNaively(std::u16string_view text);

}  // namespace brennet::test
