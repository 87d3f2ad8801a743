#include "markup/ResultLog.h"

#include <string>

#include "markup/Escaping.h"

namespace brennet {
namespace {

// The element name of an event and the names of its attributes, empty if it has none.
template <class Event>
struct EventNames {
  Event event;
  std::u16string_view token;
  std::u16string_view text;
  std::u16string_view number;
  std::u16string_view number2;
};

constexpr EventNames<LogEvent> kLogEventNames[] = {
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
};

constexpr EventNames<TextEvent> kTextEventNames[] = {
    {TextEvent::Read, u"read", u"encoding", u"length", {}},
    {TextEvent::ConvertedTo, u"converted_to", u"encoding", u"length", {}},
    {TextEvent::ConvertedFrom, u"converted_from", u"encoding", u"length", {}},
    {TextEvent::NullsRemoved, u"nulls_removed", {}, u"count", {}},
    {TextEvent::TruncationError, u"truncation_error", u"encoding", {}, {}},
    {TextEvent::FileError, u"file_error", u"msg", u"n", {}},
    {TextEvent::Utf8Detection, u"utf8_detection", {}, {}, {}},
    {TextEvent::Bom, u"bom", {}, {}, {}},
    {TextEvent::EndianSwap, u"endian_swap", {}, {}, {}},
    {TextEvent::ConversionLoss, u"conversion_loss", {}, {}, {}},
};

template <class Event, std::size_t Count>
constexpr bool rowsFollowTheEnumeration(const EventNames<Event> (&table)[Count]) {
  std::size_t row = 0;
  for (const EventNames<Event>& names : table) {
    if (static_cast<std::size_t>(names.event) != row++) return false;
  }
  return true;
}
static_assert(rowsFollowTheEnumeration(kLogEventNames));
static_assert(rowsFollowTheEnumeration(kTextEventNames));

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

template <class Event>
void append(std::u16string& log, const EventNames<Event>& names, std::u16string_view text,
            std::int64_t number, std::int64_t number2) {
  log.append(u"<").append(names.token);
  appendText(log, names.text, text);
  appendNumber(log, names.number, number);
  appendNumber(log, names.number2, number2);
  log.append(u"/>");
}

}  // namespace

void ResultLog::add(LogEvent event, std::u16string_view text, std::int64_t number,
                    std::int64_t number2) {
  if (isFull()) return;
  append(text_, kLogEventNames[static_cast<std::size_t>(event)], text, number, number2);
}

void ResultLog::add(TextEvent event, std::u16string_view text, std::int64_t number) {
  if (isFull()) return;
  append(text_, kTextEventNames[static_cast<std::size_t>(event)], text, number, kUnknown);
}

}  // namespace brennet
