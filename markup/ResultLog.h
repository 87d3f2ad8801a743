#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "markup/text/TextLog.h"

namespace brennet {

// What reading a markup text may report; TextEvent has the rest.
enum class LogEvent : std::uint8_t {
  // Syntax errors of single tokens: offset.
  FirstTagSyntax,
  DoctypeTagSyntax,
  ExclamationTagSyntax,
  CommentTagSyntax,
  CDataSectionSyntax,
  // A token without its end: type (the kind of the token), offset.
  UnterminatedTagSyntax,
  // Tags that do not match: tagname, offset; the first also has offset2, where the element was
  // closed.
  UnendedStartTag,
  LoneEndTag,
  // Errors of the whole document: nothing; offset.
  NoRootElement,
  RootHasSibling,
};

// The account of the last load, save or parse: a small markup text of empty elements, one per
// event, such as `<read encoding="gb2312" length="123"/>`.
class ResultLog final : public TextLog {
 public:
  // The log accepts no event once it has this many units.
  static constexpr std::size_t kFull = 1000;
  // Appends `event` with its attributes: a text, then numbers. Values without an attribute and
  // unknown numbers are not written. Does nothing when the log is full.
  void add(LogEvent event, std::u16string_view text, std::int64_t number = kUnknown,
           std::int64_t number2 = kUnknown);
  void add(LogEvent event, std::int64_t number = kUnknown) { add(event, {}, number); }
  using TextLog::add;
  void add(TextEvent event, std::u16string_view text, std::int64_t number) override;

  // Whether further events would be dropped, so that a caller need not prepare them.
  [[nodiscard]] bool isFull() const { return text_.size() >= kFull; }
  [[nodiscard]] const std::u16string& text() const { return text_; }

 private:
  std::u16string text_;
};

}  // namespace brennet
