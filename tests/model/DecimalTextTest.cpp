#include "model/DecimalText.h"

#include <gtest/gtest.h>

#include <limits>

namespace brennet {
namespace {

struct Row {
  std::u16string_view text;
  std::int32_t number;
};

TEST(DecimalTextParseDecimal, FollowsTheRuleOfStrtol) {
  constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
  constexpr Row kRows[] = {
      {u"0", 0},
      {u"20740", 20740},
      {u"-1", -1},
      {u"+7", 7},
      {u" \t\r\n\v\f42", 42},
      {u"12abc", 12},
      {u"1 2", 1},
      {u"", 0},
      {u"abc", 0},
      {u"-", 0},
      {u"+-1", 0},
      {u"- 1", 0},
      {u"0x10", 0},
      {u"\uFF11", 0},
      {u"2147483647", kMax},
      {u"2147483648", kMax},
      {u"-2147483648", kMin},
      {u"-2147483649", kMin},
      {u"99999999999999999999999999", kMax},
      {u"-99999999999999999999999999", kMin},
      {u"00000000000000000000000000000000005", 5},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(parseDecimal(row.text), row.number) << testing::PrintToString(row.text);
  }
}

TEST(DecimalTextIsDecimal, IsTrueForNumbersAlone) {
  for (const char16_t* const text : {u"0", u"20740", u" 7 ", u"-1", u"+7", u"99999999999999999"}) {
    EXPECT_TRUE(isDecimal(text)) << testing::PrintToString(text);
  }
  for (const char16_t* const text : {u"", u" ", u"-", u"Q", u"12abc", u"1 2", u"0x10", u"\uFF11"}) {
    EXPECT_FALSE(isDecimal(text)) << testing::PrintToString(text);
  }
}

TEST(DecimalText, WritesNumbers) {
  EXPECT_EQ(decimalText(0), u"0");
  EXPECT_EQ(decimalText(-1), u"-1");
  EXPECT_EQ(decimalText(65280), u"65280");
  EXPECT_EQ(decimalText(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
}

}  // namespace
}  // namespace brennet
