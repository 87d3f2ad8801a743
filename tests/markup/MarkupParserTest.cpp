#include "markup/MarkupParser.h"

#include <gtest/gtest.h>

#include <span>

#include "markup/Names.h"

namespace brennet {
namespace {

// The tree of elements as name(children), "!" behind the names of those without their end tag.
std::u16string treeOf(std::u16string_view text, const ElementIndex& index) {
  std::u16string tree;
  ElementNumber at = index[0].firstChild;
  while (at != 0) {
    tree.append(leadingName(text.substr(index[at].start + 1)));
    if (index[at].has(ElementRecord::kError)) tree += u'!';
    if (index[at].firstChild != 0) {
      tree += u'(';
      at = index[at].firstChild;
      continue;
    }
    while (at != 0 && index[at].next == 0) {
      at = index[at].parent;
      if (at != 0) tree += u')';
    }
    if (at != 0) {
      tree += u' ';
      at = index[at].next;
    }
  }
  return tree;
}

struct Row {
  std::u16string_view text;
  std::u16string_view tree;
  std::u16string_view log;
};

void expectRows(std::span<const Row> rows) {
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::PrintToString(std::u16string(row.text)));
    ResultLog log;
    const ElementIndex index = parseMarkup(row.text, log);
    EXPECT_EQ(treeOf(row.text, index), std::u16string(row.tree));
    EXPECT_EQ(log.text(), std::u16string(row.log));
  }
}

TEST(ParseMarkup, ReadsWhatIsWellFormed) {
  constexpr Row kRows[] = {
      {u"<a/>", u"a", u""},
      {u"<a></a>", u"a", u""},
      {u"<a ></a >", u"a", u""},
      {u"<a><b/><c>x</c><d><e/></d></a>", u"a(b c d(e))", u""},
      {u"<?xml version=\"1.0\"?>\r\n<a/>\r\n", u"a", u""},
      {u"<!-- <b> --><a><!-- </a> --></a><!---->", u"a", u""},
      {u"<a><![CDATA[<b></a>]]></a>", u"a", u""},
      {u"<a><![CDATA[]]]]><![CDATA[>]]></a>", u"a", u""},
      {u"<a><?do <b> ?></a>", u"a", u""},
      {u"<!DOCTYPE a><a/>", u"a", u""},
      {u"<!DOCTYPE a SYSTEM \"x>y\" 'p]q'><a/>", u"a", u""},
      {u"<!DOCTYPE a [<!ELEMENT a (b)><!-- ]> --><?x ]> ?><!ENTITY e \"]>\">]><a/>", u"a", u""},
      {u"<a t=\"x>y\" u='>\"'><b/></a>", u"a(b)", u""},
      {u"<a>1 > 0</a>", u"a", u""},
      {u"<_a/>", u"_a", u""},
      {u"<:a/>", u":a", u""},
      {u"<\u8C22/>", u"\u8C22", u""},
      {u"<a.b-c1></a.b-c1>", u"a.b-c1", u""},
      {u"<a><a><a/></a></a>", u"a(a(a))", u""},
      {u"<a\n>\n</a\r\n>", u"a", u""},
  };
  expectRows(kRows);
}

TEST(ParseMarkup, LogsEverySyntaxErrorOfAToken) {
  constexpr Row kRows[] = {
      // The "<" belongs to the text.
      {u"<a>< b></a>", u"a", u"<first_tag_syntax offset=\"3\"/>"},
      {u"<a><1></a>", u"a", u"<first_tag_syntax offset=\"3\"/>"},
      {u"<a><></a>", u"a", u"<first_tag_syntax offset=\"3\"/>"},
      {u"<a><<b/></a>", u"a(b)", u"<first_tag_syntax offset=\"3\"/>"},
      {u"<a/><", u"a", u"<first_tag_syntax offset=\"4\"/>"},
      // The token ends behind its ">".
      {u"<a><!-b><c/></a>", u"a(c)", u"<comment_tag_syntax offset=\"3\"/>"},
      {u"<a><![CDAT[b]]><c/></a>", u"a(c)", u"<cdata_section_syntax offset=\"3\"/>"},
      {u"<a><![cdata[b]]><c/></a>", u"a(c)", u"<cdata_section_syntax offset=\"3\"/>"},
      {u"<!DOCTYP b><a/>", u"a", u"<doctype_tag_syntax offset=\"0\"/>"},
      {u"<!DOCTYPE b ]><a/>", u"a", u"<doctype_tag_syntax offset=\"0\"/>"},
      {u"<!ELEMENT b><a/>", u"a", u"<exclamation_tag_syntax offset=\"0\"/>"},
      {u"<!><a/>", u"a", u"<exclamation_tag_syntax offset=\"0\"/>"},
      {u"<a><!b></a>", u"a", u"<exclamation_tag_syntax offset=\"3\"/>"},
      // There is none, and the token takes all the rest.
      {u"<a/><!-- b <c/>", u"a", u"<comment_tag_syntax offset=\"4\"/>"},
      {u"<a/><!-->", u"a", u"<comment_tag_syntax offset=\"4\"/>"},
      {u"<a/><!--->", u"a", u"<comment_tag_syntax offset=\"4\"/>"},
      {u"<a/><!-", u"a", u"<comment_tag_syntax offset=\"4\"/>"},
      {u"<a/><![CDATA[ b <c/>", u"a", u"<cdata_section_syntax offset=\"4\"/>"},
      {u"<a/><![CDATA[]>", u"a", u"<cdata_section_syntax offset=\"4\"/>"},
      {u"<a/><!DOCTYPE [ <c/> ", u"a", u"<doctype_tag_syntax offset=\"4\"/>"},
      {u"<a/><!", u"a", u"<exclamation_tag_syntax offset=\"4\"/>"},
  };
  expectRows(kRows);
}

