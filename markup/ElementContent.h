#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "markup/ElementIndex.h"

namespace brennet {

// The content between the start tag and the end tag of an element. Text and index must outlive it,
// and must not change while it is used.
class ElementContent {
 public:
  // `number` may be 0, for the document.
  ElementContent(std::u16string_view text, const ElementIndex& index, ElementNumber number);

  // The content lies in [start, end) of the text; it is empty for an empty tag.
  [[nodiscard]] std::size_t start() const { return start_; }
  [[nodiscard]] std::size_t end() const { return end_; }

  // The content as it is written.
  [[nodiscard]] std::u16string_view text() const { return text_.substr(start_, end_ - start_); }

  // Whether that is the element's own text, as most often: without elements and references.
  [[nodiscard]] bool isPlain() const;

  // The element's own text: references resolved, CDATA as it is, the rest left out.
  [[nodiscard]] std::u16string data() const;

  // Whether the element's own text holds anything besides white space.
  [[nodiscard]] bool holdsText() const;

 private:
  template <typename Visitor>
  void visitRuns(Visitor visit) const;

  std::u16string_view text_;
  const ElementIndex& index_;
  ElementNumber number_;
  std::size_t start_;
  std::size_t end_;
};

}  // namespace brennet
