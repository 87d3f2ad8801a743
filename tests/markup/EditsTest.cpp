// Building and changing documents.
#include <gtest/gtest.h>

#include <functional>

#include "markup/MarkupDocument.h"
#include "tests/markup/DocumentTree.h"

namespace brennet {
namespace {

constexpr std::uint32_t kChild = MarkupDocument::kChild;
constexpr std::uint32_t kCData = MarkupDocument::kCData;

TEST(EditsThatBuild, WritesOneElementALine) {
  MarkupDocument document;
  document.setDoc(u"<?xml version=\"1.0\" encoding=\"gb2312\"?>\r\n");
  ASSERT_TRUE(document.addElem(u"KeyInfo"));
  ASSERT_TRUE(document.setAttrib(u"enable", u"1"));
  ASSERT_TRUE(document.setAttrib(u"index", u"0"));
  ASSERT_TRUE(document.addElem(u"LastSaveTime", u"12", kChild));
  ASSERT_TRUE(document.addElem(u"KeyInfo_0", {}, kChild));
  ASSERT_TRUE(document.intoElem());
  ASSERT_TRUE(document.addElem(u"Key", {}, kChild));
  ASSERT_TRUE(document.setChildAttrib(u"id", u"0"));
  ASSERT_TRUE(document.setChildData(u"65280"));
  ASSERT_TRUE(document.addElem(u"Key", {}, kChild));
  ASSERT_TRUE(document.outOfElem());
  ASSERT_TRUE(document.addElem(u"KeyInfo_1", {}, kChild));
  EXPECT_EQ(document.doc(),
            u"<?xml version=\"1.0\" encoding=\"gb2312\"?>\r\n"
            u"<KeyInfo enable=\"1\" index=\"0\">\r\n"
            u"<LastSaveTime>12</LastSaveTime>\r\n"
            u"<KeyInfo_0>\r\n"
            u"<Key id=\"0\">65280</Key>\r\n"
            u"<Key/>\r\n"
            u"</KeyInfo_0>\r\n"
            u"<KeyInfo_1/>\r\n"
            u"</KeyInfo>\r\n");
  MarkupDocument again;
  EXPECT_TRUE(again.setDoc(document.doc()));
  EXPECT_EQ(again.result(), u"");
}

struct EditCase {
  const char* what;
  std::u16string_view before;
  std::function<bool(MarkupDocument&)> edit;
  std::u16string_view after;
};

// Each edit starts at the root; some go on to a child of it.
void expectEdits(const EditCase& test) {
  SCOPED_TRACE(test.what);
  MarkupDocument document;
  document.setDoc(std::u16string(test.before));
  document.findElem();
  EXPECT_TRUE(test.edit(document));
  EXPECT_EQ(document.doc(), test.after);
  EXPECT_EQ(test::treeOf(document), test::treeOf(std::u16string(test.after)));
}

TEST(EditsSetAttrib, AddsAndReplaces) {
  const auto set = [](const char16_t* name, const char16_t* value) {
    return [=](MarkupDocument& document) { return document.setAttrib(name, value); };
  };
  const EditCase kCases[] = {
      {"to an empty tag", u"<a/>", set(u"x", u"1"), u"<a x=\"1\"/>"},
      {"to an empty tag with a space", u"<a />", set(u"x", u"1"), u"<a x=\"1\"/>"},
      {"to a start tag", u"<a><b/></a>", set(u"x", u"1"), u"<a x=\"1\"><b/></a>"},
      {"behind others", u"<a b='2'/>", set(u"x", u"1"), u"<a b='2' x=\"1\"/>"},
      {"a longer value", u"<a x=\"1\"><b/></a>", set(u"x", u"123"), u"<a x=\"123\"><b/></a>"},
      {"a shorter value", u"<a x=\"123\"><b/></a>", set(u"x", u""), u"<a x=\"\"><b/></a>"},
      {"single quotes", u"<a x='1'/>", set(u"x", u"2"), u"<a x=\"2\"/>"},
      {"no quotes", u"<a x=1 b=2/>", set(u"x", u"2"), u"<a x=\"2\" b=2/>"},
      {"no value", u"<a x b/>", set(u"x", u"2"), u"<a x=\"2\" b/>"},
      {"an attribute without value in front", u"<a b=>", set(u"x", u"2"), u"<a b= x=\"2\">"},
      {"a name that ends another", u"<a bx=\"1\"/>", set(u"x", u"2"), u"<a bx=\"1\" x=\"2\"/>"},
      {"escaped", u"<a/>", set(u"x", u"<&>\"'"), u"<a x=\"&lt;&amp;&gt;&quot;&apos;\"/>"},
  };
  for (const EditCase& test : kCases) expectEdits(test);
}

TEST(EditsSetAttrib, ReadsBackAnyValue) {
  MarkupDocument document;
  document.addElem(u"a");
  const std::u16string value = u"a & b < c \"d\" 'e' > ]]> &amp; /> \r\n";
  ASSERT_TRUE(document.setAttrib(u"x", value));
  EXPECT_EQ(document.getAttrib(u"x"), value);
  MarkupDocument again;
  ASSERT_TRUE(again.setDoc(document.doc()));
  ASSERT_TRUE(again.findElem());
  EXPECT_EQ(again.getAttrib(u"x"), value);
}

TEST(EditsSetData, ReplacesTheWholeContent) {
  const auto set = [](const char16_t* value, std::uint32_t flags = 0) {
    return [=](MarkupDocument& document) { return document.setData(value, flags); };
  };
  const EditCase kCases[] = {
      {"of an empty tag", u"<a/>", set(u"1"), u"<a>1</a>"},
      {"of an empty tag with attributes", u"<a x='/>' />", set(u"1"), u"<a x='/>' >1</a>"},
      {"of an empty tag with one slash more", u"<a //>", set(u"1"), u"<a / >1</a>"},
      {"nothing into an empty tag", u"<a/>", set(u""), u"<a/>"},
      {"of an empty element", u"<a></a >", set(u"1"), u"<a>1</a >"},
      {"of text", u"<a>123</a>\r\n", set(u"4"), u"<a>4</a>\r\n"},
      {"of children", u"<a>1<b><c/></b>2</a>", set(u"3"), u"<a>3</a>"},
      {"by nothing", u"<a>1<b/></a>", set(u""), u"<a></a>"},
      {"escaped", u"<a/>", set(u"<b>"), u"<a>&lt;b&gt;</a>"},
      {"as CDATA", u"<a/>", set(u"<b>", kCData), u"<a><![CDATA[<b>]]></a>"},
      {"as empty CDATA", u"<a/>", set(u"", kCData), u"<a><![CDATA[]]></a>"},
      {"of an unclosed root", u"<a>1<b/>", set(u"2"), u"<a>2"},
      {"in front of a token without an end", u"<a>1<!-- ", set(u"2"), u"<a>2<!-- "},
  };
  for (const EditCase& test : kCases) expectEdits(test);
}

TEST(EditsSetData, ReadsBackAnyValueAlsoAsCData) {
  const std::u16string_view kValues[] = {
      u"]]>", u"a]]>b]]>c", u"]]", u"<![CDATA[x]]>", u"&lt; < > & \" '", u" \r\n ", u"\u8c22\u8c22",
  };
  for (const std::u16string_view value : kValues) {
    for (const std::uint32_t flags : {0U, kCData}) {
      MarkupDocument document;
      document.addElem(u"a");
      ASSERT_TRUE(document.setData(value, flags));
      EXPECT_EQ(document.getData(), value);
      MarkupDocument again;
      ASSERT_TRUE(again.setDoc(document.doc()));
      ASSERT_TRUE(again.findElem());
      EXPECT_EQ(again.getData(), value);
    }
  }
}

TEST(EditsSetData, ForgetsAChildPositionInsideTheContent) {
  MarkupDocument document;
  ASSERT_TRUE(document.setDoc(u"<a><b>1</b></a>"));
  ASSERT_TRUE(document.findChildElem(u"b"));
  ASSERT_TRUE(document.setData(u"2"));
  EXPECT_EQ(document.getChildData(), u"");
  EXPECT_FALSE(document.setChildData(u"3"));
  EXPECT_FALSE(document.findChildElem());
}

TEST(EditsAddElem, PlacesElementsBetweenOthers) {
  const auto add = [](MarkupDocument& document) { return document.addElem(u"n"); };
  const auto addChild = [](MarkupDocument& document) { return document.addElem(u"n", {}, kChild); };
  const auto behindChild = [](MarkupDocument& document) {
    return document.intoElem() && document.findElem() && document.addElem(u"n", u"1");
  };
  const auto inParent = [](MarkupDocument& document) {
    return document.intoElem() && document.addElem(u"n", u"1");
  };
  const EditCase kCases[] = {
      {"below an empty tag", u"<a/>", addChild, u"<a>\r\n<n/>\r\n</a>"},
      {"below an empty element", u"<a></a>", addChild, u"<a>\r\n<n/>\r\n</a>"},
      {"behind the last child", u"<a>\r\n<b/>\r\n</a>", addChild, u"<a>\r\n<b/>\r\n<n/>\r\n</a>"},
      {"no padding inside text", u"<a>1<b/>2</a>", addChild, u"<a>1<b/>2<n/></a>"},
      {"no padding inside text alone", u"<a>1</a>", addChild, u"<a>1<n/></a>"},
      {"behind the root", u"<a/>\r\n", add, u"<a/>\r\n<n/>\r\n"},
      {"between siblings", u"<a>\r\n<b/>\r\n<c x='1'/>\r\n</a>", behindChild,
       u"<a>\r\n<b/>\r\n<n>1</n>\r\n<c x='1'/>\r\n</a>"},
      {"between siblings on one line", u"<a><b/><c x='1'/></a>", behindChild,
       u"<a><b/><n>1</n>\r\n<c x='1'/></a>"},
      {"at the end of an entered element", u"<a>\n<b/>\n</a>", inParent,
       u"<a>\n<b/>\n<n>1</n>\r\n</a>"},
      {"into an entered empty tag", u"<a/>", inParent, u"<a>\r\n<n>1</n>\r\n</a>"},
      {"behind an unclosed element", u"<a><b>1</a>", behindChild, u"<a><b>1</b><n>1</n>\r\n</a>"},
      {"behind unclosed elements of one name", u"<a><b><b>1</a>", behindChild,
       u"<a><b><b>1</b></b><n>1</n>\r\n</a>"},
      {"below, behind an unclosed element", u"<a><b></a>", addChild, u"<a><b></b><n/>\r\n</a>"},
      {"below an unclosed root", u"<a>", addChild, u"<a>\r\n<n/>\r\n"},
      {"in front of a token without an end", u"<a><b/></a><!-- ", add, u"<a><b/></a><n/>\r\n<!-- "},
  };
  for (const EditCase& test : kCases) expectEdits(test);
}

// An element with text gets no padding, and setting the content may add or remove text.
TEST(EditsAddElem, LooksForTextAgainOnceTheContentIsSet) {
  MarkupDocument document;
  ASSERT_TRUE(document.addElem(u"a"));
  ASSERT_TRUE(document.addElem(u"b", {}, kChild));
  EXPECT_EQ(document.doc(), u"<a>\r\n<b/>\r\n</a>\r\n");
  ASSERT_TRUE(document.setData(u"1"));
  ASSERT_TRUE(document.addElem(u"b", {}, kChild));
  EXPECT_EQ(document.doc(), u"<a>1<b/></a>\r\n");
  ASSERT_TRUE(document.setData(u""));
  ASSERT_TRUE(document.addElem(u"b", {}, kChild));
  EXPECT_EQ(document.doc(), u"<a>\r\n<b/>\r\n</a>\r\n");
}

TEST(EditsAddElem, MovesThePositionToTheNewElement) {
  MarkupDocument document;
  ASSERT_TRUE(document.addElem(u"root"));
  EXPECT_EQ(document.getTagName(), u"root");
  ASSERT_TRUE(document.addElem(u"child", u"1", kChild));
  EXPECT_EQ(document.getTagName(), u"root");
  EXPECT_EQ(document.getChildData(), u"1");
  ASSERT_TRUE(document.addElem(u"child", u"<2>", kChild | kCData));
  EXPECT_EQ(document.getChildData(), u"<2>");
  ASSERT_TRUE(document.addElem(u"second"));
  EXPECT_EQ(document.getTagName(), u"second");
  EXPECT_EQ(document.getChildData(), u"");
}

TEST(Edits, RefuseWithoutTheElementTheyNeed) {
  MarkupDocument document;
  EXPECT_FALSE(document.setAttrib(u"x", u"1"));
  EXPECT_FALSE(document.setData(u"1"));
  EXPECT_FALSE(document.addElem(u"a", {}, kChild));
  ASSERT_TRUE(document.addElem(u"a"));
  EXPECT_FALSE(document.setChildAttrib(u"x", u"1"));
  EXPECT_FALSE(document.setChildData(u"1"));
  EXPECT_EQ(document.doc(), u"<a/>\r\n");
}

TEST(Edits, RefuseNamesThatCannotBeRead) {
  MarkupDocument document;
  ASSERT_TRUE(document.addElem(u"a"));
  for (const char16_t* name : {u"", u"a b", u"a>", u"<", u"a&", u"a/", u"a=", u"a\"", u"'", u"1"}) {
    EXPECT_FALSE(document.addElem(name));
    EXPECT_FALSE(document.addElem(name, {}, kChild));
    EXPECT_FALSE(document.setAttrib(name, u"1"));
  }
  EXPECT_EQ(document.doc(), u"<a/>\r\n");
}

TEST(Edits, TakeTextsOutOfTheDocumentItself) {
  MarkupDocument document;
  ASSERT_TRUE(document.setDoc(u"<abc/>"));
  ASSERT_TRUE(document.findElem());
  ASSERT_TRUE(document.setData(document.doc()));
  EXPECT_EQ(document.doc(), u"<abc>&lt;abc/&gt;</abc>");
  ASSERT_TRUE(document.addElem(document.getTagName(), document.doc(), kChild));
  EXPECT_EQ(document.getChildData(), u"<abc>&lt;abc/&gt;</abc>");
}

}  // namespace
}  // namespace brennet
