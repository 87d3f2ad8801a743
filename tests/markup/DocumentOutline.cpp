#include "tests/markup/DocumentOutline.h"

namespace brennet::test {
namespace {

// How often each name stands among the children of the parent position.
void appendNameCounts(MarkupDocument& document, std::span<const std::u16string_view> names,
                      std::u16string& outline) {
  for (const std::u16string_view name : names) {
    std::size_t count = 0;
    for (document.resetMainPos(); document.findElem(name);) ++count;
    if (count > 0) outline.append(name).append(u"*").append(count, u'|').append(u" ");
  }
  document.resetMainPos();
}

void appendAttributes(const MarkupDocument& document, std::span<const std::u16string_view> names,
                      std::u16string& outline) {
  for (const std::u16string_view name : names) {
    const std::u16string value = document.getAttrib(name);
    if (!value.empty()) outline.append(u" ").append(name).append(u"=[").append(value).append(u"]");
  }
}

}  // namespace

std::u16string outlineOf(MarkupDocument& document, std::span<const std::u16string_view> elements,
                         std::span<const std::u16string_view> attributes) {
  std::u16string outline;
  while (document.outOfElem()) {
  }
  appendNameCounts(document, elements, outline);
  std::size_t depth = 0;
  for (;;) {
    if (document.findElem()) {
      outline.append(u"(");
      appendAttributes(document, attributes, outline);
      outline.append(u" {").append(document.getData()).append(u"} ");
      document.intoElem();
      appendNameCounts(document, elements, outline);
      ++depth;
    } else if (depth > 0) {
      outline.append(u")");
      document.outOfElem();
      --depth;
    } else {
      return outline;
    }
  }
}

}  // namespace brennet::test
