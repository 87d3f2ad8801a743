#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace brennet {

// Number of an element in its ElementIndex: the high 16 bits select the segment, the low 16 bits
// the record. 0 is the document itself, and means "no element" in links and positions.
using ElementNumber = std::uint32_t;

// One element of a document. Offsets and lengths are in units of the document text.
struct ElementRecord {
  enum Flag : std::uint32_t {
    kElement = 1,              // the node kind
    kEmptyTag = 1U << 16U,     // written as `<a/>`, without an end tag
    kHoldsText = 1U << 17U,    // the content is known to hold text besides white space
    kHoldsNoText = 1U << 18U,  // the content is known to hold none
    kError = 1U << 23U,        // has no end tag: it ends where an element around it does
  };

  std::uint32_t start;           // of the start tag
  std::uint32_t startTagLength;  // up to and with ">"
  std::uint32_t length;          // of the whole element
  ElementNumber parent;
  ElementNumber firstChild;
  ElementNumber next;      // sibling, 0 for the last one
  ElementNumber previous;  // sibling; the first one's is the last one, so that appending is quick
  std::uint32_t flags;

  [[nodiscard]] std::uint32_t contentStart() const { return start + startTagLength; }
  [[nodiscard]] std::uint32_t end() const { return start + length; }
  [[nodiscard]] bool has(std::uint32_t flag) const { return (flags & flag) != 0; }
};

// The elements of one document, linked as a tree. Records are never removed, only unlinked.
//
// References to records are valid until the next record is added.
class ElementIndex {
 public:
  // Holds only the document, and has room for `elementCount` elements.
  explicit ElementIndex(std::size_t elementCount = 0);

  // How many records there are, the document's included.
  [[nodiscard]] std::size_t size() const { return size_; }

  [[nodiscard]] ElementRecord& operator[](ElementNumber number) {
    return segments_[number >> kSegmentBits][number & kRecordMask];
  }
  [[nodiscard]] const ElementRecord& operator[](ElementNumber number) const {
    return segments_[number >> kSegmentBits][number & kRecordMask];
  }

  // A new, unlinked record, all zero. Throws std::bad_alloc, and then has changed nothing.
  ElementNumber add() {
    if (size_ == capacity_) grow(size_ + 1);
    const auto number = static_cast<ElementNumber>(size_++);
    (*this)[number] = {};
    return number;
  }

  // Makes sure that the next add() does not throw.
  void reserveOne() {
    if (size_ == capacity_) grow(size_ + 1);
  }

  // Links `child` into `parent`, after the child `after`, or as the first child if that is 0.
  void link(ElementNumber parent, ElementNumber after, ElementNumber child);

  // Links `child` as the last child of `parent`.
  void append(ElementNumber parent, ElementNumber child) {
    const ElementNumber first = (*this)[parent].firstChild;
    ElementRecord& record = (*this)[child];
    record.parent = parent;
    record.next = 0;
    if (first == 0) {
      (*this)[parent].firstChild = child;
      record.previous = child;
    } else {
      ElementNumber& last = (*this)[first].previous;
      record.previous = last;
      (*this)[last].next = child;
      last = child;
    }
  }

  // The last child of `parent`, or 0.
  [[nodiscard]] ElementNumber lastChild(ElementNumber parent) const {
    const ElementNumber first = (*this)[parent].firstChild;
    return first == 0 ? 0 : (*this)[first].previous;
  }

  // The element with the next start tag after that of `number`, or 0.
  [[nodiscard]] ElementNumber nextInText(ElementNumber number) const {
    const ElementNumber child = (*this)[number].firstChild;
    return child != 0 ? child : nextBehind(number);
  }

  // The element with the next start tag after the end of `number`, or 0.
  [[nodiscard]] ElementNumber nextBehind(ElementNumber number) const;

 private:
  static constexpr unsigned kSegmentBits = 16;
  static constexpr std::size_t kSegmentSize = std::size_t{1} << kSegmentBits;
  static constexpr std::size_t kRecordMask = kSegmentSize - 1;
  using Segment = std::unique_ptr<ElementRecord[]>;

  void grow(std::size_t recordCount);

  std::vector<Segment> segments_;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

}  // namespace brennet
