#include "markup/StartTag.h"

#include "markup/Names.h"

namespace brennet {
namespace {

bool isQuote(char16_t unit) {
  return unit == u'"' || unit == u'\'';
}

}  // namespace

StartTag::StartTag(std::u16string_view tag) : tag_(tag.data()), at_(1), end_(tag.size() - 1) {
  const bool isInstruction = tag.size() > 1 && tag[1] == u'?';
  if (isInstruction) ++at_;
  // Attributes end in front of "/>", or "?>" of an instruction.
  if (end_ > at_ && tag[end_ - 1] == (isInstruction ? u'?' : u'/')) --end_;
  name_ = readName();
}

std::optional<MarkupAttribute> StartTag::next() {
  skipToName();
  if (at_ == end_) return std::nullopt;
  MarkupAttribute attribute{};
  attribute.name = readName();
  attribute.replaceStart = at_;
  attribute.replaceEnd = at_;
  skipSpace();
  if (at_ < end_ && tag_[at_] == u'=') {
    ++at_;
    attribute.value = readValue();
    attribute.replaceEnd = at_;
  }
  return attribute;
}

std::optional<MarkupAttribute> StartTag::find(std::u16string_view name) {
  std::optional<MarkupAttribute> attribute = next();
  while (attribute && attribute->name != name) attribute = next();
  return attribute;
}

std::u16string_view StartTag::readName() {
  const std::size_t start = at_;
  while (at_ < end_ && isNameUnit(tag_[at_])) ++at_;
  return {tag_ + start, at_ - start};
}

void StartTag::skipSpace() {
  while (at_ < end_ && isMarkupSpace(tag_[at_])) ++at_;
}

// A quoted string without a name is skipped as a whole.
void StartTag::skipToName() {
  while (at_ < end_ && !isNameUnit(tag_[at_])) {
    if (isQuote(tag_[at_])) {
      readValue();
    } else {
      ++at_;
    }
  }
}

// Starts behind "=" (or at a quote) and ends behind the value. A value without quotes comes
// directly after "="; if white space follows that, the value is missing.
std::u16string_view StartTag::readValue() {
  const std::size_t unquoted = at_;
  skipSpace();
  if (at_ < end_ && isQuote(tag_[at_])) {
    const std::size_t start = at_ + 1;
    const char16_t quote = tag_[at_];
    for (at_ = start; at_ < end_ && tag_[at_] != quote;) ++at_;
    const std::u16string_view value(tag_ + start, at_ - start);
    if (at_ < end_) ++at_;
    return value;
  }
  at_ = unquoted;
  while (at_ < end_ && !isMarkupSpace(tag_[at_]) && !isQuote(tag_[at_])) ++at_;
  return {tag_ + unquoted, at_ - unquoted};
}

}  // namespace brennet
