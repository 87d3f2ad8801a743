#pragma once

#include <string>

#include "markup/MarkupDocument.h"

namespace brennet::test {

// The tree of a document as its own navigation finds it, one element a line: depth, name, the
// attributes called "a", "b", "id" and "x", and the data. Leaves the position at the top.
std::u16string treeOf(MarkupDocument& document);

// The same for a text, parsed afresh.
std::u16string treeOf(std::u16string text);

}  // namespace brennet::test