TEST(ParseMarkup, LogsTokensWithoutAnEnd) {
  constexpr Row kRows[] = {
      {u"<a/><b", u"a", u"<unterminated_tag_syntax type=\"start_tag\" offset=\"4\"/>"},
      {u"<a/><b t=\"x>", u"a", u"<unterminated_tag_syntax type=\"start_tag\" offset=\"4\"/>"},
      {u"<a/><b t='x\"><c/>", u"a", u"<unterminated_tag_syntax type=\"start_tag\" offset=\"4\"/>"},
      {u"<a/></b", u"a", u"<unterminated_tag_syntax type=\"end_tag\" offset=\"4\"/>"},
      {u"<a/></", u"a", u"<unterminated_tag_syntax type=\"end_tag\" offset=\"4\"/>"},
      {u"<a/><?b <c/>", u"a",
       u"<unterminated_tag_syntax type=\"processing_instruction\" offset=\"4\"/>"},
      {u"<a/><?>", u"a",
       u"<unterminated_tag_syntax type=\"processing_instruction\" offset=\"4\"/>"},
      {u"<a/><!DOCTYPE b", u"a", u"<unterminated_tag_syntax type=\"document_type\" offset=\"4\"/>"},
      {u"<a/><!DOCTYPE \"b>", u"a",
       u"<unterminated_tag_syntax type=\"document_type\" offset=\"4\"/>"},
      // Another token begins before the ">".
      {u"<a></b <c/></a>", u"a(c)", u"<unterminated_tag_syntax type=\"end_tag\" offset=\"3\"/>"},
  };
  expectRows(kRows);
}

TEST(ParseMarkup, LogsTagsThatDoNotMatch) {
  constexpr Row kRows[] = {
      {u"<a><b></a>", u"a(b!)", u"<unended_start_tag tagname=\"b\" offset=\"3\" offset2=\"6\"/>"},
      {u"<a></b></a>", u"a", u"<lone_end_tag tagname=\"b\" offset=\"3\"/>"},
      {u"<a></></a>", u"a", u"<lone_end_tag tagname=\"\" offset=\"3\"/>"},
      {u"<a></ a></a>", u"a", u"<lone_end_tag tagname=\"\" offset=\"3\"/>"},
      {u"<a></A></a>", u"a", u"<lone_end_tag tagname=\"A\" offset=\"3\"/>"},
      {u"<a></ab></a>", u"a", u"<lone_end_tag tagname=\"ab\" offset=\"3\"/>"},
      {u"<ab></a></ab>", u"ab", u"<lone_end_tag tagname=\"a\" offset=\"4\"/>"},
      {u"<a/></a>", u"a", u"<lone_end_tag tagname=\"a\" offset=\"4\"/>"},
      {u"<a><b></a></b>", u"a(b!)",
       u"<unended_start_tag tagname=\"b\" offset=\"3\" offset2=\"6\"/>"
       u"<lone_end_tag tagname=\"b\" offset=\"10\"/>"},
      {u"<a><b><c></a>", u"a(b!(c!))",
       u"<unended_start_tag tagname=\"c\" offset=\"6\" offset2=\"9\"/>"
       u"<unended_start_tag tagname=\"b\" offset=\"3\" offset2=\"9\"/>"},
      {u"<a>", u"a!", u"<unended_start_tag tagname=\"a\" offset=\"0\" offset2=\"3\"/>"},
      {u"<a><b/>", u"a!(b)", u"<unended_start_tag tagname=\"a\" offset=\"0\" offset2=\"7\"/>"},
      {u"<a>x<!--", u"a!",
       u"<comment_tag_syntax offset=\"4\"/>"
       u"<unended_start_tag tagname=\"a\" offset=\"0\" offset2=\"4\"/>"},
      // The nearest element of the name is meant, also after an earlier mismatch.
      {u"<a></x><b><a><b></a></b></a>", u"a(b(a(b!)))",
       u"<lone_end_tag tagname=\"x\" offset=\"3\"/>"
       u"<unended_start_tag tagname=\"b\" offset=\"13\" offset2=\"16\"/>"},
  };
  expectRows(kRows);
}

