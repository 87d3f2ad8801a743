#include "markup/ResultLog.h"

#include <gtest/gtest.h>

namespace brennet {
namespace {

TEST(ResultLog, WritesEachEventWithItsAttributes) {
  struct Case {
    LogEvent event;
    std::u16string_view written;
  };
  const Case kCases[] = {
      {LogEvent::FirstTagSyntax, u"<first_tag_syntax offset=\"1\"/>"},
      {LogEvent::DoctypeTagSyntax, u"<doctype_tag_syntax offset=\"1\"/>"},
      {LogEvent::ExclamationTagSyntax, u"<exclamation_tag_syntax offset=\"1\"/>"},
      {LogEvent::CommentTagSyntax, u"<comment_tag_syntax offset=\"1\"/>"},
      {LogEvent::CDataSectionSyntax, u"<cdata_section_syntax offset=\"1\"/>"},
      {LogEvent::UnterminatedTagSyntax, u"<unterminated_tag_syntax type=\"t\" offset=\"1\"/>"},
      {LogEvent::UnendedStartTag, u"<unended_start_tag tagname=\"t\" offset=\"1\" offset2=\"2\"/>"},
      {LogEvent::LoneEndTag, u"<lone_end_tag tagname=\"t\" offset=\"1\"/>"},
      {LogEvent::NoRootElement, u"<no_root_element/>"},
      {LogEvent::RootHasSibling, u"<root_has_sibling offset=\"1\"/>"},
  };
  for (const Case& test : kCases) {
    ResultLog log;
    log.add(test.event, u"t", 1, 2);
    EXPECT_EQ(log.text(), test.written);
  }
}

TEST(ResultLog, WritesTheStepsOfReadingAndWritingToo) {
  struct Case {
    TextEvent event;
    std::u16string_view written;
  };
  const Case kCases[] = {
      {TextEvent::Read, u"<read encoding=\"t\" length=\"1\"/>"},
      {TextEvent::ConvertedTo, u"<converted_to encoding=\"t\" length=\"1\"/>"},
      {TextEvent::ConvertedFrom, u"<converted_from encoding=\"t\" length=\"1\"/>"},
      {TextEvent::NullsRemoved, u"<nulls_removed count=\"1\"/>"},
      {TextEvent::TruncationError, u"<truncation_error encoding=\"t\"/>"},
      {TextEvent::FileError, u"<file_error msg=\"t\" n=\"1\"/>"},
      {TextEvent::Utf8Detection, u"<utf8_detection/>"},
      {TextEvent::Bom, u"<bom/>"},
      {TextEvent::EndianSwap, u"<endian_swap/>"},
      {TextEvent::ConversionLoss, u"<conversion_loss/>"},
  };
  for (const Case& test : kCases) {
    ResultLog log;
    log.add(test.event, u"t", 1);
    EXPECT_EQ(log.text(), test.written);
  }
}

TEST(ResultLog, LeavesOutANumberThatIsNotKnown) {
  ResultLog log;
  log.add(LogEvent::LoneEndTag, u"a");
  EXPECT_EQ(log.text(), u"<lone_end_tag tagname=\"a\"/>");
}

TEST(ResultLog, EscapesValues) {
  ResultLog log;
  log.add(TextEvent::FileError, u"a<b>&\"c\"", 5);
  EXPECT_EQ(log.text(), u"<file_error msg=\"a&lt;b&gt;&amp;&quot;c&quot;\" n=\"5\"/>");
}

TEST(ResultLog, TakesNothingFromAThousandUnitsOn) {
  ResultLog log;
  const std::u16string frame = u"<truncation_error encoding=\"\"/>";
  log.add(TextEvent::TruncationError, std::u16string(ResultLog::kFull - 1 - frame.size(), u'x'));
  ASSERT_EQ(log.text().size(), ResultLog::kFull - 1);
  EXPECT_FALSE(log.isFull());
  log.add(TextEvent::Bom);
  EXPECT_TRUE(log.isFull());
  const std::u16string full = log.text();
  log.add(TextEvent::Bom);
  EXPECT_EQ(log.text(), full);
}

}  // namespace
}  // namespace brennet
