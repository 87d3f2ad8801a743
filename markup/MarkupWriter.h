#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "markup/ElementIndex.h"

namespace brennet {

// Writes elements one behind the other, as MarkupDocument::addElem would add them, into a text of
// their own: each on a line, without indentation. MarkupDocument::addChildren takes them all at
// once, which is many times as fast.
//
// Names have to be valid and to outlive the writer; values may hold anything, but all is less than
// 2^32 units. Any operation may throw std::bad_alloc; the writer is of no use then.
class MarkupWriter {
 public:
  MarkupWriter();

  // Begins an element, inside the one that is open.
  void open(std::u16string_view name);
  // Gives the element that was opened last an attribute. Comes before its content.
  void attribute(std::u16string_view name, std::u16string_view value);
  // Gives it its text.
  void text(std::u16string_view value);
  // Ends the element that is open.
  void close();

  // An element without attributes and children.
  void element(std::u16string_view name, std::u16string_view value) {
    open(name);
    text(value);
    close();
  }

  // What is written so far; whole elements once all are closed. Valid until more is written.
  [[nodiscard]] std::u16string_view written() const { return {text_.data(), length_}; }
  // Its elements in their order, with offsets in written().
  [[nodiscard]] const std::vector<ElementRecord>& elements() const { return elements_; }

 private:
  struct Open {
    std::u16string_view name;
    std::size_t number;  // in `elements_`
  };

  void reserve(std::size_t units);
  void grow(std::size_t units);
  void put(std::u16string_view text);
  void putValue(std::u16string_view value);
  void endStartTag();

  // Longer than what is written, so that writing a piece takes no more than a copy.
  std::u16string text_;
  std::size_t length_ = 0;
  std::vector<ElementRecord> elements_;
  std::vector<Open> open_;  // from the outermost inwards
  bool isInStartTag_ = false;
};

}  // namespace brennet
