#include "markup/ElementContent.h"

#include <algorithm>

#include "markup/Escaping.h"
#include "markup/MarkupTokenizer.h"
#include "markup/Names.h"

namespace brennet {
namespace {

constexpr std::size_t kCDataStartLength = 9;  // <![CDATA[
constexpr std::size_t kCDataEndLength = 3;    // ]]>

std::size_t contentEnd(std::u16string_view text, const ElementIndex& index, ElementNumber number) {
  const ElementRecord& record = index[number];
  const bool hasEndTag =
      number != 0 && !record.has(ElementRecord::kEmptyTag | ElementRecord::kError);
  // The only "<" in an end tag is its first character.
  return hasEndTag ? text.rfind(u'<', record.end() - 1) : record.end();
}

}  // namespace

ElementContent::ElementContent(std::u16string_view text, const ElementIndex& index,
                               ElementNumber number)
    : text_(text),
      index_(index),
      number_(number),
      start_(index[number].contentStart()),
      end_(contentEnd(text, index, number)) {}

// Calls visit(run, isCData) for each piece of the element's own text, as it is written, until that
// returns false.
template <typename Visitor>
void ElementContent::visitRuns(Visitor visit) const {
  using Kind = MarkupToken::Kind;
  MarkupTokenizer tokenizer(text_.substr(0, end_), start_);
  ElementNumber child = index_.firstChild(number_);
  std::size_t runStart = start_;
  for (;;) {
    const MarkupToken token = tokenizer.next();
    if (token.kind == Kind::Literal) continue;
    const std::size_t runEnd = token.kind == Kind::EndOfText ? end_ : token.start;
    if (!visit(text_.substr(runStart, runEnd - runStart), false)) return;
    if (token.kind == Kind::EndOfText) return;
    runStart = token.end;
    if (token.kind == Kind::CData) {
      const std::size_t start = token.start + kCDataStartLength;
      if (!visit(text_.substr(start, token.end - kCDataEndLength - start), true)) return;
    } else if (token.kind == Kind::StartTag || token.kind == Kind::EmptyTag) {
      runStart = index_[child].end();
      child = index_.behind(child);
      tokenizer.skipTo(runStart);
    }
  }
}

bool ElementContent::isPlain() const {
  const std::u16string_view content = text();
  return std::none_of(content.begin(), content.end(),
                      [](char16_t unit) { return unit == u'<' || unit == u'&'; });
}

std::u16string ElementContent::data() const {
  if (text().find(u'<') == std::u16string_view::npos) return unescaped(text());
  std::u16string data;
  visitRuns([&data](std::u16string_view run, bool isCData) {
    if (isCData) {
      data.append(run);
    } else {
      appendUnescaped(run, data);
    }
    return true;
  });
  return data;
}

bool ElementContent::holdsText() const {
  bool found = false;
  visitRuns([&found](std::u16string_view run, bool) {
    found = !std::all_of(run.begin(), run.end(), isMarkupSpace);
    return !found;
  });
  return found;
}

}  // namespace brennet
