// The capture-name table, row by row. Keys in runs are given by rules here, so that the rows do not
// repeat the way in which the table lists them.

#include "keys/CaptureKeyNames.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace brennet {
namespace {

struct NameOfKey {
  int code;
  const char16_t* name;
};

constexpr NameOfKey kSingleKeys[] = {
    {0x08, u"BACK"},       {0x09, u"TAB"},       {0x0C, u"CLEAR"},      {0x0D, u"RETURN"},
    {0x10, u"SHIFT"},      {0x11, u"CTRL"},      {0x12, u"ALT"},        {0x13, u"Pause"},
    {0x14, u"CAPS"},       {0x15, u"KANA"},      {0x1B, u"ESC"},        {0x1C, u"CONVERT"},
    {0x1D, u"NONCONVERT"}, {0x1E, u"ACCEPT"},    {0x1F, u"MODECHANGE"}, {0x20, u"SPACE"},
    {0x21, u"PAGEUP"},     {0x22, u"PAGEDOWN"},  {0x23, u"END"},        {0x24, u"HOME"},
    {0x25, u"LEFT"},       {0x26, u"UP"},        {0x27, u"RIGHT"},      {0x28, u"DOWN"},
    {0x29, u"SELECT"},     {0x2A, u"PRINT"},     {0x2B, u"EXECUTE"},    {0x2C, u"PRINT SCREEN"},
    {0x2D, u"INS"},        {0x2E, u"DELETE"},    {0x2F, u"HELP"},       {0x5B, u"LWIN"},
    {0x5C, u"RWIN"},       {0x5D, u"APPS"},      {0x5F, u"SLEEP"},      {0x6A, u"NUM *"},
    {0x6B, u"NUM +"},      {0x6C, u"SEPARATOR"}, {0x6D, u"NUM -"},      {0x6E, u"NUM ."},
    {0x6F, u"NUM /"},      {0x90, u"NUM LOCK"},  {0x91, u"SCROLL"},     {0xA0, u"LSHIFT"},
    {0xA1, u"RSHIFT"},     {0xA2, u"LCTRL"},     {0xA3, u"RCTRL"},      {0xA4, u"LAlt"},
    {0xA5, u"RAlt"},       {0xBA, u";"},         {0xBB, u"="},          {0xBC, u","},
    {0xBD, u"-"},          {0xBE, u"."},         {0xBF, u"/"},          {0xC0, u"`"},
    {0xDB, u"["},          {0xDC, u"\\"},        {0xDD, u"]"},          {0xDE, u"'"},
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
    {0x60, 0x69, u"NUM", 0},
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

// Every code that callers can pass, and some that make no sense.
constexpr int kFirstCode = -300;
constexpr int kLastCode = 600;

TEST(CaptureKeyNames, HoldsExactlyItsRows) {
  Names actual;
  for (int code = kFirstCode; code <= kLastCode; ++code) {
    std::u16string name;
    if (getKeyName(code, name)) actual[code] = name;
  }
  EXPECT_EQ(actual, expectedNames());
}

TEST(CaptureKeyNames, ACodeWithoutACaptureNameLeavesTheOutputAlone) {
  for (const int code : {-1,   0x00, 0x03, 0x04, 0x07, 0x0A, 0x3A, 0x40, 0x5E, 0x7C,
                         0x8F, 0x92, 0x9F, 0xA6, 0xB9, 0xC1, 0xDA, 0xDF, 0xFF, 0x108}) {
    std::u16string name = u"before";
    EXPECT_FALSE(getKeyName(code, name)) << code;
    EXPECT_EQ(name, u"before") << code;
  }
}

TEST(CaptureKeyNames, TheEndsOfTheCaptureRangeHaveNames) {
  std::u16string name;
  EXPECT_TRUE(getKeyName(0x08, name));
  EXPECT_EQ(name, u"BACK");
  EXPECT_TRUE(getKeyName(0xDE, name));
  EXPECT_EQ(name, u"'");
}

}  // namespace
}  // namespace brennet
