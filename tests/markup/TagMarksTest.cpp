#include "markup/TagMarks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace brennet {
namespace {

// Units whose low or high byte looks like one of the characters that are looked for.
constexpr char16_t kUnits[] = {u'<',   u'>',   u'"',   u'\'',  u'a',   u' ',   0,
                               0x3C3C, 0x3C00, 0x3E00, 0x22FF, 0x8022, 0xFF3C, 0xFF3E,
                               0xFFFF, 0x8000, 0x7FFF, 0x0100, 0x00FF, 0x013C, 0x4E2D};

std::vector<std::size_t> listed(const TagMarks& marks) {
  std::vector<std::size_t> offsets;
  for (std::size_t i = 0; i < marks.count(); ++i) offsets.push_back(marks[i]);
  return offsets;
}

// The same unit by unit.
std::vector<std::size_t> naive(std::u16string_view text, std::size_t from, std::size_t end) {
  std::vector<std::size_t> offsets;
  for (std::size_t at = from; at < end; ++at) {
    if (text[at] == u'<' || text[at] == u'>') offsets.push_back(at);
  }
  return offsets;
}

TEST(TagMarks, ListsWhatASimpleSearchFinds) {
  std::mt19937 random(1);
  const auto marks = std::make_unique<TagMarks>();
  for (std::size_t length = 1; length < 400; ++length) {
    std::u16string text(length, u'\0');
    const unsigned sparse = random() % 2 == 0 ? 40 : 1;
    for (char16_t& unit : text) {
      unit = random() % sparse != 0 ? u'x' : kUnits[random() % std::size(kUnits)];
    }
    const std::size_t from = random() % length;
    marks->list(text, from);
    ASSERT_EQ(marks->end(), length);
    ASSERT_EQ(listed(*marks), naive(text, from, length)) << length;
  }
}

TEST(TagMarks, ListsOnePieceOfALongText) {
  const std::u16string text(3 * TagMarks::kPiece, u'<');
  const auto marks = std::make_unique<TagMarks>();
  for (const std::size_t from : {std::size_t{0}, std::size_t{1}, 2 * TagMarks::kPiece}) {
    marks->list(text, from);
    EXPECT_EQ(marks->end(), from + TagMarks::kPiece);
    EXPECT_EQ(listed(*marks), naive(text, from, from + TagMarks::kPiece));
  }
  marks->list(text, text.size() - 5);
  EXPECT_EQ(marks->count(), 5U);
}

// Never "no" where quotes do matter: behind any mark, they come in pairs up to the next one.
TEST(TagMarks, SaysWhetherQuotesMatter) {
  struct Row {
    std::u16string_view text;
    bool quotesMatter;
  };
  constexpr Row kRows[] = {
      {u"<a>", false},
      {u"<a b=\"\">", false},
      {u"<a b=\">\">", true},
      {u"<a b='1'>", true},
      {u"<a>\"</a>", true},
      {u"<a>\"\"</a>", false},
      {u"<a b=\"1\" c=\"", false},
      {u"\"<a>\"", true},
      {u"'", true},
      {u"\"", false},
      {u"", false},
  };
  for (const Row& row : kRows) {
    // Over the ends of two blocks, whatever their length.
    for (std::size_t padding = 0; padding < 130; ++padding) {
      const std::u16string text = std::u16string(padding + 1, u'x').append(row.text);
      const auto marks = std::make_unique<TagMarks>();
      marks->list(text, 0);
      EXPECT_EQ(marks->quotesMatter(), row.quotesMatter)
          << testing::PrintToString(text) << " behind " << padding;
    }
  }
}

}  // namespace
}  // namespace brennet
