// Moving around in a document and reading from it.
#include <gtest/gtest.h>

#include "markup/MarkupDocument.h"

namespace brennet {
namespace {

class Navigation : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(document_.setDoc(
        u"<root a='1'><b id='1'>one</b><c>two<d>inner</d>!</c><b id='2'>three</b></root>"));
  }

  MarkupDocument document_;
};

TEST_F(Navigation, StartsBeforeTheRoot) {
  EXPECT_EQ(document_.getTagName(), u"");
  EXPECT_EQ(document_.getData(), u"");
  EXPECT_EQ(document_.getChildData(), u"");
  EXPECT_EQ(document_.getAttrib(u"a"), u"");
  EXPECT_FALSE(document_.intoElem());
  EXPECT_FALSE(document_.outOfElem());
}

TEST_F(Navigation, FindsTheRootByNameOnlyWhenItIsCalledSo) {
  EXPECT_FALSE(document_.findElem(u"Root"));
  EXPECT_FALSE(document_.findElem(u"roo"));
  EXPECT_FALSE(document_.findElem(u"root "));
  EXPECT_FALSE(document_.findElem(u"root a"));
  ASSERT_TRUE(document_.findElem(u"root"));
  EXPECT_EQ(document_.getAttrib(u"a"), u"1");
  EXPECT_FALSE(document_.findElem()) << "it has no sibling";
  EXPECT_EQ(document_.getTagName(), u"root") << "and the position stays";
}

TEST_F(Navigation, FindsChildrenInTheirOrder) {
  ASSERT_TRUE(document_.findChildElem(u"b")) << "without a main position it goes to the root";
  EXPECT_EQ(document_.getTagName(), u"root");
  EXPECT_EQ(document_.getChildAttrib(u"id"), u"1");
  ASSERT_TRUE(document_.findChildElem());
  EXPECT_EQ(document_.getChildData(), u"two!");
  ASSERT_TRUE(document_.findChildElem(u"b"));
  EXPECT_EQ(document_.getChildData(), u"three");
  EXPECT_FALSE(document_.findChildElem(u"c")) << "the search goes forward only";
  EXPECT_EQ(document_.getChildData(), u"three");
}

TEST_F(Navigation, EntersAndLeavesElements) {
  ASSERT_TRUE(document_.findElem());
  ASSERT_TRUE(document_.findChildElem(u"c"));
  ASSERT_TRUE(document_.intoElem());
  EXPECT_EQ(document_.getData(), u"two!") << "the child has become the main element";
  ASSERT_TRUE(document_.findChildElem(u"d"));
  EXPECT_EQ(document_.getChildData(), u"inner");
  ASSERT_TRUE(document_.outOfElem());
  EXPECT_EQ(document_.getTagName(), u"root");
  EXPECT_EQ(document_.getChildData(), u"two!") << "the main element has become the child";
  ASSERT_TRUE(document_.findChildElem(u"b"));
  EXPECT_EQ(document_.getChildAttrib(u"id"), u"2");
  EXPECT_FALSE(document_.outOfElem());
}

TEST_F(Navigation, SearchesTheChildrenOfAnEnteredElement) {
  ASSERT_TRUE(document_.findElem());
  ASSERT_TRUE(document_.intoElem());
  ASSERT_TRUE(document_.findElem(u"c"));
  ASSERT_TRUE(document_.findElem(u"b"));
  EXPECT_EQ(document_.getAttrib(u"id"), u"2");
  document_.resetMainPos();
  ASSERT_TRUE(document_.findElem(u"b")) << "from the first child again";
  EXPECT_EQ(document_.getAttrib(u"id"), u"1");
}

TEST_F(Navigation, ClearsTheChildWhenTheMainElementMoves) {
  ASSERT_TRUE(document_.findElem());
  ASSERT_TRUE(document_.intoElem());
  ASSERT_TRUE(document_.findElem(u"c"));
  ASSERT_TRUE(document_.findChildElem(u"d"));
  ASSERT_TRUE(document_.findElem(u"b"));
  EXPECT_EQ(document_.getChildData(), u"");
}

