// The edits of MarkupDocument. Each step of an edit first does what can throw (the new text and
// room in the index), then what cannot (links, lengths and offsets).
#include <algorithm>
#include <string>
#include <vector>

#include "markup/ElementContent.h"
#include "markup/Escaping.h"
#include "markup/MarkupDocument.h"
#include "markup/MarkupParser.h"
#include "markup/MarkupWriter.h"
#include "markup/Names.h"
#include "markup/StartTag.h"

namespace brennet {
namespace {

constexpr std::u16string_view kLineBreak = u"\r\n";
constexpr std::size_t kEndTagMarks = 3;  // "</" and ">"

// How much longer a text gets, modulo 2^32 as offsets are, so that it can also get shorter.
std::uint32_t growth(std::size_t added, std::size_t removed) {
  return static_cast<std::uint32_t>(added - removed);
}

std::u16string contentText(std::u16string_view value, std::uint32_t flags) {
  std::u16string content;
  if ((flags & MarkupDocument::kCData) != 0) {
    appendCData(value, content);
  } else {
    appendEscaped(value, content);
  }
  return content;
}

std::u16string endTag(std::u16string_view name) {
  return std::u16string(u"</").append(name).append(u">");
}

}  // namespace

bool MarkupDocument::setAttrib(std::u16string_view name, std::u16string_view value) {
  return setAttributeOf(main_, name, value);
}

bool MarkupDocument::setChildAttrib(std::u16string_view name, std::u16string_view value) {
  return setAttributeOf(child_, name, value);
}

bool MarkupDocument::setAttributeOf(ElementNumber element, std::u16string_view name,
                                    std::u16string_view value) {
  if (element == 0 || !isName(name)) return false;
  const std::u16string_view tagText = startTagOf(element);
  StartTag tag(tagText);
  const auto existing = tag.find(name);
  const std::size_t start = existing ? existing->replaceStart : tag.attributesEnd();
  const std::size_t end = existing ? existing->replaceEnd : start;
  std::u16string piece;
  if (!existing) {
    if (!isMarkupSpace(tagText[start - 1])) piece += u' ';
    piece.append(name);
  }
  piece.append(u"=\"");
  appendEscaped(value, piece);
  piece += u'"';
  if (!canGrowBy(piece.size())) return false;

  text_.replace(index_[element].start + start, end - start, piece);
  const std::uint32_t by = growth(piece.size(), end - start);
  index_[element].startTagLength += by;
  lengthen(element, by);
  index_.moveFrom(element + 1, by);
  return true;
}

bool MarkupDocument::setData(std::u16string_view value, std::uint32_t flags) {
  if (!setDataOf(main_, value, flags)) return false;
  child_ = 0;
  return true;
}

bool MarkupDocument::setChildData(std::u16string_view value, std::uint32_t flags) {
  return setDataOf(child_, value, flags);
}

bool MarkupDocument::setDataOf(ElementNumber element, std::u16string_view value,
                               std::uint32_t flags) {
  if (element == 0) return false;
  const std::u16string content = contentText(value, flags);
  if (!canGrowBy(content.size() + index_[element].startTagLength)) return false;
  if (index_[element].has(ElementRecord::kEmptyTag)) {
    if (!content.empty()) fillEmptyTag(element, content);
  } else {
    const ElementContent old(text_, index_, element);
    const std::size_t oldLength = old.end() - old.start();
    text_.replace(old.start(), oldLength, content);
    const std::uint32_t removed = index_.removeInside(element);
    changeAround(element, [removed](ElementRecord& record) { record.count -= removed; });
    lengthen(element, growth(content.size(), oldLength));
    index_.moveFrom(index_.behind(element), growth(content.size(), oldLength));
  }
  index_[element].flags &= ~(ElementRecord::kHoldsText | ElementRecord::kHoldsNoText);
  return true;
}

bool MarkupDocument::addElem(std::u16string_view name, std::u16string_view value,
                             std::uint32_t flags) {
  const bool asChild = (flags & kChild) != 0;
  if (!isName(name) || (asChild && main_ == 0)) return false;
  const std::u16string content = contentText(value, flags);
  std::u16string text = std::u16string(u"<").append(name);
  text.append(content.empty() ? u"/>" : u">");
  const auto startTagLength = static_cast<std::uint32_t>(text.size());
  if (!content.empty()) text.append(content).append(endTag(name));
  const ElementRecord record = {.start = 0,
                                .startTagLength = startTagLength,
                                .length = static_cast<std::uint32_t>(text.size()),
                                .count = 1,
                                .flags = content.empty() ? ElementRecord::kEmptyTag : 0U};
  const ElementNumber added = add(asChild ? main_ : parent(), {text, {&record, 1}});
  if (added == 0) return false;
  child_ = asChild ? added : 0;
  if (!asChild) main_ = added;
  return true;
}

bool MarkupDocument::addChildren(const MarkupWriter& writer) {
  if (main_ == 0) return false;
  if (writer.elements().empty()) return true;
  std::u16string_view text = writer.written();
  text.remove_suffix(kLineBreak.size());  // add() writes it where there are lines
  if (add(main_, {text, writer.elements()}) == 0) return false;
  child_ = 0;
  return true;
}

// Adds elements to `parent`, which is the parent or the main position: behind the main element if
// that is in it, else at the end. Returns the number of the first one, 0 if the text would be too
// long.
ElementNumber MarkupDocument::add(ElementNumber parent, const NewElements& elements) {
  const bool atEnd = parent == main_ || main_ == 0;
  const ElementNumber after =
      atEnd ? index_.lastChild(parent, parent == main_ ? child_ : 0) : main_;
  // The line breaks, and the end tag that an empty tag of the parent becomes.
  const std::size_t extra = 2 * kLineBreak.size() + index_[parent].startTagLength + kEndTagMarks;
  const std::size_t room = elements.text.size() + extra;
  if (!canGrowBy(room) || !closeUnclosed(parent, after, room)) return 0;

  if (index_[parent].has(ElementRecord::kEmptyTag)) fillEmptyTag(parent, {});
  const std::size_t at = atEnd ? ElementContent(text_, index_, parent).end() : behindLineOf(after);
  const ElementNumber number = index_.behind(atEnd ? parent : after);
  insert(parent, number, at, elements);
  return number;
}

// Writes elements at the offset `at`, as children of `parent` whose numbers begin with `number`.
void MarkupDocument::insert(ElementNumber parent, ElementNumber number, std::size_t at,
                            const NewElements& elements) {
  const ElementContent content(text_, index_, parent);
  const bool ownLine = !holdsText(parent);
  const bool firstLine = ownLine && parent != 0 && content.start() == content.end();
  const std::u16string_view before = firstLine ? kLineBreak : std::u16string_view();
  const std::u16string_view behind = ownLine ? kLineBreak : std::u16string_view();
  const std::u16string piece = std::u16string(before).append(elements.text).append(behind);
  index_.makeRoomFor(elements.records.size());
  text_.insert(at, piece);

  const std::uint32_t by = growth(piece.size(), 0);
  index_.moveFrom(number, by);
  index_.insert(number, elements.records, static_cast<std::uint32_t>(at + before.size()));
  const auto count = static_cast<std::uint32_t>(elements.records.size());
  changeAround(parent, [count](ElementRecord& record) { record.count += count; });
  lengthen(parent, by);
}

// Behind the line break that follows `element`, or behind the element where none follows.
std::size_t MarkupDocument::behindLineOf(ElementNumber element) const {
  const std::size_t end = index_[element].end();
  const std::u16string_view rest = std::u16string_view(text_).substr(end);
  if (rest.starts_with(kLineBreak)) return end + kLineBreak.size();
  return rest.starts_with(u'\n') ? end + 1 : end;
}

// Turns `<a/>` into `<a>content</a>`. A slash in front of the "/>" must not become a new "/>".
void MarkupDocument::fillEmptyTag(ElementNumber element, std::u16string_view content) {
  constexpr std::size_t kClosing = 2;  // "/>"
  const std::u16string_view tag = startTagOf(element);
  const bool hasSlash = tag[tag.size() - kClosing - 1] == u'/';
  const std::u16string_view newClosing = hasSlash ? u" >" : u">";
  std::u16string piece(newClosing);
  piece.append(content).append(endTag(StartTag(tag).name()));
  text_.replace(index_[element].end() - kClosing, kClosing, piece);
  index_[element].startTagLength += growth(newClosing.size(), kClosing);
  index_[element].flags &= ~ElementRecord::kEmptyTag;
  lengthen(element, growth(piece.size(), kClosing));
  index_.moveFrom(index_.behind(element), growth(piece.size(), kClosing));
}

// Gives `element` its end tag if that is missing, so that a sibling can follow it. The unclosed
// elements at its end get theirs first, since one of them might otherwise take the tag for its own.
// Returns false, with nothing changed, if the text could then not grow by `room` more. `parent` is
// the parent or the main position.
bool MarkupDocument::closeUnclosed(ElementNumber parent, ElementNumber element, std::size_t room) {
  if (!index_[element].has(ElementRecord::kError)) return true;
  std::vector<ElementNumber> unclosed;  // from `element` inwards
  for (ElementNumber last = element; index_[last].has(ElementRecord::kError);
       last = index_.lastChild(last)) {
    unclosed.push_back(last);
  }
  std::u16string piece;
  std::for_each(unclosed.rbegin(), unclosed.rend(), [&](ElementNumber open) {
    piece.append(endTag(StartTag(startTagOf(open)).name()));
  });
  if (!canGrowBy(piece.size() + room)) return false;
  text_.insert(index_[element].end(), piece);

  std::size_t length = 0;
  std::for_each(unclosed.rbegin(), unclosed.rend(), [&](ElementNumber open) {
    length += StartTag(startTagOf(open)).name().size() + kEndTagMarks;
    index_[open].length += growth(length, 0);
    index_[open].flags &= ~ElementRecord::kError;
  });
  lengthen(parent, growth(piece.size(), 0));
  index_.moveFrom(index_.behind(element), growth(piece.size(), 0));
  return true;
}

// Whether `element` has text of its own, to which nothing may be added. Determined once per
// element, as the answer changes only with the data.
bool MarkupDocument::holdsText(ElementNumber element) {
  if (element == 0) return false;
  ElementRecord& record = index_[element];
  if (!record.has(ElementRecord::kHoldsText | ElementRecord::kHoldsNoText)) {
    record.flags |= ElementContent(text_, index_, element).holdsText()
                        ? ElementRecord::kHoldsText
                        : ElementRecord::kHoldsNoText;
  }
  return record.has(ElementRecord::kHoldsText);
}

bool MarkupDocument::canGrowBy(std::size_t units) const {
  return units <= kLongestMarkup && text_.size() <= kLongestMarkup - units;
}

// Calls `change` with the record of `element` and those of all elements around it, the document
// included. The element is the parent, the main or the child position.
template <class Change>
void MarkupDocument::changeAround(ElementNumber element, Change change) {
  change(index_[0]);
  for (const ElementNumber around : parents_) change(index_[around]);
  if (element != parent()) change(index_[main_]);
  if (element != parent() && element != main_) change(index_[element]);
}

void MarkupDocument::lengthen(ElementNumber element, std::uint32_t by) {
  changeAround(element, [by](ElementRecord& record) { record.length += by; });
}

}  // namespace brennet
