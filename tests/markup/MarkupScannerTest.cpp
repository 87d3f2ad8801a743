#include "markup/MarkupScanner.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace brennet {
namespace {

std::size_t naive(std::u16string_view text, std::u16string_view wanted, std::size_t from) {
  const std::size_t found = text.find_first_of(wanted, from);
  return found == std::u16string_view::npos ? text.size() : found;
}

// Units whose low or high byte looks like one of the characters that the scanner looks for.
constexpr char16_t kUnits[] = {u'<',   u'>',   u'"',   u'\'',  u'a',   u' ',   0,
                               0x3C3C, 0x3C00, 0x3E00, 0x22FF, 0x8022, 0xFF3C, 0xFF3E,
                               0xFFFF, 0x8000, 0x7FFF, 0x0100, 0x00FF, 0x013C, 0x4E2D};

TEST(MarkupScanner, FindsWhatASimpleSearchFinds) {
  std::mt19937 random(1);
  for (std::size_t length = 0; length < 200; ++length) {
    std::u16string text(length, u'\0');
    const bool sparse = random() % 2 == 0;
    for (char16_t& unit : text) {
      unit = sparse && random() % 40 != 0 ? u'x' : kUnits[random() % std::size(kUnits)];
    }
    MarkupScanner scanner(text);
    for (int i = 0; i < 100; ++i) {
      const std::size_t from = random() % (length + 1);
      ASSERT_EQ(scanner.findLess(from), naive(text, u"<", from));
      ASSERT_EQ(scanner.findTagStop(from), naive(text, u">\"'", from));
      ASSERT_EQ(scanner.findStructural(from), naive(text, u"<>\"'", from));
    }
  }
}

TEST(MarkupScanner, FindsNothingBehindTheEnd) {
  MarkupScanner scanner(u"<");
  EXPECT_EQ(scanner.findLess(1), 1U);
  MarkupScanner empty(u"");
  EXPECT_EQ(empty.findStructural(0), 0U);
}

}  // namespace
}  // namespace brennet
