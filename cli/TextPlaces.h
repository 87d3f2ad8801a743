#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "markup/text/TextPosition.h"

namespace brennet::cli {

// Finds many positions in one text, each in a time that does not grow with the text before it.
class TextPlaces {
 public:
  // `text` has to outlive the object. Throws std::bad_alloc.
  explicit TextPlaces(std::u16string_view text);

  // As positionAt(text, offset).
  [[nodiscard]] TextPosition at(std::size_t offset) const;

 private:
  // A place from which counting can go on, also where it is inside a line end or a character.
  struct Known {
    std::size_t offset;
    TextPosition position;
  };

  [[nodiscard]] TextPosition from(const Known& known, std::size_t offset) const;

  std::u16string_view text_;
  std::vector<Known> known_;  // in the order of their offsets, the first at 0
};

}  // namespace brennet::cli
