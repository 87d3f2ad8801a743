#include "markup/MarkupWriter.h"

#include <algorithm>
#include <cstring>

#include "markup/Escaping.h"

namespace brennet {
namespace {

// What a group of settings takes.
constexpr std::size_t kUsualUnits = 4096;
constexpr std::size_t kUsualElements = 128;
constexpr std::size_t kUsualDepth = 4;
constexpr std::size_t kMarks = 8;  // room for all marks that one operation writes

}  // namespace

// Makes room for that many units, and for kMarks behind a value that gets longer by escaping.
// Inline like the next one, because there is nearly always room.
inline void MarkupWriter::reserve(std::size_t units) {
  if (text_.size() - length_ < units) grow(units);
}

// There is room for `text`. Inline and without a call, as nearly all that is written are a few
// units.
inline void MarkupWriter::put(std::u16string_view text) {
  char16_t* at = text_.data() + length_;
  const char16_t* from = text.data();
  std::size_t rest = text.size();
  for (; rest >= 4; rest -= 4, at += 4, from += 4) std::memcpy(at, from, 4 * sizeof(char16_t));
  if ((rest & 2U) != 0) {
    std::memcpy(at, from, 2 * sizeof(char16_t));
    at += 2;
    from += 2;
  }
  if ((rest & 1U) != 0) *at = *from;
  length_ += text.size();
}

MarkupWriter::MarkupWriter() : text_(kUsualUnits, u'\0') {
  elements_.reserve(kUsualElements);
  open_.reserve(kUsualDepth);
}

void MarkupWriter::open(std::u16string_view name) {
  reserve(name.size() + kMarks);
  if (isInStartTag_) {
    put(u">");
    endStartTag();
    put(u"\r\n");
  }
  open_.push_back({name, elements_.size()});
  elements_.push_back({.start = static_cast<std::uint32_t>(length_),
                       .startTagLength = 0,
                       .length = 0,
                       .count = 1,
                       .flags = 0});
  put(u"<");
  put(name);
  isInStartTag_ = true;
}

void MarkupWriter::attribute(std::u16string_view name, std::u16string_view value) {
  reserve(name.size() + value.size() + kMarks);
  put(u" ");
  put(name);
  put(u"=\"");
  putValue(value);
  put(u"\"");
}

void MarkupWriter::text(std::u16string_view value) {
  if (value.empty()) return;
  reserve(value.size() + kMarks);
  put(u">");
  endStartTag();
  putValue(value);
}

void MarkupWriter::close() {
  const Open element = open_.back();
  open_.pop_back();
  reserve(element.name.size() + kMarks);
  ElementRecord& record = elements_[element.number];
  if (isInStartTag_) {
    put(u"/>");
    endStartTag();
    record.flags = ElementRecord::kEmptyTag;
  } else {
    put(u"</");
    put(element.name);
    put(u">");
  }
  record.length = static_cast<std::uint32_t>(length_) - record.start;
  record.count = static_cast<std::uint32_t>(elements_.size() - element.number);
  put(u"\r\n");
}

void MarkupWriter::endStartTag() {
  ElementRecord& record = elements_.back();
  record.startTagLength = static_cast<std::uint32_t>(length_) - record.start;
  isInStartTag_ = false;
}

void MarkupWriter::grow(std::size_t units) {
  text_.resize(std::max(2 * text_.size(), length_ + units));
}

// There is room for `value` as it is.
void MarkupWriter::putValue(std::u16string_view value) {
  if (!needsEscaping(value)) {
    put(value);
    return;
  }
  std::u16string escaped;
  appendEscaped(value, escaped);
  reserve(escaped.size() + kMarks);
  put(escaped);
}

}  // namespace brennet
