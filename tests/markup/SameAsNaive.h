#pragma once

#include <string>

namespace brennet::test {

// The first thing about `text` on which MarkupDocument and the naive parser (NaiveMarkup.h)
// disagree: whether it is well-formed, the log, or an element with its place, attributes and data.
// Empty if they agree.
[[nodiscard]] std::u16string differenceToNaive(const std::u16string& text);

}  // namespace brennet::test
