// Documents of extreme shapes: each is read in linear time and without recursion. In quadratic time
// its test would not end.
#include <gtest/gtest.h>

#include "markup/MarkupDocument.h"

namespace brennet {
namespace {

constexpr std::size_t kMillion = 1'000'000;

std::u16string repeated(std::u16string_view piece, std::size_t count) {
  std::u16string text;
  text.reserve(piece.size() * count);
  for (; count > 0; --count) text += piece;
  return text;
}

TEST(Limits, AMillionLevels) {
  MarkupDocument document;
  ASSERT_TRUE(document.setDoc(repeated(u"<a>", kMillion) + repeated(u"</a>", kMillion)));
  std::size_t depth = 0;
  while (document.findElem()) {
    document.intoElem();
    ++depth;
  }
  EXPECT_EQ(depth, kMillion);
  while (document.outOfElem()) --depth;
  EXPECT_EQ(depth, 0U);
}

TEST(Limits, AMillionLevelsWithoutEndTags) {
  MarkupDocument document;
  EXPECT_FALSE(document.setDoc(repeated(u"<a>", kMillion)));
  ASSERT_TRUE(document.findElem());
  ASSERT_TRUE(document.addElem(u"b")) << "which closes all of them";
  EXPECT_EQ(document.doc().size(), 7 * kMillion + 6);
}

TEST(Limits, AMillionLoneEndTagsInsideManyLevels) {
  MarkupDocument document;
  EXPECT_TRUE(document.setDoc(repeated(u"<a>", kMillion) + repeated(u"</b>", kMillion) +
                              repeated(u"</a>", kMillion)));
}

TEST(Limits, CrossedTagsOfManyNames) {
  std::u16string opening;
  std::u16string closing;
  for (int i = 0; i < 100'000; ++i) {
    const std::string number = std::to_string(i);
    const std::u16string name = u"e" + std::u16string(number.begin(), number.end());
    opening += u"<" + name + u">";
    closing += u"</" + name + u">";
  }
  MarkupDocument document;
  EXPECT_TRUE(document.setDoc(u"<r>" + opening + closing + u"</r>"));
}

TEST(Limits, AMillionUnendedTokens) {
  for (const char16_t* piece : {u"<!--", u"<![CDATA[", u"<?", u"<!DOCTYPE [", u"<a \"", u"<a '\"",
                                u"</a", u"<!", u"<", u"&", u"<!-", u"<!["}) {
    MarkupDocument document;
    EXPECT_FALSE(document.setDoc(repeated(piece, kMillion)));
  }
}

TEST(Limits, AMillionAttributes) {
  MarkupDocument document;
  ASSERT_TRUE(document.setDoc(u"<a" + repeated(u" b='c'", kMillion) + u" x='1'/>"));
  ASSERT_TRUE(document.findElem());
  EXPECT_EQ(document.getAttrib(u"x"), u"1");
}

TEST(Limits, AValueOfTenMillionUnits) {
  const std::u16string value = repeated(u"0123456&>", 10 * kMillion / 9);
  MarkupDocument document;
  ASSERT_TRUE(document.addElem(u"a"));
  ASSERT_TRUE(document.setData(value));
  ASSERT_TRUE(document.setAttrib(u"x", value));
  MarkupDocument again;
  ASSERT_TRUE(again.setDoc(document.doc()));
  ASSERT_TRUE(again.findElem());
  EXPECT_EQ(again.getData(), value);
  EXPECT_EQ(again.getAttrib(u"x"), value);
}

TEST(Limits, ADocumentOf64Megabytes) {
  constexpr std::u16string_view kLine = u"<Key id=\"0\" autocast=\"1\">20740</Key>\r\n";
  const std::size_t count = (std::size_t{64} << 20U) / sizeof(char16_t) / kLine.size();
  MarkupDocument document;
  ASSERT_TRUE(document.setDoc(u"<r>" + repeated(kLine, count) + u"<last>1</last></r>"));
  ASSERT_TRUE(document.findChildElem(u"last"));
  EXPECT_EQ(document.getChildData(), u"1");
}

// A document's own entities are ignored: nothing grows, and nothing is fetched.
TEST(Limits, EntitiesOfADocumentsOwn) {
  MarkupDocument document;
  ASSERT_TRUE(
      document.setDoc(u"<!DOCTYPE r [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">"
                      u"<!ENTITY c SYSTEM \"file:///etc/passwd\"><!ENTITY % d \"&b;\">]>"
                      u"<r x='&b;'>&a;&b;&c;%d;</r>"));
  ASSERT_TRUE(document.findElem());
  EXPECT_EQ(document.getData(), u"&a;&b;&c;%d;");
  EXPECT_EQ(document.getAttrib(u"x"), u"&b;");
}

TEST(Limits, AHundredThousandElementsAdded) {
  MarkupDocument document;
  ASSERT_TRUE(document.addElem(u"r"));
  for (int i = 0; i < 100'000; ++i) {
    ASSERT_TRUE(document.addElem(u"Key", u"1", MarkupDocument::kChild));
    ASSERT_TRUE(document.setChildAttrib(u"id", u"2"));
  }
  EXPECT_TRUE(document.setDoc(document.doc()));
}

}  // namespace
}  // namespace brennet
