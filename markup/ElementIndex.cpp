#include "markup/ElementIndex.h"

#include <algorithm>

namespace brennet {
namespace {

using Difference = std::vector<ElementRecord>::difference_type;

}  // namespace

static_assert(sizeof(ElementRecord) == 20);

ElementIndex::ElementIndex(std::size_t elementCount) {
  reserve(elementCount);
  add({.start = 0, .startTagLength = 0, .length = 0, .count = 1, .flags = 0});
}

ElementNumber ElementIndex::lastChild(ElementNumber parent, ElementNumber from) const {
  ElementNumber last = from != 0 ? from : firstChild(parent);
  if (last == 0) return 0;
  while (behind(last) < behind(parent)) last = behind(last);
  return last;
}

void ElementIndex::makeRoomFor(std::size_t recordCount) {
  if (records_.capacity() - records_.size() >= recordCount) return;
  records_.reserve(records_.size() + std::max(records_.size(), recordCount));
}

void ElementIndex::insert(ElementNumber number, std::span<const ElementRecord> records,
                          std::uint32_t by) {
  const auto first = records_.insert(records_.begin() + static_cast<Difference>(number),
                                     records.begin(), records.end());
  std::for_each(first, first + static_cast<Difference>(records.size()),
                [by](ElementRecord& record) { record.start += by; });
}

std::uint32_t ElementIndex::removeInside(ElementNumber number) {
  const auto self = records_.begin() + static_cast<Difference>(number);
  const std::uint32_t inside = self->count - 1;
  records_.erase(self + 1, self + 1 + static_cast<Difference>(inside));
  return inside;
}

void ElementIndex::moveFrom(ElementNumber first, std::uint32_t by) {
  std::for_each(records_.begin() + static_cast<Difference>(first), records_.end(),
                [by](ElementRecord& record) { record.start += by; });
}

}  // namespace brennet
