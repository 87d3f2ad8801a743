#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace brennet {

// Number of an element in its ElementIndex. 0 is the document itself, and means "no element" in
// positions and answers.
using ElementNumber = std::uint32_t;

// One element of a document. Offsets and lengths are in units of the document text.
struct ElementRecord {
  enum Flag : std::uint32_t {
    kEmptyTag = 1U << 16U,     // written as `<a/>`, without an end tag
    kHoldsText = 1U << 17U,    // the content is known to hold text besides white space
    kHoldsNoText = 1U << 18U,  // the content is known to hold none
    kError = 1U << 23U,        // has no end tag: it ends where an element around it does
  };

  std::uint32_t start;           // of the start tag
  std::uint32_t startTagLength;  // up to and with ">"
  std::uint32_t length;          // of the whole element
  std::uint32_t count;           // of records: its own and those of all elements inside
  std::uint32_t flags;

  [[nodiscard]] std::uint32_t contentStart() const { return start + startTagLength; }
  [[nodiscard]] std::uint32_t end() const { return start + length; }
  [[nodiscard]] bool has(std::uint32_t flag) const { return (flags & flag) != 0; }
};

// The elements of one document, in the order of their start tags. There are no links: the elements
// inside an element follow it directly, and `count` says how many they are. So a document takes
// little memory, and what moves with an edit lies side by side.
//
// References to records are valid until a record is added, inserted or removed.
class ElementIndex {
 public:
  // Holds only the document, and has room for `elementCount` elements.
  explicit ElementIndex(std::size_t elementCount = 0);

  // How many records there are, the document's included.
  [[nodiscard]] std::size_t size() const { return records_.size(); }

  [[nodiscard]] ElementRecord& operator[](ElementNumber number) { return records_[number]; }
  [[nodiscard]] const ElementRecord& operator[](ElementNumber number) const {
    return records_[number];
  }

  // The number behind that of the last element inside `number`. Where the elements behind an
  // element begin; size() for the document.
  [[nodiscard]] ElementNumber behind(ElementNumber number) const {
    return number + records_[number].count;
  }

  // Each returns 0 if there is no such element.
  [[nodiscard]] ElementNumber firstChild(ElementNumber parent) const {
    return records_[parent].count > 1 ? parent + 1 : 0;
  }
  // The next child of `parent` behind its child `number`.
  [[nodiscard]] ElementNumber next(ElementNumber parent, ElementNumber number) const {
    const ElementNumber next = behind(number);
    return next < behind(parent) ? next : 0;
  }
  // The last child of `parent`. It goes through all children from `from` on, which is one of them,
  // or 0 for all.
  [[nodiscard]] ElementNumber lastChild(ElementNumber parent, ElementNumber from = 0) const;

  // Adds a record at the end. The caller sees to the counts of the elements around it. Throws
  // std::bad_alloc, and then has changed nothing, like the two below.
  ElementNumber add(const ElementRecord& record) {
    records_.push_back(record);
    return static_cast<ElementNumber>(records_.size() - 1);
  }

  // Whether the next record needs more memory.
  [[nodiscard]] bool isFull() const { return records_.size() == records_.capacity(); }
  // Makes room for `elementCount` elements at least.
  void reserve(std::size_t elementCount) { records_.reserve(elementCount + 1); }
  // Makes sure that the next insert() of so many records does not throw.
  void makeRoomFor(std::size_t recordCount);

  // Inserts records in front of `number`, which may be size(), with their starts moved by that many
  // units. The caller sees to the counts of the elements around them.
  void insert(ElementNumber number, std::span<const ElementRecord> records, std::uint32_t by);

  // Removes all elements inside `number` and returns how many they were. The caller sees to the
  // counts of `number` and the elements around it. Does not throw.
  std::uint32_t removeInside(ElementNumber number);

  // Moves `first` and all elements behind its start by that many units, modulo 2^32. `first` may
  // be size().
  void moveFrom(ElementNumber first, std::uint32_t by);

 private:
  std::vector<ElementRecord> records_;
};

}  // namespace brennet
