#include "gameside/dota7/Dota7KeyNames.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <string>

namespace brennet {
namespace {

constexpr int kCtrlKey = 0x11;
constexpr int kAltKey = 0x12;

// Keys in runs are given by rules, so that the rows do not repeat the way in which the table lists
// them.
struct NameOfKey {
  int code;
  const char16_t* name;
};

constexpr NameOfKey kSingleKeys[] = {
    {0x03, u"CTRL + Break"},
    {0x04, u"MBTN"},
    {0x08, u"Backspace"},
    {0x09, u"Tab"},
    {0x0C, u"Clear"},
    {0x0D, u"Enter"},
    {0x10, u"Shift"},
    {0x11, u"CTRL"},
    {0x12, u"ALT"},
    {0x13, u"Pause"},
    {0x14, u"Caps Lock"},
    {0x1B, u"Esc"},
    {0x20, u"Spacebar"},
    {0x21, u"PageUp"},
    {0x22, u"PageDown"},
    {0x23, u"End"},
    {0x24, u"Home"},
    {0x25, u"LEFTARROW"},
    {0x26, u"UPARROW"},
    {0x27, u"RIGHTARROW"},
    {0x28, u"DOWNARROW"},
    {0x29, u"Select"},
    {0x2B, u"EXECUTE"},
    {0x2C, u"PrintScreen"},
    {0x2D, u"Ins"},
    {0x2E, u"Del"},
    {0x2F, u"Help"},
    {0x5B, u"LeftWin"},
    {0x5C, u"RightWin"},
    {0x5D, u"RightClickMenu"},
    {0x6A, u"NUMPAD*"},
    {0x6B, u"NUMPAD+"},
    {0x6D, u"NUMPAD-"},
    {0x6E, u"NUMPAD."},
    {0x6F, u"NUMPAD/"},
    {0x90, u"NumLock"},
    {0x91, u"ScrollLock"},
    {0xBA, u";"},
    {0xBB, u"="},
    {0xBC, u","},
    {0xBD, u"-"},
    {0xBE, u"\xFFFD\xFFFD"},
    {0xBF, u"/"},
    {0xC0, u"~"},
    {0xDB, u"["},
    {0xDC, u"\\"},
    {0xDD, u"]"},
    {0xDE, u"'"},
};

// Keys in a run: the name is the prefix followed by the number or the character itself.
struct RunOfKeys {
  int first;
  int last;
  const char16_t* prefix;
  int firstNumber;  // negative: the name is the character with the code of the key
};

constexpr RunOfKeys kRuns[] = {
    {0x30, 0x39, u"", -1},
    {0x41, 0x5A, u"", -1},
    {0x60, 0x69, u"NUMPAD", 0},
    {0x70, 0x7B, u"F", 1},
};

std::u16string nameInRun(const RunOfKeys& run, int code) {
  if (run.firstNumber < 0) return {static_cast<char16_t>(code)};
  const std::string number = std::to_string(run.firstNumber + code - run.first);
  return run.prefix + std::u16string(number.begin(), number.end());
}

using Names = std::map<int, std::u16string>;

Names expectedNames() {
  Names names;
  for (const NameOfKey& key : kSingleKeys) names[key.code] = key.name;
  for (const RunOfKeys& run : kRuns) {
    for (int code = run.first; code <= run.last; ++code) names[code] = nameInRun(run, code);
  }
  return names;
}

TEST(Dota7KeyNames, HoldsExactlyItsRows) {
  const Names expected = expectedNames();
  EXPECT_EQ(expected.size(), 106U);
  EXPECT_EQ(Dota7KeyNames().entries(), expected);
}

struct TextCase {
  const char* when;
  int keyCode;
  int modifierCode;
  const char16_t* text;
};

class Dota7KeyNamesTest : public testing::TestWithParam<TextCase> {};

TEST_P(Dota7KeyNamesTest, IsTheModifierAndTheKey) {
  const TextCase& row = GetParam();
  EXPECT_EQ(Dota7KeyNames().keyText(row.keyCode, row.modifierCode), row.text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Dota7KeyNamesTest,
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
