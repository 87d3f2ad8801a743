#include "markup/MarkupWriter.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "markup/MarkupDocument.h"
#include "tests/markup/DocumentTree.h"

namespace brennet {
namespace {

TEST(MarkupWriter, GivesEachElementALine) {
  MarkupWriter writer;
  writer.open(u"list");
  writer.open(u"entry");
  writer.attribute(u"id", u"1");
  writer.attribute(u"a", u"");
  writer.text(u"value");
  writer.close();
  writer.element(u"empty", u"");
  writer.close();
  writer.open(u"none");
  writer.text(u"");
  writer.close();
  EXPECT_EQ(writer.written(),
            u"<list>\r\n"
            u"<entry id=\"1\" a=\"\">value</entry>\r\n"
            u"<empty/>\r\n"
            u"</list>\r\n"
            u"<none/>\r\n");
}

TEST(MarkupWriter, EscapesValues) {
  MarkupWriter writer;
  writer.open(u"a");
  writer.attribute(u"b", u"<\"'>");
  writer.text(u"1 & 2");
  writer.close();
  EXPECT_EQ(writer.written(), u"<a b=\"&lt;&quot;&apos;&gt;\">1 &amp; 2</a>\r\n");
}

TEST(MarkupWriter, TakesValuesOfAnyLength) {
  for (const std::size_t length : {0U, 1U, 2U, 3U, 4U, 5U, 7U, 8U, 9U, 4095U, 4096U, 100'000U}) {
    MarkupWriter writer;
    const std::u16string value(length, u'v');
    const std::u16string quotes(length, u'"');
    writer.open(u"a");
    writer.attribute(u"b", quotes);
    writer.text(value);
    writer.close();
    MarkupDocument document;
    ASSERT_TRUE(document.setDoc(std::u16string(writer.written())));
    ASSERT_TRUE(document.findElem(u"a"));
    EXPECT_EQ(document.getAttrib(u"b"), quotes);
    EXPECT_EQ(document.getData(), value);
  }
}

// Writes the same random elements in both ways.
class TwoWays {
 public:
  explicit TwoWays(unsigned seed) : random_(seed) {}

  void writeElements(MarkupDocument& document, MarkupWriter& writer, int depth) {
    constexpr std::u16string_view kNames[] = {u"a", u"bc", u"element"};
    constexpr std::u16string_view kValues[] = {u"", u"1", u"a & b", u"\u8c22\u8c22"};
    for (std::size_t i = random_() % 4; i > 0; --i) {
      const std::u16string_view name = kNames[random_() % std::size(kNames)];
      const std::u16string_view value = kValues[random_() % std::size(kValues)];
      const bool isList = depth > 0 && random_() % 2 == 0;
      document.addElem(name, isList ? u"" : value, MarkupDocument::kChild);
      writer.open(name);
      if (random_() % 2 == 0) {
        document.setChildAttrib(u"id", value);
        writer.attribute(u"id", value);
      }
      if (isList) {
        document.intoElem();
        writeElements(document, writer, depth - 1);
        document.outOfElem();
      } else {
        writer.text(value);
      }
      writer.close();
    }
  }

 private:
  std::mt19937 random_;
};

// Into an empty tag, behind other elements, behind one without its end tag, and behind text.
TEST(MarkupWriter, GivesTheDocumentThatAddingOneByOneGives) {
  for (const char16_t* start :
       {u"<?xml version=\"1.0\"?>\r\n<r/>", u"<r></r>", u"<r>\r\n<a>1</a>\r\n</r>", u"<r/><s/>",
        u"<r><a><b/></r>", u"<r><a>"}) {
    for (unsigned seed = 0; seed < 200; ++seed) {
      MarkupDocument expected;
      MarkupDocument document;
      expected.setDoc(start);
      document.setDoc(start);
      ASSERT_TRUE(expected.findElem() && document.findElem());
      MarkupWriter writer;
      TwoWays(seed).writeElements(expected, writer, 3);
      ASSERT_TRUE(document.addChildren(writer));
      ASSERT_EQ(document.doc(), expected.doc()) << "seed " << seed;
      ASSERT_EQ(test::treeOf(document), test::treeOf(expected.doc())) << "seed " << seed;
    }
  }
}

TEST(MarkupWriter, AddsNothingWithoutAMainElement) {
  MarkupWriter writer;
  writer.element(u"a", u"1");
  MarkupDocument document;
  EXPECT_FALSE(document.addChildren(writer));
  EXPECT_EQ(document.doc(), u"");
  document.setDoc(u"<r/>");
  EXPECT_FALSE(document.addChildren(writer));
  EXPECT_EQ(document.doc(), u"<r/>");
}

TEST(MarkupWriter, ClearsTheChildPosition) {
  MarkupDocument document;
  document.setDoc(u"<r><a/></r>");
  ASSERT_TRUE(document.findChildElem());
  MarkupWriter writer;
  writer.element(u"b", u"1");
  ASSERT_TRUE(document.addChildren(writer));
  EXPECT_FALSE(document.childOffset());
  ASSERT_TRUE(document.findChildElem(u"b"));
  EXPECT_EQ(document.getChildData(), u"1");
}

}  // namespace
}  // namespace brennet
