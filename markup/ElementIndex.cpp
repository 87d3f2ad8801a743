#include "markup/ElementIndex.h"

#include <algorithm>

namespace brennet {

ElementIndex::ElementIndex(std::size_t elementCount) {
  grow(elementCount + 1);
  add();
}

// All segments except the last have their full size. The first one starts small and doubles until
// it is full, so that a small document costs little.
void ElementIndex::grow(std::size_t recordCount) {
  while (capacity_ < recordCount) {
    const std::size_t partial = capacity_ & kRecordMask;
    const std::size_t wanted = recordCount - (capacity_ - partial);
    const std::size_t segmentSize = std::min(std::max(wanted, 2 * capacity_), kSegmentSize);
    // Records are written when they are added; until then their memory is left alone.
    Segment segment(new ElementRecord[segmentSize]);
    if (partial == 0) {
      segments_.push_back(std::move(segment));
    } else {
      std::copy_n(segments_.back().get(), partial, segment.get());
      segments_.back() = std::move(segment);
    }
    capacity_ += segmentSize - partial;
  }
}

void ElementIndex::link(ElementNumber parent, ElementNumber after, ElementNumber child) {
  ElementRecord& record = (*this)[child];
  const ElementNumber first = (*this)[parent].firstChild;
  record.parent = parent;
  record.next = after == 0 ? first : (*this)[after].next;
  record.previous = after;
  if (after != 0) (*this)[after].next = child;
  if (after == 0) {
    (*this)[parent].firstChild = child;
    record.previous = first == 0 ? child : (*this)[first].previous;
  }
  if (record.next != 0) {
    (*this)[record.next].previous = child;
  } else {
    (*this)[(*this)[parent].firstChild].previous = child;
  }
}

ElementNumber ElementIndex::nextBehind(ElementNumber number) const {
  while (number != 0 && (*this)[number].next == 0) number = (*this)[number].parent;
  return number == 0 ? 0 : (*this)[number].next;
}

}  // namespace brennet
