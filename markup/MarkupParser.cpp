#include "markup/MarkupParser.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <vector>

#include "markup/MarkupTokenizer.h"
#include "markup/Names.h"
#include "markup/OpenElements.h"
#include "markup/TagMarks.h"
#include "markup/text/Sse2.h"

namespace brennet {
namespace {

// Whether a ">" behind `tag` is certainly outside its quotes.
bool hasQuotesInPairs(std::u16string_view tag) {
  return tag.find(u'\'') == std::u16string_view::npos &&
         std::count(tag.begin(), tag.end(), u'"') % 2 == 0;
}

// Whether the first `count` units of two texts are the same. `readable` is how many there are at
// least in each. Most names are short, and a call of memcmp takes longer than to compare them.
bool areSame(const char16_t* one, const char16_t* other, std::size_t count, std::size_t readable) {
#if BRENNET_HAS_SSE2
  constexpr std::size_t kTogether = 8;
  if (count <= kTogether && readable >= kTogether) {
    const __m128i equal = _mm_cmpeq_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(one)),
                                          _mm_loadu_si128(reinterpret_cast<const __m128i*>(other)));
    const auto different = ~static_cast<unsigned>(_mm_movemask_epi8(equal));
    return (different & ((1U << 2 * count) - 1)) == 0;
  }
#endif
  return readable >= count && std::memcmp(one, other, count * sizeof(char16_t)) == 0;
}

class MarkupParser {
 public:
  MarkupParser(std::u16string_view text, ResultLog& log)
      : text_(text),
        log_(log),
        index_(text.size() / kUnitsPerElement + kSpareElements),
        tokenizer_(text),
        documentEnd_(text.size()) {}

  ElementIndex parse();

 private:
  // How many units an element takes in a typical document; more elements make the index grow.
  static constexpr std::size_t kUnitsPerElement = 64;
  static constexpr std::size_t kSpareElements = 8;

  void parsePiece();
  std::size_t parsePlainTags(std::size_t mark);
  void parseToken(std::size_t start);
  void openElement(std::size_t start, std::size_t end, bool isEmptyTag);
  ElementNumber addElement(std::size_t start, std::size_t tagEnd, std::size_t end,
                           std::uint32_t flags);
  void makeRoom(std::size_t at);
  void closeElement(std::size_t start, std::size_t end);
  void leaveUnclosed(std::size_t end);
  void leave();
  void logProblem(const MarkupToken& token);
  void finish();

  [[nodiscard]] std::u16string_view nameAt(std::size_t start) const {
    return leadingName(text_.substr(start));
  }
  [[nodiscard]] std::u16string_view nameOf(ElementNumber element) const {
    return nameAt(index_[element].start + 1);
  }
  [[nodiscard]] bool isEndTagOf(std::size_t start, std::size_t mark) const;
  [[nodiscard]] bool beginsLike(std::size_t start, std::size_t closing,
                                std::size_t closingEnd) const;
  [[nodiscard]] bool closesCurrent(std::size_t start, std::size_t end) const;
  ElementNumber findOpen(std::u16string_view name);

  std::u16string_view text_;
  ResultLog& log_;
  ElementIndex index_;
  TagMarks marks_;
  MarkupTokenizer tokenizer_;
  std::size_t at_ = 0;  // behind the last token
  std::size_t documentEnd_;
  std::vector<ElementNumber> open_;  // from the root inwards
  ElementNumber current_ = 0;        // the innermost open element
  bool rootHasSibling_ = false;
  std::optional<OpenElements> openElements_;  // set from the first misplaced end tag on
};

ElementIndex MarkupParser::parse() {
  while (at_ < text_.size()) {
    marks_.list(text_, at_);
    parsePiece();
  }
  finish();
  return std::move(index_);
}

// Most tags are two neighbouring marks. For all other tokens the tokenizer is asked, and the marks
// in them are passed over.
void MarkupParser::parsePiece() {
  const std::size_t pieceStart = at_;
  for (std::size_t mark = 0; mark < marks_.count();) {
    const std::size_t start = marks_[mark];
    const bool isLast = mark + 1 == marks_.count();
    if (text_[start] == u'>') {
      ++mark;
    } else if (const std::size_t taken = isLast ? 0 : parsePlainTags(mark); taken != 0) {
      mark += taken;
    } else if (isLast && start != pieceStart && marks_.end() != text_.size()) {
      at_ = start;  // the next piece shows how it goes on
      return;
    } else {
      parseToken(start);
      while (mark < marks_.count() && marks_[mark] < at_) ++mark;
    }
  }
  at_ = std::max(at_, marks_.end());
}

// Reads the start tag, the empty tag or the end tag whose ends are this mark and the next, and with
// a start tag the end tag that follows it, if that is its own: most elements of a settings file
// hold only a number. Returns how many marks these are, 0 if there is no such tag.
std::size_t MarkupParser::parsePlainTags(std::size_t mark) {
  constexpr std::size_t kOneTag = 2;
  constexpr std::size_t kTwoTags = 4;
  const std::size_t start = marks_[mark];
  const std::size_t last = marks_[mark + 1];
  if (text_[last] != u'>') return 0;
  const char16_t first = text_[start + 1];
  if (first == u'/') {
    closeElement(start, last + 1);
    return kOneTag;
  }
  const bool isStartTag =
      isNameStart(first) &&
      (!marks_.quotesMatter() || hasQuotesInPairs(text_.substr(start, last - start)));
  if (!isStartTag) return 0;
  if (text_[last - 1] != u'/' && mark + kTwoTags <= marks_.count() &&
      isEndTagOf(start, mark + kOneTag)) {
    addElement(start, last + 1, marks_[mark + kTwoTags - 1] + 1, 0);
    return kTwoTags;
  }
  openElement(start, last + 1, text_[last - 1] == u'/');
  return kOneTag;
}