TEST(ParseMarkup, LogsWhatIsWrongWithTheWholeDocument) {
  constexpr Row kRows[] = {
      {u"", u"", u"<no_root_element/>"},
      {u"text", u"", u"<no_root_element/>"},
      {u"<!-- -->", u"", u"<no_root_element/>"},
      {u"</a>", u"", u"<lone_end_tag tagname=\"a\" offset=\"0\"/><no_root_element/>"},
      {u"<a/><b/>", u"a b", u"<root_has_sibling offset=\"4\"/>"},
      {u"<a/><b/><c/>", u"a b c", u"<root_has_sibling offset=\"4\"/>"},
      {u"<a></a><b></b>", u"a b", u"<root_has_sibling offset=\"7\"/>"},
  };
  expectRows(kRows);
}

TEST(ParseMarkup, EscapesNamesInTheLog) {
  ResultLog log;
  log.add(LogEvent::LoneEndTag, u"<\"&'>", 7);
  EXPECT_EQ(log.text(), u"<lone_end_tag tagname=\"&lt;&quot;&amp;&apos;&gt;\" offset=\"7\"/>");
}

TEST(ParseMarkup, KeepsTheRangesOfElements) {
  const std::u16string text = u"<?x?> <a t='1'><b>xy</b><c></a> ";
  ResultLog log;
  const ElementIndex index = parseMarkup(text, log);
  struct Range {
    std::uint32_t start, startTagLength, length, parent, firstChild, next, previous;
  };
  constexpr Range kRanges[] = {{0, 0, 32, 0, 1, 0, 0},
                               {6, 9, 25, 0, 2, 0, 1},
                               {15, 3, 9, 1, 0, 3, 3},
                               {24, 3, 3, 1, 0, 0, 2}};
  ASSERT_EQ(index.size(), std::size(kRanges));
  for (ElementNumber i = 0; i < index.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(index[i].start, kRanges[i].start);
    EXPECT_EQ(index[i].startTagLength, kRanges[i].startTagLength);
    EXPECT_EQ(index[i].length, kRanges[i].length);
    EXPECT_EQ(index[i].parent, kRanges[i].parent);
    EXPECT_EQ(index[i].firstChild, kRanges[i].firstChild);
    EXPECT_EQ(index[i].next, kRanges[i].next);
    EXPECT_EQ(index[i].previous, kRanges[i].previous);
  }
}

TEST(ResultLog, TakesNoEventFromAThousandUnitsOn) {
  ResultLog log;
  while (log.text().size() < ResultLog::kFull) log.add(LogEvent::Bom);
  const std::u16string full = log.text();
  EXPECT_LT(full.size(), ResultLog::kFull + std::u16string_view(u"<bom/>").size());
  log.add(LogEvent::Bom);
  EXPECT_EQ(log.text(), full);
}

TEST(ResultLog, NamesTheAttributesByTheKindOfEvent) {
  struct LogRow {
    LogEvent event;
    std::u16string_view expected;
  };
  constexpr LogRow kRows[] = {
      {LogEvent::Read, u"<read encoding=\"t\" length=\"5\"/>"},
      {LogEvent::ConvertedTo, u"<converted_to encoding=\"t\" length=\"5\"/>"},
      {LogEvent::ConvertedFrom, u"<converted_from encoding=\"t\" length=\"5\"/>"},
      {LogEvent::NullsRemoved, u"<nulls_removed count=\"5\"/>"},
      {LogEvent::TruncationError, u"<truncation_error encoding=\"t\"/>"},
      {LogEvent::FileError, u"<file_error msg=\"t\" n=\"5\"/>"},
      {LogEvent::Utf8Detection, u"<utf8_detection/>"},
      {LogEvent::Bom, u"<bom/>"},
      {LogEvent::EndianSwap, u"<endian_swap/>"},
      {LogEvent::ConversionLoss, u"<conversion_loss/>"},
      {LogEvent::UnendedStartTag, u"<unended_start_tag tagname=\"t\" offset=\"5\" offset2=\"6\"/>"},
      {LogEvent::UnterminatedTagSyntax, u"<unterminated_tag_syntax type=\"t\" offset=\"5\"/>"},
      {LogEvent::NoRootElement, u"<no_root_element/>"},
  };
  for (const LogRow& row : kRows) {
    ResultLog log;
    log.add(row.event, u"t", 5, 6);
    EXPECT_EQ(log.text(), std::u16string(row.expected));
  }
}

TEST(ResultLog, LeavesOutAnUnknownOffset) {
  ResultLog log;
  log.add(LogEvent::LoneEndTag, u"t", ResultLog::kUnknown);
  EXPECT_EQ(log.text(), u"<lone_end_tag tagname=\"t\"/>");
}

}  // namespace
}  // namespace brennet
