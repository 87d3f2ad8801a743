#include "markup/MarkupParser.h"

#include <cstring>
#include <optional>

#include "markup/MarkupTokenizer.h"
#include "markup/Names.h"
#include "markup/OpenElements.h"

namespace brennet {
namespace {

class MarkupParser {
 public:
  MarkupParser(std::u16string_view text, ResultLog& log)
      : text_(text), log_(log), index_(text.size() / kUnitsPerElement + kSpareElements) {}

  ElementIndex parse();

 private:
  // How many units an element takes in a typical document; more elements make the index grow.
  static constexpr std::size_t kUnitsPerElement = 64;
  static constexpr std::size_t kSpareElements = 8;
  static constexpr std::size_t kEndTagMarks = 3;  // "</" and ">"

  void openElement(const MarkupToken& token);
  void closeElement(const MarkupToken& endTag);
  void leaveUnclosed(std::size_t end);
  void leave();
  void logProblem(const MarkupToken& token);
  void finish(std::size_t end);

  [[nodiscard]] std::u16string_view nameAt(std::size_t start) const {
    return leadingName(text_.substr(start));
  }
  [[nodiscard]] std::u16string_view nameOf(ElementNumber element) const {
    return nameAt(index_[element].start + 1);
  }
  [[nodiscard]] bool beginsLike(const MarkupToken& endTag) const;
  [[nodiscard]] bool closesCurrent(const MarkupToken& endTag) const;
  ElementNumber findOpen(std::u16string_view name);

  std::u16string_view text_;
  ResultLog& log_;
  ElementIndex index_;
  ElementNumber current_ = 0;  // the innermost open element
  bool rootHasSibling_ = false;
  std::optional<OpenElements> openElements_;  // set from the first misplaced end tag on
};

ElementIndex MarkupParser::parse() {
  using Kind = MarkupToken::Kind;
  MarkupTokenizer tokenizer(text_);
  std::size_t end = text_.size();
  for (MarkupToken token = tokenizer.next(); token.kind != Kind::EndOfText;
       token = tokenizer.next()) {
    if (token.kind == Kind::StartTag || token.kind == Kind::EmptyTag) {
      openElement(token);
    } else if (token.kind == Kind::EndTag) {
      closeElement(token);
    } else if (token.kind == Kind::Literal || token.kind == Kind::Malformed) {
      logProblem(token);
      // Later additions must stay in front of a token without an end.
      if (token.endless) end = token.start;
    }
  }
  finish(end);
  return std::move(index_);
}

void MarkupParser::openElement(const MarkupToken& token) {
  if (current_ == 0 && index_[0].firstChild != 0 && !rootHasSibling_) {
    rootHasSibling_ = true;
    log_.add(LogEvent::RootHasSibling, token.start);
  }
  const ElementNumber element = index_.add();
  ElementRecord& record = index_[element];
  record.start = token.start;
  record.startTagLength = token.end - token.start;
  record.length = record.startTagLength;
  record.flags = ElementRecord::kElement;
  index_.append(current_, element);
  if (token.kind == MarkupToken::Kind::EmptyTag) {
    record.flags |= ElementRecord::kEmptyTag;
    return;
  }
  current_ = element;
  if (openElements_) openElements_->open(nameOf(element), element);
}

void MarkupParser::closeElement(const MarkupToken& endTag) {
  if (!closesCurrent(endTag)) {
    const std::u16string_view name = nameAt(endTag.start + 2);
    const ElementNumber match = findOpen(name);
    if (match == 0) {
      log_.add(LogEvent::LoneEndTag, name, endTag.start);
      return;
    }
    while (current_ != match) leaveUnclosed(endTag.start);
  }
  index_[current_].length = endTag.end - index_[current_].start;
  leave();
}

void MarkupParser::leaveUnclosed(std::size_t end) {
  ElementRecord& record = index_[current_];
  record.length = static_cast<std::uint32_t>(end) - record.start;
  record.flags |= ElementRecord::kError;
  if (!log_.isFull()) {
    log_.add(LogEvent::UnendedStartTag, nameOf(current_), record.start,
             static_cast<std::int64_t>(end));
  }
  leave();
}

void MarkupParser::leave() {
  if (openElements_) openElements_->close(nameOf(current_));
  current_ = index_[current_].parent;
}

// Whether the start tag of the innermost open element begins with the whole content of `endTag`,
// and the name ends there: then the names are the same. Misses `<a></a >`.
bool MarkupParser::beginsLike(const MarkupToken& endTag) const {
  const std::size_t start = index_[current_].start + 1;
  const std::size_t length = endTag.end - endTag.start - kEndTagMarks;
  // The end tag follows the start tag, so there are `length` units behind `start` too.
  return length > 0 && !isNameUnit(text_[start + length]) &&
         std::memcmp(text_.data() + start, text_.data() + endTag.start + 2,
                     length * sizeof(char16_t)) == 0;
}

bool MarkupParser::closesCurrent(const MarkupToken& endTag) const {
  if (current_ == 0) return false;
  if (beginsLike(endTag)) return true;
  const std::u16string_view name = nameAt(endTag.start + 2);
  const std::u16string_view tag = text_.substr(index_[current_].start + 1);
  return !name.empty() && tag.starts_with(name) && !isNameUnit(tag[name.size()]);
}

ElementNumber MarkupParser::findOpen(std::u16string_view name) {
  if (!openElements_) {
    std::vector<ElementNumber> outwards;
    for (ElementNumber at = current_; at != 0; at = index_[at].parent) outwards.push_back(at);
    openElements_.emplace();
    for (; !outwards.empty(); outwards.pop_back()) {
      openElements_->open(nameOf(outwards.back()), outwards.back());
    }
  }
  return openElements_->find(name);
}

void MarkupParser::logProblem(const MarkupToken& token) {
  const bool unterminated = token.problem == LogEvent::UnterminatedTagSyntax;
  log_.add(token.problem, unterminated ? kindName(token.intended) : std::u16string_view(),
           token.start);
}

void MarkupParser::finish(std::size_t end) {
  index_[0].length = static_cast<std::uint32_t>(end);
  while (current_ != 0) leaveUnclosed(end);
  if (index_[0].firstChild == 0) log_.add(LogEvent::NoRootElement);
}

}  // namespace

ElementIndex parseMarkup(std::u16string_view text, ResultLog& log) {
  return MarkupParser(text, log).parse();
}

}  // namespace brennet
