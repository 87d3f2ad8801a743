#pragma once

#include <string>

namespace brennet::test {

// What MarkupDocument and the naive parser (NaiveMarkup.h) make of `text`, where they do not agree:
// whether it is well-formed, the log, or an element with its place, attributes and data. Empty
// where they do.
[[nodiscard]] std::u16string differenceToNaive(const std::u16string& text);

}  // namespace brennet::test