TEST_F(Navigation, RefusesWhatAFileModeForbids) {
  document_.setDocFlags(MarkupDocument::kWriting);
  EXPECT_FALSE(document_.findElem());
  EXPECT_FALSE(document_.findChildElem());
  document_.setDocFlags(MarkupDocument::kReading);
  EXPECT_TRUE(document_.findElem());
  EXPECT_FALSE(document_.findChildElem());
  EXPECT_EQ(document_.docFlags(), 16U);
  document_.setDocFlags(0);
  EXPECT_TRUE(document_.findChildElem());
}

TEST(NavigationEmptyDocument, HasNothingToFind) {
  MarkupDocument document;
  EXPECT_FALSE(document.findElem());
  EXPECT_FALSE(document.findChildElem());
  EXPECT_EQ(document.doc(), u"");
  EXPECT_EQ(document.result(), u"");
}

TEST(NavigationGetData, JoinsTheDirectTextOnly) {
  struct Case {
    std::u16string_view text;
    std::u16string_view data;
  };
  const Case kCases[] = {
      {u"<a/>", u""},
      {u"<a></a>", u""},
      {u"<a> x </a>", u" x "},
      {u"<a>&lt;&#65;&bogus;</a>", u"<A&bogus;"},
      {u"<a>1<b>2<c/>3</b>4<b/>5</a>", u"145"},
      {u"<a>1<!-- <b> -->2<?p ?>3</a>", u"123"},
      {u"<a><![CDATA[&lt;]]>&lt;<![CDATA[]]></a>", u"&lt;<"},
      {u"<a>x]]]]><![CDATA[>]]></a>", u"x]]]]>>"},
      {u"<a>1</x>2</a>", u"12"},
      {u"<a>1 < 2 <b>3</b> < 4</a>", u"1 < 2  < 4"},
      {u"<a>1<b>2</a>", u"1"},
      {u"<a>1</x <b>2</b></a>", u"1"},
      {u"<a>1<!x>2</a>", u"12"},
      {u"<a>x</a  \r\n>", u"x"},
  };
  for (const Case& test : kCases) {
    MarkupDocument document;
    EXPECT_TRUE(document.setDoc(std::u16string(test.text)));
    ASSERT_TRUE(document.findElem());
    EXPECT_EQ(document.getData(), test.data) << testing::PrintToString(test.text);
  }
}

TEST(NavigationMainAndChildOffset, AreThoseOfTheStartTags) {
  MarkupDocument document;
  ASSERT_TRUE(document.setDoc(u"<?x?><a>\n<b/><c>1</c></a>"));
  EXPECT_EQ(document.mainOffset(), std::nullopt);
  EXPECT_EQ(document.childOffset(), std::nullopt);
  ASSERT_TRUE(document.findElem(u"a"));
  EXPECT_EQ(document.mainOffset(), 5U);
  ASSERT_TRUE(document.findChildElem(u"c"));
  EXPECT_EQ(document.childOffset(), 13U);
  ASSERT_TRUE(document.setChildAttrib(u"d", u"e"));
  ASSERT_TRUE(document.setAttrib(u"f", u"g"));
  EXPECT_EQ(document.childOffset(), 19U) << "what stands in front of it has grown";
}

TEST(NavigationGetAttrib, UnescapesTheValue) {
  MarkupDocument document;
  ASSERT_TRUE(document.setDoc(u"<a b=\"&lt;&amp;&quot;&apos;&gt;&nbsp;\" c='\"'/>"));
  ASSERT_TRUE(document.findElem());
  EXPECT_EQ(document.getAttrib(u"b"), u"<&\"'>\u00A0");
  EXPECT_EQ(document.getAttrib(u"c"), u"\"");
  EXPECT_EQ(document.getAttrib(u"absent"), u"");
  EXPECT_EQ(document.getAttrib(u""), u"");
}

}  // namespace
}  // namespace brennet
