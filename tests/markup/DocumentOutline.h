#pragma once

#include <span>
#include <string>
#include <string_view>

#include "markup/MarkupDocument.h"

namespace brennet::test {

// What a document holds, read through its own operations: for every element how its siblings are
// called, the attributes that it has of those asked for, its data, and its children. Two documents
// with the same outline look the same to any reader that knows these names. Moves the position.
std::u16string outlineOf(MarkupDocument& document, std::span<const std::u16string_view> elements,
                         std::span<const std::u16string_view> attributes);

}  // namespace brennet::test
