#include "keys/Dota7KeyNames.h"

#include <gtest/gtest.h>

#include <climits>

namespace brennet {
namespace {

constexpr int kCtrlKey = 0x11;
constexpr int kAltKey = 0x12;

struct TextCase {
  const char* when;
  int keyCode;
  int modifierCode;
  const char16_t* text;
};

class Dota7KeyText : public testing::TestWithParam<TextCase> {};

TEST_P(Dota7KeyText, IsTheModifierAndTheKey) {
  const TextCase& row = GetParam();
  EXPECT_EQ(Dota7KeyNames().keyText(row.keyCode, row.modifierCode), row.text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Dota7KeyText,
    testing::Values(TextCase{"WithCtrl", 0x51, kCtrlKey, u"CTRL + Q"},
                    TextCase{"WithAlt", 0x51, kAltKey, u"ALT + Q"},
                    TextCase{"WithoutModifier", 0x51, 0, u"Q"},
                    TextCase{"ModifierWithoutName", 0x51, 0xA0, u"Q"},
                    TextCase{"KeyWithoutName", 0xA0, 0, u""},
                    TextCase{"KeyWithoutNameButWithModifier", 0xA0, kAltKey, u"ALT + "},
                    TextCase{"NothingAtAll", 0, 0, u""},
                    TextCase{"KeyIsItsOwnModifier", kAltKey, kAltKey, u"ALT + ALT"},
                    TextCase{"TheFullStopKey", 0xBE, kCtrlKey, u"CTRL + \xFFFD\xFFFD"}),
    [](const auto& test) { return std::string(test.param.when); });

TEST(Dota7KeyNames, AnUnknownCodeLeavesAnEmptyEntryThatStaysEmpty) {
  Dota7KeyNames names;
  const std::size_t before = names.entries().size();

  EXPECT_EQ(names.keyName(0xA0), u"");
  ASSERT_EQ(names.entries().count(0xA0), 1U);
  EXPECT_EQ(names.entries().at(0xA0), u"");
  EXPECT_EQ(names.keyName(0xA0), u"");
  EXPECT_EQ(names.entries().size(), before + 1);
}

TEST(Dota7KeyNames, AKeyTextLooksUpBothItsCodes) {
  Dota7KeyNames names;
  const std::size_t before = names.entries().size();

  EXPECT_EQ(names.keyText(0xA0, 0), u"");
  EXPECT_EQ(names.entries().size(), before + 2);
  EXPECT_EQ(names.entries().count(0xA0), 1U);
  EXPECT_EQ(names.entries().count(0), 1U);
}

TEST(Dota7KeyNames, AKnownCodeAddsNoEntry) {
  Dota7KeyNames names;
  const std::size_t before = names.entries().size();

  EXPECT_EQ(names.keyText(0x51, kCtrlKey), u"CTRL + Q");
  EXPECT_EQ(names.entries().size(), before);
}

TEST(Dota7KeyNames, CodesThatNoKeyboardHasAreJustUnknown) {
  Dota7KeyNames names;
  EXPECT_EQ(names.keyName(INT_MIN), u"");
  EXPECT_EQ(names.keyName(INT_MAX), u"");
}

TEST(Dota7KeyNames, EachTableHasItsOwnEntries) {
  Dota7KeyNames asked;
  asked.keyName(0xA0);
  EXPECT_EQ(Dota7KeyNames().entries().count(0xA0), 0U);
}

}  // namespace
}  // namespace brennet
