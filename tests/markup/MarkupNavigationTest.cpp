#include <gtest/gtest.h>

#include "markup/MarkupDocument.h"
#include "tests/support/TempFolder.h"

namespace brennet {
namespace {

constexpr const char16_t* kShop =
    u"<shop><item n='1'>pen</item><box n='2'><item n='3'/>ink</box><item n='4'/></shop>";

class Navigation : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(document_.setDoc(kShop)); }
  MarkupDocument document_;
};

TEST_F(Navigation, StartsBeforeTheRoot) {
  EXPECT_EQ(document_.getAttrib(u"n"), u"");
  EXPECT_EQ(document_.getData(), u"");
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"");
  EXPECT_EQ(document_.getChildData(), u"");
  EXPECT_FALSE(document_.findElem(u"item"));
  EXPECT_TRUE(document_.findElem(u"shop"));
}

TEST_F(Navigation, TellsNamesApart) {
  EXPECT_FALSE(document_.findElem(u"Shop"));
  EXPECT_FALSE(document_.findElem(u"sho"));
  EXPECT_FALSE(document_.findElem(u"shop "));
  EXPECT_FALSE(document_.findElem(u"shop>"));
  EXPECT_TRUE(document_.findElem(u"shop"));
}

TEST_F(Navigation, WithoutANameFindsAnyElement) {
  EXPECT_TRUE(document_.findElem());
  EXPECT_FALSE(document_.findElem());
  EXPECT_TRUE(document_.findChildElem());
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"1");
  EXPECT_TRUE(document_.findChildElem());
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"2");
  EXPECT_EQ(document_.getChildData(), u"ink");
}

TEST_F(Navigation, FindChildElemMovesToTheRootFirst) {
  EXPECT_TRUE(document_.findChildElem(u"box"));
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"2");
  EXPECT_FALSE(document_.findElem(u"shop"));  // the main position is on the root
}

TEST_F(Navigation, SearchesForwardAndKeepsThePositionWhenNothingFollows) {
  EXPECT_TRUE(document_.findChildElem(u"item"));
  EXPECT_TRUE(document_.findChildElem(u"item"));
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"4");
  EXPECT_FALSE(document_.findChildElem(u"item"));
  EXPECT_FALSE(document_.findChildElem(u"box"));
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"4");
}

TEST_F(Navigation, EntersAndLeavesElements) {
  ASSERT_TRUE(document_.findChildElem(u"box"));
  ASSERT_TRUE(document_.intoElem());
  EXPECT_EQ(document_.getAttrib(u"n"), u"2");
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"");
  EXPECT_TRUE(document_.findChildElem());
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"3");
  EXPECT_TRUE(document_.findElem());
  EXPECT_EQ(document_.getAttrib(u"n"), u"4");

  ASSERT_TRUE(document_.outOfElem());
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"4");
  EXPECT_FALSE(document_.outOfElem());
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"4");
  document_.resetMainPos();
  EXPECT_TRUE(document_.findElem(u"shop"));
}

TEST_F(Navigation, EntersAnElementWithoutAChildPosition) {
  EXPECT_FALSE(document_.intoElem());
  ASSERT_TRUE(document_.findElem());
  ASSERT_TRUE(document_.intoElem());
  EXPECT_EQ(document_.getAttrib(u"n"), u"");
  EXPECT_FALSE(document_.intoElem());
  EXPECT_TRUE(document_.findElem());
  EXPECT_EQ(document_.getAttrib(u"n"), u"1");
}

TEST_F(Navigation, ResetMainPosStartsAgainBelowTheSameParent) {
  ASSERT_TRUE(document_.findElem());
  ASSERT_TRUE(document_.intoElem());
  ASSERT_TRUE(document_.findElem(u"box"));
  ASSERT_TRUE(document_.findChildElem());
  document_.resetMainPos();
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"");
  EXPECT_TRUE(document_.findElem());
  EXPECT_EQ(document_.getAttrib(u"n"), u"1");
}

