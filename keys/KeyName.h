#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

namespace brennet {

// A row of a key-name table: a Windows virtual-key code and the name that players see for it.
struct KeyName {
  int code;
  std::u16string_view name;
};

// Whether the codes of the rows are strictly ascending.
template <class Rows>
constexpr bool isSortedByCode(const Rows& rows) {
  const auto notAscending = [](const auto& a, const auto& b) { return a.code >= b.code; };
  return std::adjacent_find(std::begin(rows), std::end(rows), notAscending) == std::end(rows);
}

}  // namespace brennet
