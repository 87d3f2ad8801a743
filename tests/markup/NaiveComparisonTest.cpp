// The document and a second, naive parser find the same in texts of all kinds. A fuzz target goes
// on where this ends.

#include <gtest/gtest.h>

#include <algorithm>

#include "fuzz/grammar/Grammar.h"
#include "markup/Utf8.h"
#include "tests/markup/NaiveMarkup.h"
#include "tests/markup/SameAsNaive.h"

namespace brennet {
namespace {

using test::NaiveDocument;

TEST(NaiveMarkup, ReadsADocument) {
  const NaiveDocument document =
      test::parseNaively(u"<?xml?>\n<a x='1' y=\"&lt;\"><b>t<![CDATA[<]]>&#65;</b><c/> </a>");
  EXPECT_TRUE(document.isWellFormed);
  EXPECT_EQ(document.log, u"");
  ASSERT_EQ(document.elements.size(), 3U);
  const test::NaiveElement& root = document.elements[0];
  EXPECT_EQ(root.name, u"a");
  EXPECT_EQ(root.start, 8U);
  EXPECT_EQ(root.depth, 0U);
  EXPECT_EQ(root.data, u" ");
  ASSERT_EQ(root.attributes.size(), 2U);
  EXPECT_EQ(root.attributes[1], (std::pair<std::u16string, std::u16string>(u"y", u"<")));
  EXPECT_EQ(document.elements[1].data, u"t<A");
  EXPECT_EQ(document.elements[1].depth, 1U);
  EXPECT_EQ(document.elements[2].name, u"c");
}

TEST(NaiveMarkup, TellsWhatIsWrong) {
  const NaiveDocument document = test::parseNaively(u"<a><b></c></a><d");
  EXPECT_TRUE(document.isWellFormed);
  EXPECT_EQ(document.log,
            u"<lone_end_tag tagname=\"c\" offset=\"6\"/>"
            u"<unended_start_tag tagname=\"b\" offset=\"3\" offset2=\"10\"/>"
            u"<unterminated_tag_syntax type=\"start_tag\" offset=\"14\"/>");
}

void expectAlike(const fuzz::Grammar& grammar, std::uint32_t documents) {
  constexpr int kMostFailures = 5;
  int failures = 0;
  for (std::uint32_t seed = 0; seed < documents && failures < kMostFailures; ++seed) {
    fuzz::Choices choices(seed);
    std::u16string text;
    utf8ToUtf16(grammar.document(choices), text);
    const std::u16string difference = test::differenceToNaive(text);
    EXPECT_EQ(difference, u"") << "seed " << seed << ": " << testing::PrintToString(text);
    if (!difference.empty()) ++failures;
  }
}

TEST(NaiveMarkup, FindsWhatTheDocumentFindsInSettings) {
  expectAlike(fuzz::settingsGrammar(), 2000);
}

TEST(NaiveMarkup, FindsWhatTheDocumentFindsInMarkupOfAllKinds) {
  expectAlike(fuzz::markupGrammar(), 40000);
}

}  // namespace
}  // namespace brennet