void MarkupParser::parseToken(std::size_t start) {
  using Kind = MarkupToken::Kind;
  tokenizer_.skipTo(start);
  const MarkupToken token = tokenizer_.next();
  at_ = token.end;
  if (token.kind == Kind::StartTag || token.kind == Kind::EmptyTag) {
    openElement(token.start, token.end, token.kind == Kind::EmptyTag);
  } else if (token.kind == Kind::EndTag) {
    closeElement(token.start, token.end);
  } else if (token.kind == Kind::Literal || token.kind == Kind::Malformed) {
    logProblem(token);
    // Later additions must stay in front of a token without an end.
    if (token.endless) documentEnd_ = token.start;
  }
}

void MarkupParser::openElement(std::size_t start, std::size_t end, bool isEmptyTag) {
  const ElementNumber element =
      addElement(start, end, end, isEmptyTag ? ElementRecord::kEmptyTag : 0U);
  if (isEmptyTag) return;
  current_ = element;
  open_.push_back(element);
  if (openElements_) openElements_->open(nameOf(element), element);
}

ElementNumber MarkupParser::addElement(std::size_t start, std::size_t tagEnd, std::size_t end,
                                       std::uint32_t flags) {
  if (current_ == 0 && index_.size() > 1 && !rootHasSibling_) {
    rootHasSibling_ = true;
    log_.add(LogEvent::RootHasSibling, static_cast<std::int64_t>(start));
  }
  if (index_.isFull()) makeRoom(start);
  return index_.add({.start = static_cast<std::uint32_t>(start),
                     .startTagLength = static_cast<std::uint32_t>(tagEnd - start),
                     .length = static_cast<std::uint32_t>(end - start),
                     .count = 1,
                     .flags = flags});
}

// For as many elements as there will be if they go on as close together as they are in front of
// `at`, but not for many more than there are.
void MarkupParser::makeRoom(std::size_t at) {
  const std::size_t count = index_.size();
  const auto expected =
      static_cast<std::uint64_t>(count) * text_.size() / std::max<std::size_t>(at, 1);
  const std::uint64_t least = count + count / 8;
  const std::uint64_t most = 2 * static_cast<std::uint64_t>(count);
  index_.reserve(static_cast<std::size_t>(std::clamp(expected + expected / 32, least, most)) +
                 kSpareElements);
}

void MarkupParser::closeElement(std::size_t start, std::size_t end) {
  if (!closesCurrent(start, end)) {
    const std::u16string_view name = nameAt(start + 2);
    const ElementNumber match = findOpen(name);
    if (match == 0) {
      log_.add(LogEvent::LoneEndTag, name, static_cast<std::int64_t>(start));
      return;
    }
    while (current_ != match) leaveUnclosed(start);
  }
  index_[current_].length = static_cast<std::uint32_t>(end) - index_[current_].start;
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
  index_[current_].count = static_cast<std::uint32_t>(index_.size()) - current_;
  open_.pop_back();
  current_ = open_.empty() ? 0 : open_.back();
}

// Whether the two marks are the ends of an end tag for the start tag at `start`.
bool MarkupParser::isEndTagOf(std::size_t start, std::size_t mark) const {
  const std::size_t closing = marks_[mark];
  const std::size_t last = marks_[mark + 1];
  return text_[closing] == u'<' && text_[closing + 1] == u'/' && text_[last] == u'>' &&
         beginsLike(start, closing, last + 1);
}

// Whether the start tag at `start` begins with the whole content of the end tag in
// [closing, closingEnd), and the name ends there: then the names are the same. Misses `<a></a >`.
bool MarkupParser::beginsLike(std::size_t start, std::size_t closing,
                              std::size_t closingEnd) const {
  constexpr std::size_t kEndTagMarks = 3;  // "</" and ">"
  const std::size_t length = closingEnd - closing - kEndTagMarks;
  // The end tag follows the start tag, so there are `length` units and more behind its "<" too.
  const char16_t* const name = text_.data() + start + 1;
  const std::size_t nameInEndTag = closing + 2;
  return length > 0 && !isNameUnit(name[length]) &&
         areSame(name, text_.data() + nameInEndTag, length, text_.size() - nameInEndTag);
}

bool MarkupParser::closesCurrent(std::size_t start, std::size_t end) const {
  if (current_ == 0) return false;
  if (beginsLike(index_[current_].start, start, end)) return true;
  const std::u16string_view name = nameAt(start + 2);
  const std::u16string_view tag = text_.substr(index_[current_].start + 1);
  return !name.empty() && tag.starts_with(name) && !isNameUnit(tag[name.size()]);
}

ElementNumber MarkupParser::findOpen(std::u16string_view name) {
  if (!openElements_) {
    openElements_.emplace();
    for (const ElementNumber element : open_) openElements_->open(nameOf(element), element);
  }
  return openElements_->find(name);
}

void MarkupParser::logProblem(const MarkupToken& token) {
  const bool unterminated = token.problem == LogEvent::UnterminatedTagSyntax;
  log_.add(token.problem, unterminated ? kindName(token.intended) : std::u16string_view(),
           token.start);
}

void MarkupParser::finish() {
  while (current_ != 0) leaveUnclosed(documentEnd_);
  index_[0].length = static_cast<std::uint32_t>(documentEnd_);
  index_[0].count = static_cast<std::uint32_t>(index_.size());
  if (index_.size() == 1) log_.add(LogEvent::NoRootElement);
}

}  // namespace

ElementIndex parseMarkup(std::u16string_view text, ResultLog& log) {
  return MarkupParser(text, log).parse();
}

}  // namespace brennet