TEST_F(Navigation, FindElemClearsTheChildPosition) {
  ASSERT_TRUE(document_.findElem());
  ASSERT_TRUE(document_.intoElem());
  ASSERT_TRUE(document_.findElem(u"box"));
  ASSERT_TRUE(document_.findChildElem());
  ASSERT_TRUE(document_.findElem());
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"");
}

TEST_F(Navigation, SetDocClearsThePosition) {
  ASSERT_TRUE(document_.findChildElem());
  ASSERT_TRUE(document_.setDoc(u"<x/>"));
  EXPECT_EQ(document_.getChildAttrib(u"n"), u"");
  EXPECT_FALSE(document_.outOfElem());
  EXPECT_TRUE(document_.findElem(u"x"));
}

TEST_F(Navigation, FileModesRefuseWhatWouldDisturbThem) {
  const test::TempFolder folder;
  const std::u16string path = (folder / "shop.xml").u16string();
  ASSERT_TRUE(document_.save(path));
  for (const std::uint32_t mode : {MarkupDocument::kReading, MarkupDocument::kWriting}) {
    document_.setDocFlags(mode);
    EXPECT_FALSE(document_.load(path));
    EXPECT_FALSE(document_.save(path));
    EXPECT_FALSE(document_.findChildElem());
    EXPECT_EQ(document_.findElem(), mode == MarkupDocument::kReading);
    document_.setDocFlags(0);
    document_.resetMainPos();
    EXPECT_TRUE(document_.findElem());
    EXPECT_TRUE(document_.load(path));
  }
}

TEST(EmptyDocument, HasNothingToFind) {
  MarkupDocument document;
  EXPECT_EQ(document.doc(), u"");
  EXPECT_FALSE(document.findElem());
  EXPECT_FALSE(document.findChildElem());
  EXPECT_FALSE(document.intoElem());
  EXPECT_FALSE(document.outOfElem());
  EXPECT_FALSE(document.setData(u"x"));
  EXPECT_FALSE(document.setAttrib(u"x", u"y"));
  EXPECT_FALSE(document.setDoc(u""));
  EXPECT_EQ(document.result(), u"<no_root_element/>");
}

TEST(BrokenDocument, IsStillNavigable) {
  MarkupDocument document;
  EXPECT_FALSE(document.setDoc(u"<a n='1'><b>x<c/>y"));
  EXPECT_TRUE(document.findChildElem(u"b"));
  EXPECT_EQ(document.getChildData(), u"xy");
  EXPECT_EQ(document.getAttrib(u"n"), u"1");
}

struct WellFormedRow {
  std::u16string_view text;
  bool wellFormed;
};

TEST(SetDoc, TellsWhetherTheDocumentIsWellFormed) {
  constexpr WellFormedRow kRows[] = {
      {u"<a/>", true},        {u"<a></a>", true},         {u"<a><b></a>", true},
      {u"<a></b></a>", true}, {u"<a>< </a>", true},       {u"<a/></b>", true},
      {u"", false},           {u"text", false},           {u"<a>", false},
      {u"<a/><b/>", false},   {u"<a></a><a></a>", false}, {u"<a><!--</a>", false},
      {u"<a", false},
  };
  MarkupDocument document;
  for (const WellFormedRow& row : kRows) {
    EXPECT_EQ(document.setDoc(std::u16string(row.text)), row.wellFormed)
        << testing::PrintToString(std::u16string(row.text));
    EXPECT_EQ(document.doc(), std::u16string(row.text));
  }
}

TEST(SetDoc, StartsAFreshResultLog) {
  MarkupDocument document;
  EXPECT_FALSE(document.setDoc(u"<a/><b/>"));
  EXPECT_EQ(document.result(), u"<root_has_sibling offset=\"4\"/>");
  EXPECT_TRUE(document.setDoc(u"<a/>"));
  EXPECT_EQ(document.result(), u"");
}

