#include "markup/MarkupTokenizer.h"

#include <array>

#include "markup/Names.h"

namespace brennet {
namespace {

constexpr std::u16string_view kCommentStart = u"<!--";
constexpr std::u16string_view kCDataStart = u"<![CDATA[";
constexpr std::u16string_view kDocumentTypeStart = u"<!DOCTYPE";
constexpr std::u16string_view kInstructionStart = u"<?";

}  // namespace

std::u16string_view kindName(MarkupToken::Kind kind) {
  switch (kind) {
    case MarkupToken::Kind::EndTag:
      return u"end_tag";
    case MarkupToken::Kind::Comment:
      return u"comment";
    case MarkupToken::Kind::CData:
      return u"cdata_section";
    case MarkupToken::Kind::Instruction:
      return u"processing_instruction";
    case MarkupToken::Kind::DocumentType:
      return u"document_type";
    case MarkupToken::Kind::Exclamation:
      return u"exclamation_tag";
    default:
      return u"start_tag";
  }
}

MarkupToken MarkupTokenizer::next() {
  const std::size_t start = scanner_.findLess(at_);
  if (start == text().size()) return token(Kind::EndOfText, at_, at_);
  const char16_t first = start + 1 < text().size() ? text()[start + 1] : u'\0';
  if (isNameStart(first)) return startTag(start);
  switch (first) {
    case u'/':
      return endTag(start);
    case u'?':
      return instruction(start);
    case u'!':
      return exclamation(start);
    default:
      return token(Kind::Literal, start, start + 1);
  }
}

// Without an end the token swallows the rest of the text.
MarkupToken MarkupTokenizer::malformed(LogEvent problem, std::size_t start, Offset end) {
  MarkupToken result = token(Kind::Malformed, start, end.value_or(text().size()));
  result.problem = problem;
  result.endless = !end;
  return result;
}

MarkupToken MarkupTokenizer::unterminated(Kind intended, std::size_t start, Offset end) {
  MarkupToken result = malformed(LogEvent::UnterminatedTagSyntax, start, end);
  result.intended = intended;
  return result;
}

// A missing ">" is the problem of a token, whatever else is wrong with it.
MarkupToken MarkupTokenizer::wrong(Kind intended, LogEvent problem, std::size_t start, Offset end) {
  return end ? malformed(problem, start, end) : unterminated(intended, start);
}

// ">" inside a quoted string does not end a start tag.
MarkupToken MarkupTokenizer::startTag(std::size_t start) {
  std::size_t stop = scanner_.findTagStop(start + 2);
  while (stop < text().size() && text()[stop] != u'>') {
    stop = scanner_.findTagStop(behindQuoted(stop).value_or(text().size()));
  }
  if (stop == text().size()) return unterminated(Kind::StartTag, start);
  return startTagUpTo(start, stop);
}

// A "<" in front of the ">" belongs to the next token: the last "</" of an element that has its
// end tag is always the beginning of that tag.
MarkupToken MarkupTokenizer::endTag(std::size_t start) {
  std::size_t stop = scanner_.findStructural(start + 2);
  while (stop < text().size() && text()[stop] != u'>' && text()[stop] != u'<') {
    stop = scanner_.findStructural(stop + 1);
  }
  if (stop == text().size()) return unterminated(Kind::EndTag, start);
  if (text()[stop] == u'<') return unterminated(Kind::EndTag, start, stop);
  return token(Kind::EndTag, start, stop + 1);
}

MarkupToken MarkupTokenizer::instruction(std::size_t start) {
  const auto end = behindDelimiter(start + kInstructionStart.size(), u"?>");
  return end ? token(Kind::Instruction, start, *end) : unterminated(Kind::Instruction, start);
}

MarkupToken MarkupTokenizer::exclamation(std::size_t start) {
  const char16_t first = start + 2 < text().size() ? text()[start + 2] : u'\0';
  switch (first) {
    case u'-':
      return comment(start);
    case u'[':
      return cdata(start);
    case u'D':
      return documentType(start);
    default:
      return wrong(Kind::Exclamation, LogEvent::ExclamationTagSyntax, start, behindGreater(start));
  }
}

// Properly begun comments and CDATA sections have a log entry of their own for a missing end.
MarkupToken MarkupTokenizer::comment(std::size_t start) {
  constexpr auto kProblem = LogEvent::CommentTagSyntax;
  if (!hasAt(start, kCommentStart)) {
    return wrong(Kind::Comment, kProblem, start, behindGreater(start));
  }
  const auto end = behindDelimiter(start + kCommentStart.size(), u"-->");
  return end ? token(Kind::Comment, start, *end) : malformed(kProblem, start, end);
}

MarkupToken MarkupTokenizer::cdata(std::size_t start) {
  constexpr auto kProblem = LogEvent::CDataSectionSyntax;
  if (!hasAt(start, kCDataStart)) {
    return wrong(Kind::CData, kProblem, start, behindGreater(start));
  }
  const auto end = behindDelimiter(start + kCDataStart.size(), u"]]>");
  return end ? token(Kind::CData, start, *end) : malformed(kProblem, start, end);
}

// The declarations between "[" and "]" are searched only for quoted strings, comments and
// instructions, which may hold brackets and ">".
MarkupToken MarkupTokenizer::documentType(std::size_t start) {
  constexpr auto kProblem = LogEvent::DoctypeTagSyntax;
  if (!hasAt(start, kDocumentTypeStart)) {
    return wrong(Kind::DocumentType, kProblem, start, behindGreater(start));
  }
  std::size_t depth = 0;
  Offset at = start + kDocumentTypeStart.size();
  while (at && *at < text().size()) {
    const char16_t unit = text()[*at];
    if (unit == u'"' || unit == u'\'') {
      at = behindQuoted(*at);
    } else if (hasAt(*at, kCommentStart)) {
      at = behindDelimiter(*at + kCommentStart.size(), u"-->");
    } else if (hasAt(*at, kInstructionStart)) {
      at = behindDelimiter(*at + kInstructionStart.size(), u"?>");
    } else if (unit == u'>' && depth == 0) {
      return token(Kind::DocumentType, start, *at + 1);
    } else if (unit == u']' && depth == 0) {
      return wrong(Kind::DocumentType, kProblem, start, behindGreater(*at));
    } else {
      depth += unit == u'[' ? 1U : 0U;
      depth -= unit == u']' ? 1U : 0U;
      ++*at;
    }
  }
  return unterminated(Kind::DocumentType, start);
}

MarkupTokenizer::Offset MarkupTokenizer::behindGreater(std::size_t from) {
  return behindDelimiter(from, u">");
}

// `delimiter` ends with ">" and must lie wholly at or behind `from`.
MarkupTokenizer::Offset MarkupTokenizer::behindDelimiter(std::size_t from,
                                                         std::u16string_view delimiter) {
  if (text().size() < from + delimiter.size()) return std::nullopt;
  std::size_t stop = scanner_.findTagStop(from + delimiter.size() - 1);
  while (stop < text().size() && !hasAt(stop + 1 - delimiter.size(), delimiter)) {
    stop = scanner_.findTagStop(stop + 1);
  }
  if (stop == text().size()) return std::nullopt;
  return stop + 1;
}

MarkupTokenizer::Offset MarkupTokenizer::behindQuoted(std::size_t quoteAt) {
  const char16_t quote = text()[quoteAt];
  std::size_t stop = scanner_.findTagStop(quoteAt + 1);
  while (stop < text().size() && text()[stop] != quote) stop = scanner_.findTagStop(stop + 1);
  if (stop == text().size()) return std::nullopt;
  return stop + 1;
}

}  // namespace brennet
