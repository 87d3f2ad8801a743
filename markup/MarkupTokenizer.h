#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "markup/MarkupScanner.h"
#include "markup/Names.h"
#include "markup/ResultLog.h"

namespace brennet {

// One piece of a markup text: [start, end), in units from the beginning of the text.
struct MarkupToken {
  enum class Kind : std::uint8_t {
    StartTag,      // <a ...>
    EmptyTag,      // <a .../>
    EndTag,        // </a>
    Comment,       // <!-- ... -->
    CData,         // <![CDATA[ ... ]]>
    Instruction,   // <? ... ?>
    DocumentType,  // <!DOCTYPE ...>
    Literal,       // a "<" that starts no token and belongs to the surrounding text
    Exclamation,   // any other <! ...>; such a token is always malformed
    Malformed,     // any other token with a syntax error
    EndOfText,     // nothing is left; start and end are where the last token ends
  };

  Kind kind;
  // Only for Literal and Malformed.
  LogEvent problem;
  // Only when `problem` is UnterminatedTagSyntax: the kind that the token began as.
  Kind intended;
  // Whether the token has no end and so takes all the text that is left.
  bool endless;
  std::uint32_t start;
  std::uint32_t end;
};

// The name of a token kind in the result log.
[[nodiscard]] std::u16string_view kindName(MarkupToken::Kind kind);

// Splits a markup text of less than 2^32 units into tokens; the text between them is content.
//
// It never fails. A malformed token ends behind its ">" or, if it has none, swallows the rest of
// the text. Time is linear in the text, whatever it holds.
class MarkupTokenizer {
 public:
  // Tokens are searched for from the offset `from` on.
  explicit MarkupTokenizer(std::u16string_view text, std::size_t from = 0)
      : scanner_(text), at_(from) {}

  MarkupToken next();

  // Continues at `offset` with the next token.
  void skipTo(std::size_t offset) { at_ = offset; }

 private:
  using Kind = MarkupToken::Kind;

  [[nodiscard]] std::u16string_view text() const { return scanner_.text(); }
  [[nodiscard]] bool hasAt(std::size_t at, std::u16string_view expected) const {
    return text().substr(at, expected.size()) == expected;
  }

  using Offset = std::optional<std::size_t>;

  MarkupToken token(Kind kind, std::size_t start, std::size_t end) {
    at_ = end;
    return {kind,  LogEvent::FirstTagSyntax,          kind,
            false, static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(end)};
  }
  MarkupToken startTagUpTo(std::size_t start, std::size_t greater) {
    const Kind kind = text()[greater - 1] == u'/' ? Kind::EmptyTag : Kind::StartTag;
    return token(kind, start, greater + 1);
  }
  MarkupToken malformed(LogEvent problem, std::size_t start, Offset end);
  MarkupToken wrong(Kind intended, LogEvent problem, std::size_t start, Offset end);
  MarkupToken unterminated(Kind intended, std::size_t start, Offset end = std::nullopt);

  MarkupToken startTag(std::size_t start);

  MarkupToken endTag(std::size_t start);
  MarkupToken instruction(std::size_t start);
  MarkupToken exclamation(std::size_t start);
  MarkupToken comment(std::size_t start);
  MarkupToken cdata(std::size_t start);
  MarkupToken documentType(std::size_t start);

  // Each returns the offset behind what it searches for, or std::nullopt if there is none.
  Offset behindGreater(std::size_t from);
  Offset behindDelimiter(std::size_t from, std::u16string_view delimiter);
  Offset behindQuoted(std::size_t quoteAt);

  MarkupScanner scanner_;
  std::size_t at_;
};

}  // namespace brennet
