#include "markup/StartTag.h"

#include "markup/Names.h"

namespace brennet {
namespace {

bool isQuote(char16_t unit) {
  return unit == u'"' || unit == u'\'';
}

}  // namespace

StartTag::StartTag(std::u16string_view tag) : tag_(tag) {
  const bool isInstruction = tag.starts_with(u"<?");
  const std::u16string_view closing = isInstruction ? u"?>" : u"/>";
  end_ = tag.size() - (tag.ends_with(closing) ? 2 : 1);
  at_ = isInstruction ? 2 : 1;
  name_ = leadingName(tag.substr(at_, end_ - at_));
  at_ += name_.size();
}

std::optional<MarkupAttribute> StartTag::next() {
  skipToName();
  if (at_ == end_) return std::nullopt;
  MarkupAttribute attribute{};
  attribute.name = leadingName(tag_.substr(at_, end_ - at_));
  at_ += attribute.name.size();
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

// Starts behind "=" (or at a quote) and ends behind the value. A value without quotes stands
// directly behind "="; where white space follows that, the value is missing.
std::u16string_view StartTag::readValue() {
  const std::size_t unquoted = at_;
  skipSpace();
  if (at_ < end_ && isQuote(tag_[at_])) {
    const std::size_t start = at_ + 1;
    const std::size_t close = tag_.substr(0, end_).find(tag_[at_], start);
    at_ = close == std::u16string_view::npos ? end_ : close + 1;
    return tag_.substr(start, (close == std::u16string_view::npos ? end_ : close) - start);
  }
  at_ = unquoted;
  while (at_ < end_ && !isMarkupSpace(tag_[at_]) && !isQuote(tag_[at_])) ++at_;
  return tag_.substr(unquoted, at_ - unquoted);
}

}  // namespace brennet
