// The edits of MarkupDocument. Each step of an edit first does what can throw (the new text and
// room in the index), then what cannot (links, lengths and offsets).
#include <string>

#include "markup/ElementContent.h"
#include "markup/Escaping.h"
#include "markup/MarkupDocument.h"
#include "markup/MarkupParser.h"
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
  moveFrom(index_.nextInText(element), by);
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
    index_[element].firstChild = 0;
    lengthen(element, growth(content.size(), oldLength));
    moveFrom(index_.nextBehind(element), growth(content.size(), oldLength));
  }
  index_[element].flags &= ~(ElementRecord::kHoldsText | ElementRecord::kHoldsNoText);
  return true;
}

MarkupDocument::NewElement MarkupDocument::makeElement(std::u16string_view name,
                                                       std::u16string_view value,
                                                       std::uint32_t flags) {
  const std::u16string content = contentText(value, flags);
  NewElement element;
  element.flags = ElementRecord::kElement | (content.empty() ? ElementRecord::kEmptyTag : 0U);
  element.text.append(u"<").append(name).append(content.empty() ? u"/>" : u">");
  element.startTagLength = static_cast<std::uint32_t>(element.text.size());
  if (!content.empty()) element.text.append(content).append(endTag(name));
  return element;
}

bool MarkupDocument::addElem(std::u16string_view name, std::u16string_view value,
                             std::uint32_t flags) {
  const bool asChild = (flags & kChild) != 0;
  if (!isName(name) || (asChild && main_ == 0)) return false;
  const NewElement element = makeElement(name, value, flags);
  const bool atEnd = asChild || main_ == 0;
  const ElementNumber parent = asChild ? main_ : parent_;
  const ElementNumber after = atEnd ? index_.lastChild(parent) : main_;
  // The line breaks, and the end tag that an empty tag of the parent becomes.
  const std::size_t extra = 2 * kLineBreak.size() + index_[parent].startTagLength + kEndTagMarks;
  const std::size_t room = element.text.size() + extra;
  if (!canGrowBy(room) || !closeUnclosed(after, room)) return false;

  if (index_[parent].has(ElementRecord::kEmptyTag)) fillEmptyTag(parent, {});
  const std::size_t at = atEnd ? ElementContent(text_, index_, parent).end() : behindLineOf(after);
  const ElementNumber added = addElement(parent, after, at, element);
  child_ = asChild ? added : 0;
  if (!asChild) main_ = added;
  return true;
}

// Writes `element` at the offset `at` and links it into `parent` behind its sibling `after`, which
// is 0 when `parent` has no child yet.
ElementNumber MarkupDocument::addElement(ElementNumber parent, ElementNumber after, std::size_t at,
                                         const NewElement& element) {
  const ElementContent content(text_, index_, parent);
  const bool ownLine = !holdsText(parent);
  const bool firstLine = ownLine && parent != 0 && content.start() == content.end();
  const std::u16string_view before = firstLine ? kLineBreak : std::u16string_view();
  const std::u16string_view behind = ownLine ? kLineBreak : std::u16string_view();
  const std::u16string piece = std::u16string(before).append(element.text).append(behind);
  index_.reserveOne();
  text_.insert(at, piece);

  const ElementNumber added = index_.add();
  index_.link(parent, after, added);
  ElementRecord& record = index_[added];
  record.start = static_cast<std::uint32_t>(at + before.size());
  record.startTagLength = element.startTagLength;
  record.length = static_cast<std::uint32_t>(element.text.size());
  record.flags = element.flags;
  const std::uint32_t by = growth(piece.size(), 0);
  lengthen(parent, by);
  moveFrom(index_.nextBehind(added), by);
  return added;
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
  moveFrom(index_.nextBehind(element), growth(piece.size(), kClosing));
}

// Gives `element` its end tag if that is missing, so that a sibling can follow it. The unclosed
// elements at its end get theirs first, since one of them might otherwise take the tag for its own.
// Returns false, with nothing changed, if the text could then not grow by `room` more.
bool MarkupDocument::closeUnclosed(ElementNumber element, std::size_t room) {
  if (!index_[element].has(ElementRecord::kError)) return true;
  ElementNumber innermost = element;
  while (index_[index_.lastChild(innermost)].has(ElementRecord::kError)) {
    innermost = index_.lastChild(innermost);
  }
  const ElementNumber parent = index_[element].parent;
  std::u16string piece;
  for (ElementNumber open = innermost; open != parent; open = index_[open].parent) {
    piece.append(endTag(StartTag(startTagOf(open)).name()));
  }
  if (!canGrowBy(piece.size() + room)) return false;
  text_.insert(index_[element].end(), piece);

  std::size_t length = 0;
  for (ElementNumber open = innermost; open != parent; open = index_[open].parent) {
    length += StartTag(startTagOf(open)).name().size() + kEndTagMarks;
    index_[open].length += growth(length, 0);
    index_[open].flags &= ~ElementRecord::kError;
  }
  lengthen(parent, growth(piece.size(), 0));
  moveFrom(index_.nextBehind(element), growth(piece.size(), 0));
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

// Adds to the length of `element` and of all elements around it, the document included.
void MarkupDocument::lengthen(ElementNumber element, std::uint32_t by) {
  for (; element != 0; element = index_[element].parent) index_[element].length += by;
  index_[0].length += by;
}

// Moves `first` and all elements whose start tags follow its own.
void MarkupDocument::moveFrom(ElementNumber first, std::uint32_t by) {
  for (; first != 0; first = index_.nextInText(first)) index_[first].start += by;
}

}  // namespace brennet
