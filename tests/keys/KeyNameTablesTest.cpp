// Both key-name tables, row by row and side by side. The rows here are written by rule where keys
// come in runs, so they do not repeat the tables' own way of listing them.

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "keys/CaptureKeyNames.h"
#include "keys/Dota7KeyNames.h"

namespace brennet {
namespace {

struct NamesOfKey {
  int code;
  const char16_t* dota7;    // null: the DotA 7 pages have no name
  const char16_t* capture;  // null: the capture fields have no name
};

constexpr NamesOfKey kSingleKeys[] = {
    {0x03, u"CTRL + Break", nullptr},
    {0x04, u"MBTN", nullptr},
    {0x08, u"Backspace", u"BACK"},
    {0x09, u"Tab", u"TAB"},
    {0x0C, u"Clear", u"CLEAR"},
    {0x0D, u"Enter", u"RETURN"},
    {0x10, u"Shift", u"SHIFT"},
    {0x11, u"CTRL", u"CTRL"},
    {0x12, u"ALT", u"ALT"},
    {0x13, u"Pause", u"Pause"},
    {0x14, u"Caps Lock", u"CAPS"},
    {0x15, nullptr, u"KANA"},
    {0x1B, u"Esc", u"ESC"},
    {0x1C, nullptr, u"CONVERT"},
    {0x1D, nullptr, u"NONCONVERT"},
    {0x1E, nullptr, u"ACCEPT"},
    {0x1F, nullptr, u"MODECHANGE"},
    {0x20, u"Spacebar", u"SPACE"},
    {0x21, u"PageUp", u"PAGEUP"},
    {0x22, u"PageDown", u"PAGEDOWN"},
    {0x23, u"End", u"END"},
    {0x24, u"Home", u"HOME"},
    {0x25, u"LEFTARROW", u"LEFT"},
    {0x26, u"UPARROW", u"UP"},
    {0x27, u"RIGHTARROW", u"RIGHT"},
    {0x28, u"DOWNARROW", u"DOWN"},
    {0x29, u"Select", u"SELECT"},
    {0x2A, nullptr, u"PRINT"},
    {0x2B, u"EXECUTE", u"EXECUTE"},
    {0x2C, u"PrintScreen", u"PRINT SCREEN"},
    {0x2D, u"Ins", u"INS"},
    {0x2E, u"Del", u"DELETE"},
    {0x2F, u"Help", u"HELP"},
    {0x5B, u"LeftWin", u"LWIN"},
    {0x5C, u"RightWin", u"RWIN"},
    {0x5D, u"RightClickMenu", u"APPS"},
    {0x5F, nullptr, u"SLEEP"},
    {0x6A, u"NUMPAD*", u"NUM *"},
    {0x6B, u"NUMPAD+", u"NUM +"},
    {0x6C, nullptr, u"SEPARATOR"},
    {0x6D, u"NUMPAD-", u"NUM -"},
    {0x6E, u"NUMPAD.", u"NUM ."},
    {0x6F, u"NUMPAD/", u"NUM /"},
    {0x90, u"NumLock", u"NUM LOCK"},
    {0x91, u"ScrollLock", u"SCROLL"},
    {0xA0, nullptr, u"LSHIFT"},
    {0xA1, nullptr, u"RSHIFT"},
    {0xA2, nullptr, u"LCTRL"},
    {0xA3, nullptr, u"RCTRL"},
    {0xA4, nullptr, u"LAlt"},
    {0xA5, nullptr, u"RAlt"},
    {0xBA, u";", u";"},
    {0xBB, u"=", u"="},
    {0xBC, u",", u","},
    {0xBD, u"-", u"-"},
    {0xBE, u"\xFFFD\xFFFD", u"."},
    {0xBF, u"/", u"/"},
    {0xC0, u"~", u"`"},
    {0xDB, u"[", u"["},
    {0xDC, u"\\", u"\\"},
    {0xDD, u"]", u"]"},
    {0xDE, u"'", u"'"},
};

// Keys in a run: the name is the prefix followed by the number or the character itself.
struct RunOfKeys {
  int first;
  int last;
  const char16_t* dota7Prefix;
  const char16_t* capturePrefix;
  int firstNumber;  // negative: the name is the character with the code of the key
};

constexpr RunOfKeys kRuns[] = {
    {0x30, 0x39, u"", u"", -1},
    {0x41, 0x5A, u"", u"", -1},
    {0x60, 0x69, u"NUMPAD", u"NUM", 0},
    {0x70, 0x7B, u"F", u"F", 1},
};

std::u16string nameInRun(const RunOfKeys& run, const char16_t* prefix, int code) {
  if (run.firstNumber < 0) return {static_cast<char16_t>(code)};
  const std::string number = std::to_string(run.firstNumber + code - run.first);
  return prefix + std::u16string(number.begin(), number.end());
}

using Names = std::map<int, std::u16string>;

Names expectedDota7Names() {
  Names names;
  for (const NamesOfKey& key : kSingleKeys) {
    if (key.dota7 != nullptr) names[key.code] = key.dota7;
  }
  for (const RunOfKeys& run : kRuns) {
    for (int code = run.first; code <= run.last; ++code) {
      names[code] = nameInRun(run, run.dota7Prefix, code);
    }
  }
  return names;
}

Names expectedCaptureNames() {
  Names names;
  for (const NamesOfKey& key : kSingleKeys) {
    if (key.capture != nullptr) names[key.code] = key.capture;
  }
  for (const RunOfKeys& run : kRuns) {
    for (int code = run.first; code <= run.last; ++code) {
      names[code] = nameInRun(run, run.capturePrefix, code);
    }
  }
  return names;
}

// Every code that a caller can pass, and some that make no sense.
constexpr int kFirstCode = -300;
constexpr int kLastCode = 600;

TEST(KeyNameTables, TheDota7TableHoldsExactlyItsRows) {
  const Names expected = expectedDota7Names();
  EXPECT_EQ(expected.size(), 106U);
  EXPECT_EQ(Dota7KeyNames().entries(), expected);
}

TEST(KeyNameTables, TheCaptureTableHoldsExactlyItsRows) {
  Names actual;
  for (int code = kFirstCode; code <= kLastCode; ++code) {
    std::u16string name;
    if (getKeyName(code, name)) actual[code] = name;
  }
  EXPECT_EQ(actual, expectedCaptureNames());
}

TEST(KeyNameTables, ACodeWithoutACaptureNameLeavesTheOutputAlone) {
  for (const int code : {-1,   0x00, 0x03, 0x04, 0x07, 0x0A, 0x3A, 0x40, 0x5E, 0x7C,
                         0x8F, 0x92, 0x9F, 0xA6, 0xB9, 0xC1, 0xDA, 0xDF, 0xFF, 0x108}) {
    std::u16string name = u"before";
    EXPECT_FALSE(getKeyName(code, name)) << code;
    EXPECT_EQ(name, u"before") << code;
  }
}

TEST(KeyNameTables, TheEndsOfTheCaptureRangeHaveNames) {
  std::u16string name;
  EXPECT_TRUE(getKeyName(0x08, name));
  EXPECT_EQ(name, u"BACK");
  EXPECT_TRUE(getKeyName(0xDE, name));
  EXPECT_EQ(name, u"'");
}

TEST(KeyNameTables, TheKeyLeftOfOneReadsDifferentlyOnTheTwoFamiliesOfPages) {
  std::u16string name;
  EXPECT_TRUE(getKeyName(0xC0, name));
  EXPECT_EQ(name, u"`");
  EXPECT_EQ(Dota7KeyNames().keyName(0xC0), u"~");
}

}  // namespace
}  // namespace brennet
