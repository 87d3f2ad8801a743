#include "markup/ResultLog.h"

#include <string>

#include "markup/Escaping.h"

namespace brennet {
namespace {

// The element name of an event and the names of its attributes, empty where it has none.
struct EventNames {
  LogEvent event;
  std::u16string_view token;
  std::u16string_view text;
  std::u16string_view number;
  std::u16string_view number2;
};

constexpr EventNames kEventNames[] = {
    {LogEvent::FirstTagSyntax, u"first_tag_syntax", {}, u"offset", {}},
    {LogEvent::DoctypeTagSyntax, u"doctype_tag_syntax", {}, u"offset", {}},
    {LogEvent::ExclamationTagSyntax, u"exclamation_tag_syntax", {}, u"offset", {}},
    {LogEvent::CommentTagSyntax, u"comment_tag_syntax", {}, u"offset", {}},
    {LogEvent::CDataSectionSyntax, u"cdata_section_syntax", {}, u"offset", {}},
    {LogEvent::UnterminatedTagSyntax, u"unterminated_tag_syntax", u"type", u"offset", {}},
    {LogEvent::UnendedStartTag, u"unended_start_tag", u"tagname", u"offset", u"offset2"},
    {LogEvent::LoneEndTag, u"lone_end_tag", u"tagname", u"offset", {}},
    {LogEvent::NoRootElement, u"no_root_element", {}, {}, {}},
    {LogEvent::RootHasSibling, u"root_has_sibling", {}, u"offset", {}},
    {LogEvent::Read, u"read", u"encoding", u"length", {}},
    {LogEvent::ConvertedTo, u"converted_to", u"encoding", u"length", {}},
    {LogEvent::ConvertedFrom, u"converted_from", u"encoding", u"length", {}},
    {LogEvent::NullsRemoved, u"nulls_removed", {}, u"count", {}},
    {LogEvent::TruncationError, u"truncation_error", u"encoding", {}, {}},
    {LogEvent::FileError, u"file_error", u"msg", u"n", {}},
    {LogEvent::Utf8Detection, u"utf8_detection", {}, {}, {}},
    {LogEvent::Bom, u"bom", {}, {}, {}},
    {LogEvent::EndianSwap, u"endian_swap", {}, {}, {}},
    {LogEvent::ConversionLoss, u"conversion_loss", {}, {}, {}},
};

constexpr bool rowsFollowTheEnumeration() {
  std::size_t row = 0;
  for (const EventNames& names : kEventNames) {
    if (static_cast<std::size_t>(names.event) != row++) return false;
  }
  return true;
}
static_assert(rowsFollowTheEnumeration());

void appendText(std::u16string& log, std::u16string_view name, std::u16string_view value) {
  if (name.empty()) return;
  log.append(u" ").append(name).append(u"=\"");
  appendEscaped(value, log);
  log.append(u"\"");
}

void appendNumber(std::u16string& log, std::u16string_view name, std::int64_t value) {
  if (value == ResultLog::kUnknown) return;
  const std::string digits = std::to_string(value);
  appendText(log, name, std::u16string(digits.begin(), digits.end()));
}

}  // namespace

void ResultLog::add(LogEvent event, std::u16string_view text, std::int64_t number,
                    std::int64_t number2) {
  if (isFull()) return;
  const EventNames& names = kEventNames[static_cast<std::size_t>(event)];
  text_.append(u"<").append(names.token);
  appendText(text_, names.text, text);
  appendNumber(text_, names.number, number);
  appendNumber(text_, names.number2, number2);
  text_.append(u"/>");
}

}  // namespace brennet
