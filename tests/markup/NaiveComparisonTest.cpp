// The document and a second, naive parser find the same in texts of all kinds. A fuzz target tries
// many more.

#include <gtest/gtest.h>

#include <algorithm>

#include "fuzz/grammar/Grammar.h"
#include "markup/DeclaredEncoding.h"
#include "markup/ResultLog.h"
#include "markup/TagMarks.h"
#include "markup/text/TextDecoding.h"
#include "markup/text/Utf8.h"
#include "tests/markup/NaiveMarkup.h"
#include "tests/markup/SameAsNaive.h"
#include "tests/markup/text/NaiveDecoding.h"

namespace brennet {
namespace {

using test::NaiveDocument;

TEST(NaiveComparisonOfMarkup, ReadsADocument) {
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

TEST(NaiveComparisonOfMarkup, TellsWhatIsWrong) {
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

TEST(NaiveComparisonOfMarkup, FindsWhatTheDocumentFindsInSettings) {
  expectAlike(fuzz::settingsGrammar(), 2000);
}

TEST(NaiveComparisonOfMarkup, FindsWhatTheDocumentFindsInMarkupOfAllKinds) {
  expectAlike(fuzz::markupGrammar(), 40000);
}

// Texts are read in pieces; whatever a piece cuts in two is read as if it did not.
TEST(NaiveComparisonOfMarkup, FindsWhatTheDocumentFindsAcrossPieces) {
  constexpr std::u16string_view kRoot = u"<r>";
  constexpr std::uint32_t kDocuments = 3000;
  for (std::uint32_t seed = 0; seed < kDocuments; ++seed) {
    fuzz::Choices choices(seed);
    std::u16string text;
    utf8ToUtf16(fuzz::markupGrammar().document(choices), text);
    const std::size_t cut =
        std::min(choices.below(text.size() + 1), TagMarks::kPiece - kRoot.size());
    const std::u16string padding(TagMarks::kPiece - kRoot.size() - cut,
                                 seed % 2 == 0 ? u'x' : u'>');
    text.insert(0, std::u16string(kRoot).append(padding));
    ASSERT_EQ(test::differenceToNaive(text), u"") << "seed " << seed << ", cut at " << cut;
  }
}

TEST(NaiveComparisonOfMarkup, FindsWhatTheDocumentFindsInLongTexts) {
  for (std::uint32_t seed = 0; seed < 60; ++seed) {
    fuzz::Choices choices(seed);
    std::u16string text = u"<r>";
    while (text.size() < 4 * TagMarks::kPiece) {
      utf8ToUtf16(
          (seed % 2 == 0 ? fuzz::settingsGrammar() : fuzz::markupGrammar()).document(choices),
          text);
    }
    ASSERT_EQ(test::differenceToNaive(text), u"") << "seed " << seed;
  }
}

TEST(NaiveComparisonOfDecoding, ReadsWhatItCan) {
  using namespace std::string_view_literals;
  struct Case {
    std::string_view bytes;
    std::optional<std::u16string> text;
  };
  const Case kCases[] = {
      {"", u""},
      {"a\xC3\xA9\xE8\xB0\xA2\xF0\x9F\x98\x80", u"a\u00E9\u8C22\U0001F600"},
      {"\xE8\xB0", u"\uFFFD"},
      {"\xB9\xFE", std::nullopt},
      {"<?xml encoding='gb2312'?>\xD0\xBB", std::nullopt},
      {"\xEF\xBB\xBF\xE8\xB0<\xC0\xAF", u"\uFFFD<\uFFFD\uFFFD"},
      {"\xFF\xFE\x22\x8C\0\0\0\xD8!"sv, u"\u8C22\xD800\uFFFD"},
      {"\xFE\xFF\x8C\x22"sv, u"\u8C22"},
      {"\0\0\xFE\xFF\0\x01\xF6\0\0\x11\0\0"sv, u"\U0001F600\uFFFD"},
  };
  for (const Case& test : kCases) EXPECT_EQ(test::decodedNaively(test.bytes), test.text);
}

TEST(NaiveComparisonOfDecoding, ReadsWhatTheDocumentReads) {
  using namespace std::string_view_literals;
  constexpr std::string_view kMarks[] = {
      "", "", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF", "\xFF\xFE\0\0"sv, "\0\0\xFE\xFF"sv};
  constexpr std::string_view kPieces[] = {"a",
                                          "\0"sv,
                                          "\xE8\xB0\xA2",
                                          "\xE8",
                                          "\xB0\xA2",
                                          "\xC3\xA9",
                                          "\xF0\x9F\x98\x80",
                                          "\xED\xA0\x80",
                                          "\xF4\x90",
                                          "\xE0\x80",
                                          "\xC0",
                                          "<a/>",
                                          "\0\xD8"sv,
                                          "\xDC\x01"};
  std::size_t read = 0;
  for (std::uint32_t seed = 0; seed < 50000; ++seed) {
    fuzz::Choices choices(seed);
    std::string bytes(choices.pick(kMarks));
    for (std::size_t n = choices.below(8); n > 0; --n) bytes += choices.pick(kPieces);
    const std::optional<std::u16string> naive = test::decodedNaively(bytes);
    if (!naive) continue;
    ++read;
    ResultLog log;
    ASSERT_EQ(decodeText(bytes, declaredEncodingOfBytes, log).text, *naive)
        << testing::PrintToString(bytes);
  }
  EXPECT_GT(read, 10000U);
}

}  // namespace
}  // namespace brennet
