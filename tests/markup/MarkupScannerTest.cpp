#include "markup/MarkupScanner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
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

// The end of the tag at `start`, found unit by unit. Nothing unless it is a plain one: within 64
// units, behind pairs of double quotes and no single ones.
std::optional<std::size_t> naiveTagEnd(std::u16string_view text, std::size_t start) {
  const std::size_t end = naive(text, u">", start);
  if (end == text.size() || end - start >= 64) return std::nullopt;
  const std::u16string_view inFront = text.substr(start, end - start);
  const auto quotes = std::count(inFront.begin(), inFront.end(), u'"');
  if (quotes % 2 != 0 || inFront.find(u'\'') != std::u16string_view::npos) return std::nullopt;
  return end;
}

TEST(MarkupScanner, FindsTheEndOfPlainTagsOfUpTo64Units) {
  constexpr char16_t kTagUnits[] = {u'>', u'"', u'"', u'"', u'\'', u'<', 0x3E3E, 0xFF3E};
  std::mt19937 random(1);
  for (int round = 0; round < 2000; ++round) {
    std::u16string text(1 + random() % 150, u'x');
    for (char16_t& unit : text) {
      if (random() % 20 == 0) unit = kTagUnits[random() % std::size(kTagUnits)];
    }
    MarkupScanner scanner(text);
    for (int i = 0; i < 20; ++i) {
      const std::size_t start = random() % text.size();
      if (i % 2 == 0) scanner.findLess(start);
      ASSERT_EQ(scanner.findPlainTagEnd(start), naiveTagEnd(text, start));
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
