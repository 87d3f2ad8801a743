#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "markup/ElementIndex.h"

namespace brennet {

// The elements that are open at a point of a document, by name. The parser keeps it only once it
// has met a misplaced end tag; then a look-up by name saves it from going through all open elements
// each time.
class OpenElements {
 public:
  // `name` is kept as a view.
  void open(std::u16string_view name, ElementNumber element) {
    ElementNumber& innermost = innermost_[name];
    hidden_.push_back(innermost);
    innermost = element;
  }

  // Closes the element that was opened last; `name` is its name.
  void close(std::u16string_view name) {
    innermost_[name] = hidden_.back();
    hidden_.pop_back();
  }

  // The innermost open element called `name`, or 0.
  [[nodiscard]] ElementNumber find(std::u16string_view name) const {
    const auto found = innermost_.find(name);
    return found == innermost_.end() ? 0 : found->second;
  }

 private:
  // Ordered, because names that share a hash could make a hash table slow.
  std::map<std::u16string_view, ElementNumber> innermost_;
  // For every open element, in the order of opening, the one of the same name that it hides, or 0.
  std::vector<ElementNumber> hidden_;
};

}  // namespace brennet
