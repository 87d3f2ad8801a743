// Parsing: what is well-formed, what is reported, and which tree results all the same.
#include <gtest/gtest.h>

#include "markup/MarkupDocument.h"
#include "tests/markup/DocumentTree.h"

namespace brennet {
namespace {

struct ParseCase {
  const char* what;
  std::u16string_view text;
  bool wellFormed;
  std::u16string_view log;
  std::u16string_view tree;
};

void expectParses(const ParseCase& test) {
  SCOPED_TRACE(test.what);
  MarkupDocument document;
  EXPECT_EQ(document.setDoc(std::u16string(test.text)), test.wellFormed);
  EXPECT_EQ(document.result(), test.log);
  EXPECT_EQ(document.doc(), test.text) << "the text stays as it is";
  EXPECT_EQ(test::treeOf(document), test.tree);
}

TEST(SetDoc, AcceptsWellFormedDocuments) {
  const ParseCase kCases[] = {
      {"empty tag", u"<a/>", true, u"", u"a []\n"},
      {"start and end tag", u"<a></a>", true, u"", u"a []\n"},
      {"declaration", u"<?xml version=\"1.0\"?>\r\n<a/>\r\n", true, u"", u"a []\n"},
      {"children", u"<a><b>1</b><c id='2'/></a>", true, u"", u"a []\n b [1]\n c id=2 []\n"},
      {"white space in tags", u"<a \r\n><b /></a\t>", true, u"", u"a []\n b []\n"},
      {"comment", u"<!-- <b> --><a><!-- > -- > --></a><!-- -->", true, u"", u"a []\n"},
      {"CDATA", u"<a><![CDATA[<b>&lt;]]></a>", true, u"", u"a [<b>&lt;]\n"},
      {"instruction", u"<a><?p <b> ' ?></a>", true, u"", u"a []\n"},
      {"document type", u"<!DOCTYPE a [<!ENTITY b '>]'> <!-- ' --> <?p ]?>]><a/>", true, u"",
       u"a []\n"},
      {"public document type", u"<!DOCTYPE a PUBLIC '>' \">\"><a/>", true, u"", u"a []\n"},
      {"quoted end marks", u"<a a=\"x>y\" b='/>'>t</a>", true, u"", u"a a=x>y b=/> [t]\n"},
      {"text around the root", u"x<a/>y", true, u"", u"a []\n"},
      {"same names", u"<a><a><a/></a><a/></a>", true, u"", u"a []\n a []\n  a []\n a []\n"},
      {"names with a common beginning", u"<ab><a/><abc></abc></ab>", true, u"",
       u"ab []\n a []\n abc []\n"},
      {"names beyond ASCII", u"<\u4e2d>\u6587</\u4e2d>", true, u"", u"\u4e2d [\u6587]\n"},
  };
  for (const ParseCase& test : kCases) expectParses(test);
}

TEST(SetDoc, ReportsWhatIsWrongWithTheTree) {
  const ParseCase kCases[] = {
      {"empty text", u"", false, u"<no_root_element/>", u""},
      {"no element", u"<?xml version=\"1.0\"?>\r\n", false, u"<no_root_element/>", u""},
      {"text alone", u"hello", false, u"<no_root_element/>", u""},
      {"two roots", u"<a/><b/>", false, u"<root_has_sibling offset=\"4\"/>", u"a []\nb []\n"},
      {"three roots", u"<a/><b/><c/>", false, u"<root_has_sibling offset=\"4\"/>",
       u"a []\nb []\nc []\n"},
      {"unclosed child", u"<a><b></a>", true,
       u"<unended_start_tag tagname=\"b\" offset=\"3\" offset2=\"6\"/>", u"a []\n b []\n"},
      {"unclosed child keeps what follows", u"<a><b>1<c/>2</a>", true,
       u"<unended_start_tag tagname=\"b\" offset=\"3\" offset2=\"12\"/>",
       u"a []\n b [12]\n  c []\n"},
      {"two unclosed children", u"<a><b><c></a>", true,
       u"<unended_start_tag tagname=\"c\" offset=\"6\" offset2=\"9\"/>"
       u"<unended_start_tag tagname=\"b\" offset=\"3\" offset2=\"9\"/>",
       u"a []\n b []\n  c []\n"},
      {"unclosed root", u"<a><b></b>", false,
       u"<unended_start_tag tagname=\"a\" offset=\"0\" offset2=\"10\"/>", u"a []\n b []\n"},
      {"lone end tag", u"<a>1</b>2</a>", true, u"<lone_end_tag tagname=\"b\" offset=\"4\"/>",
       u"a [12]\n"},
      {"lone end tag behind the root", u"<a/></a>", true,
       u"<lone_end_tag tagname=\"a\" offset=\"4\"/>", u"a []\n"},
      {"end tag without a name", u"<a></></ a></a>", true,
       u"<lone_end_tag tagname=\"\" offset=\"3\"/><lone_end_tag tagname=\"\" offset=\"6\"/>",
       u"a []\n"},
      {"crossed tags", u"<r><a><b></a></b></r>", true,
       u"<unended_start_tag tagname=\"b\" offset=\"6\" offset2=\"9\"/>"
       u"<lone_end_tag tagname=\"b\" offset=\"13\"/>",
       u"r []\n a []\n  b []\n"},
      {"the nearest of two closes", u"<r><a><a><b></a>1</a></r>", true,
       u"<unended_start_tag tagname=\"b\" offset=\"9\" offset2=\"12\"/>",
       u"r []\n a [1]\n  a []\n   b []\n"},
      {"names differ in case", u"<a></A></a>", true, u"<lone_end_tag tagname=\"A\" offset=\"3\"/>",
       u"a []\n"},
      {"a name that begins another", u"<ab></a></ab>", true,
       u"<lone_end_tag tagname=\"a\" offset=\"4\"/>", u"ab []\n"},
  };
  for (const ParseCase& test : kCases) expectParses(test);
}

TEST(SetDoc, ReportsSyntaxErrorsOfTokens) {
  const ParseCase kCases[] = {
      {"less-than in text", u"<a>1 < 2</a>", true, u"<first_tag_syntax offset=\"5\"/>",
       u"a [1 < 2]\n"},
      {"digit as name", u"<a><1/></a>", true, u"<first_tag_syntax offset=\"3\"/>", u"a [<1/>]\n"},
      {"less-than before a tag", u"<a><<b/></a>", true, u"<first_tag_syntax offset=\"3\"/>",
       u"a [<]\n b []\n"},
      {"less-than at the end", u"<a/><", true, u"<first_tag_syntax offset=\"4\"/>", u"a []\n"},
      {"half a comment start", u"<a><!-x>1</a>", true, u"<comment_tag_syntax offset=\"3\"/>",
       u"a [1]\n"},
      {"comment without end", u"<a/><!-- x >", true, u"<comment_tag_syntax offset=\"4\"/>",
       u"a []\n"},
      {"comment that is too short", u"<a/><!-->", true, u"<comment_tag_syntax offset=\"4\"/>",
       u"a []\n"},
      {"half a CDATA start", u"<a><![CDAT[x]]>1</a>", true, u"<cdata_section_syntax offset=\"3\"/>",
       u"a [1]\n"},
      {"CDATA without end", u"<a/><![CDATA[ >", true, u"<cdata_section_syntax offset=\"4\"/>",
       u"a []\n"},
      {"half a document type", u"<!DOC><a/>", true, u"<doctype_tag_syntax offset=\"0\"/>",
       u"a []\n"},
      {"bracket never opened", u"<!DOCTYPE a ]><a/>", true, u"<doctype_tag_syntax offset=\"0\"/>",
       u"a []\n"},
      {"bracket never closed", u"<a/><!DOCTYPE a [>", true,
       u"<unterminated_tag_syntax type=\"document_type\" offset=\"4\"/>", u"a []\n"},
      {"bracket never opened, without end", u"<a/><!DOCTYPE a ]", true,
       u"<unterminated_tag_syntax type=\"document_type\" offset=\"4\"/>", u"a []\n"},
      {"half a document type without end", u"<a/><!DOC", true,
       u"<unterminated_tag_syntax type=\"document_type\" offset=\"4\"/>", u"a []\n"},
      {"half a comment start without end", u"<a/><!-x", true,
       u"<unterminated_tag_syntax type=\"comment\" offset=\"4\"/>", u"a []\n"},
      {"half a CDATA start without end", u"<a/><![x", true,
       u"<unterminated_tag_syntax type=\"cdata_section\" offset=\"4\"/>", u"a []\n"},
      {"other exclamation without end", u"<a/><!x", true,
       u"<unterminated_tag_syntax type=\"exclamation_tag\" offset=\"4\"/>", u"a []\n"},
      {"document type without end", u"<a/><!DOCTYPE a", true,
       u"<unterminated_tag_syntax type=\"document_type\" offset=\"4\"/>", u"a []\n"},
      {"other exclamation", u"<!x><a/>", true, u"<exclamation_tag_syntax offset=\"0\"/>",
       u"a []\n"},
      {"exclamation at the end", u"<a/><!", true,
       u"<unterminated_tag_syntax type=\"exclamation_tag\" offset=\"4\"/>", u"a []\n"},
      {"instruction without end", u"<a/><?p >", true,
       u"<unterminated_tag_syntax type=\"processing_instruction\" offset=\"4\"/>", u"a []\n"},
      {"instruction that is too short", u"<a/><?>", true,
       u"<unterminated_tag_syntax type=\"processing_instruction\" offset=\"4\"/>", u"a []\n"},
      {"start tag without end", u"<a/><b", true,
       u"<unterminated_tag_syntax type=\"start_tag\" offset=\"4\"/>", u"a []\n"},
      {"quote never closed", u"<a/><b c=\"></b>", true,
       u"<unterminated_tag_syntax type=\"start_tag\" offset=\"4\"/>", u"a []\n"},
      {"end tag without end", u"<a></a", false,
       u"<unterminated_tag_syntax type=\"end_tag\" offset=\"3\"/>"
       u"<unended_start_tag tagname=\"a\" offset=\"0\" offset2=\"3\"/>",
       u"a []\n"},
      {"end tag that runs into the next tag", u"<a><b></b <c/></b></a>", true,
       u"<unterminated_tag_syntax type=\"end_tag\" offset=\"6\"/>", u"a []\n b []\n  c []\n"},
  };
  for (const ParseCase& test : kCases) expectParses(test);
}

TEST(SetDoc, StartsAFreshLogAndPosition) {
  MarkupDocument document;
  EXPECT_FALSE(document.setDoc(u"<a/><b/>"));
  EXPECT_TRUE(document.findElem());
  EXPECT_TRUE(document.setDoc(u"<c/>"));
  EXPECT_EQ(document.result(), u"");
  EXPECT_EQ(document.getTagName(), u"");
  EXPECT_TRUE(document.findElem(u"c"));
}

TEST(SetDoc, KeepsThePartialTreeOfAMalformedDocument) {
  MarkupDocument document;
  EXPECT_FALSE(document.setDoc(u"<a x=\"1\"><b>2</b><c"));
  ASSERT_TRUE(document.findChildElem(u"b"));
  EXPECT_EQ(document.getAttrib(u"x"), u"1");
  EXPECT_EQ(document.getChildData(), u"2");
}

TEST(SetDoc, LogsNoMoreThanAbout1000Units) {
  std::u16string text = u"<a>";
  for (int i = 0; i < 1000; ++i) text += u"</b>";
  text += u"</a>";
  MarkupDocument document;
  EXPECT_TRUE(document.setDoc(text));
  EXPECT_GE(document.result().size(), 1000U);
  EXPECT_LT(document.result().size(), 1100U);
}

}  // namespace
}  // namespace brennet