struct DataRow {
  std::u16string_view text;
  std::u16string_view data;
};

TEST(GetData, GivesTheElementsOwnTextAlone) {
  constexpr DataRow kRows[] = {
      {u"<a/>", u""},
      {u"<a></a>", u""},
      {u"<a>x</a>", u"x"},
      {u"<a> x\r\n</a>", u" x\r\n"},
      {u"<a>1 &lt; 2 &amp; 3</a>", u"1 < 2 & 3"},
      {u"<a>x<b>y</b>z</a>", u"xz"},
      {u"<a>x<a>y</a>z</a>", u"xz"},
      {u"<a>x<!-- y -->z</a>", u"xz"},
      {u"<a>x<?y?>z</a>", u"xz"},
      {u"<a>x<![CDATA[<&amp;>]]>z</a>", u"x<&amp;>z"},
      {u"<a><![CDATA[x]]]]><![CDATA[>y]]></a>", u"x]]>y"},
      {u"<a><![CDATA[]]></a>", u""},
      {u"<a>x < y</a>", u"x < y"},
      {u"<a>x<1</a>", u"x<1"},
      {u"<a>x > y</a>", u"x > y"},
      {u"<a>x<!>z</a>", u"xz"},
      {u"<a>x</b>z</a>", u"xz"},
      {u"<a>x</b z</a>", u"x"},
      {u"<a>x<b>y</a>", u"x"},
      {u"<a>x</a >", u"x"},
      {u"<a>&am<b/>p;</a>", u"&amp;"},
  };
  MarkupDocument document;
  for (const DataRow& row : kRows) {
    document.setDoc(std::u16string(row.text));
    ASSERT_TRUE(document.findElem());
    EXPECT_EQ(document.getData(), std::u16string(row.data))
        << testing::PrintToString(std::u16string(row.text));
  }
}

TEST(GetData, EndsWhereAnUnclosedElementEnds) {
  MarkupDocument document;
  ASSERT_TRUE(document.setDoc(u"<a>x<b>y<c>z</a>"));
  ASSERT_TRUE(document.findChildElem(u"b"));
  EXPECT_EQ(document.getChildData(), u"y");
  ASSERT_TRUE(document.intoElem());
  ASSERT_TRUE(document.findChildElem(u"c"));
  EXPECT_EQ(document.getChildData(), u"z");
}

struct AttributeRow {
  std::u16string_view tag;
  std::u16string_view value;
};

TEST(GetAttrib, ReadsAttributesGenerously) {
  constexpr AttributeRow kRows[] = {
      {u"<a n=\"1\"/>", u"1"},
      {u"<a n='1'>", u"1"},
      {u"<a n = '1' >", u"1"},
      {u"<a n=1/>", u"1"},
      {u"<a n=1>", u"1"},
      {u"<a m=1 n=2/>", u"2"},
      {u"<a n/>", u""},
      {u"<a n=/>", u""},
      {u"<a n=''/>", u""},
      {u"<a nn='1' n='2'/>", u"2"},
      {u"<a n='1' n='2'/>", u"1"},
      {u"<a N='1'/>", u""},
      {u"<a m=\" n='1' \"/>", u""},
      {u"<a 'n' n='1'/>", u"1"},
      {u"<a\tn='1'\n/>", u"1"},
      {u"<a m='1'n='2'/>", u"2"},
      {u"<a n='>'/>", u">"},
      {u"<a n='\"'/>", u"\""},
      {u"<a n='&lt;&#65;'/>", u"<A"},
      {u"<a n='&x'/>", u"&x"},
      {u"<n m='1'/>", u""},
  };
  MarkupDocument document;
  for (const AttributeRow& row : kRows) {
    document.setDoc(std::u16string(row.tag));
    ASSERT_TRUE(document.findElem());
    EXPECT_EQ(document.getAttrib(u"n"), std::u16string(row.value))
        << testing::PrintToString(std::u16string(row.tag));
  }
}

}  // namespace
}  // namespace brennet
