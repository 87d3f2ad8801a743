// What every grammar promises, and how a grammar of rules works.

#include "fuzz/grammar/Grammar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "fuzz/grammar/TextGrammar.h"

namespace brennet::fuzz {
namespace {

struct NamedGrammar {
  const char* name;
  const Grammar& (*grammar)();
};

constexpr NamedGrammar kGrammars[] = {
    {"settings", settingsGrammar}, {"preferences", preferencesGrammar}, {"regFile", regFileGrammar},
    {"record", recordGrammar},     {"markup", markupGrammar},           {"edits", editsGrammar},
    {"textFile", textFileGrammar}, {"session", sessionGrammar},
};

constexpr std::size_t kLongestDocument = 80000;

class GrammarTest : public testing::TestWithParam<NamedGrammar> {
 protected:
  const Grammar& grammar_ = GetParam().grammar();
};

INSTANTIATE_TEST_SUITE_P(All, GrammarTest, testing::ValuesIn(kGrammars),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(GrammarTest, MakesTheSameOfTheSameSeedAndOtherwiseSomethingElse) {
  std::set<std::string> documents;
  for (std::uint32_t seed = 0; seed < 300; ++seed) {
    Choices first(seed);
    Choices second(seed);
    const std::string document = grammar_.document(first);
    EXPECT_EQ(grammar_.document(second), document) << seed;
    documents.insert(document);
  }
  EXPECT_GT(documents.size(), 250U);
}

TEST_P(GrammarTest, ChangesAndCrossesWhateverItIsGiven) {
  for (std::uint32_t seed = 0; seed < 300; ++seed) {
    Choices choices(seed);
    std::string input;
    for (std::size_t i = choices.below(100); i > 0; --i) {
      input.push_back(static_cast<char>(choices.below(256)));
    }
    const std::string document = grammar_.document(choices);
    const std::string changed = grammar_.changed(input, choices);
    const std::string crossed = grammar_.crossed(input, document, choices);
    EXPECT_LE(crossed.size(), input.size() + document.size()) << seed;
    EXPECT_LE(changed.size(), 2 * input.size() + kLongestDocument) << seed;
    EXPECT_LE(document.size(), kLongestDocument) << seed;
  }
}

TEST_P(GrammarTest, ChangesOnlySomeOfAnInput) {
  int changes = 0;
  for (std::uint32_t seed = 0; seed < 300; ++seed) {
    Choices choices(seed);
    const std::string document = grammar_.document(choices);
    if (grammar_.changed(document, choices) != document) ++changes;
  }
  EXPECT_GT(changes, 150);
}

// Takes the place of libFuzzer's own mutator: records the call and makes the input as long as
// allowed.
bool wereBytesMutated = false;
std::size_t fillUp(std::uint8_t* data, std::size_t size, std::size_t most) {
  EXPECT_LE(size, most);
  wereBytesMutated = true;
  std::fill(data + size, data + most, std::uint8_t{'x'});
  return most;
}

TEST_P(GrammarTest, MutatesInAllWaysAndNeverBeyondTheLimit) {
  int byBytes = 0;
  int byGrammar = 0;
  for (std::uint32_t seed = 0; seed < 400; ++seed) {
    Choices choices(seed);
    const std::string input = grammar_.document(choices);
    for (const std::size_t most : {std::size_t{1}, std::size_t{40}, std::size_t{20000}}) {
      wereBytesMutated = false;
      const std::string next = mutated(grammar_, input, most, choices, fillUp);
      EXPECT_LE(next.size(), most);
      ++(wereBytesMutated ? byBytes : byGrammar);
    }
  }
  EXPECT_GT(byBytes, 300);
  EXPECT_GT(byGrammar, 300);
}

using Pieces = std::vector<std::string_view>;

TEST(GrammarOfTexts, CutsAnInputIntoPieces) {
  using namespace std::string_view_literals;
  const TextGrammar tags({{"document", {""}}}, {"<", ">", {"document"}});
  const TextGrammar lines({{"document", {""}}}, {"", "\n", {"document"}});
  EXPECT_EQ(tags.piecesOf("<a>1<b/></a>"), (Pieces{"<a>", "1", "<b/>", "</a>"}));
  EXPECT_EQ(tags.piecesOf("x<<y>>"), (Pieces{"x", "<", "<y>", ">"}));
  EXPECT_EQ(tags.piecesOf(""), Pieces{});
  EXPECT_EQ(lines.piecesOf("a\n\nb"), (Pieces{"a\n", "\n", "b"}));
  EXPECT_EQ(lines.piecesOf("\xFF\xFE"
                           "a\0\n\0b\0\n\1c"sv),
            (Pieces{"\xFF\xFE"
                    "a\0\n\0"sv,
                    "b\0\n\1c"sv}));
}

TEST(GrammarOfTexts, WritesRulesAsOftenAsTheySay) {
  const TextGrammar grammar(
      {{"document", {"<{maybe?}{many*3}>"}}, {"maybe", {"?"}}, {"many", {"x"}}},
      {"", "", {"many"}});
  std::set<std::string> documents;
  for (std::uint32_t seed = 0; seed < 200; ++seed) {
    Choices choices(seed);
    documents.insert(grammar.document(choices));
  }
  EXPECT_EQ(documents, (std::set<std::string>{"<>", "<x>", "<xx>", "<xxx>", "<?>", "<?x>", "<?xx>",
                                              "<?xxx>"}));
}

TEST(GrammarOfTexts, EndsWhereRulesCallThemselves) {
  const TextGrammar grammar({{"document", {"", "a{document}{document}"}}}, {"", "a", {"document"}});
  for (std::uint32_t seed = 0; seed < 200; ++seed) {
    Choices choices(seed);
    EXPECT_LT(grammar.document(choices).size(), 10000U);
  }
}

}  // namespace
}  // namespace brennet::fuzz
