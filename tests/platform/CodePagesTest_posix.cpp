// ICU's converters for the code pages of Windows.

#include <gtest/gtest.h>

#include "platform/CodePages.h"

namespace brennet::platform {
namespace {

struct PageRow {
  CodePage page;
  CodePageShape shape;
  std::string_view bytes;
  std::u16string_view text;
};

using Shape = CodePageShape;

// A text in each code page, from the tables of another library.
constexpr PageRow kPages[] = {
    {37, Shape::SingleByte, "\xC1\x82\xBA\x51", u"Ab[\u00E9"},
    {437, Shape::SingleByte, "\xA4\xAB", u"\u00F1\u00BD"},
    {850, Shape::SingleByte, "\xA4\xAB", u"\u00F1\u00BD"},
    {852, Shape::SingleByte, "\x8B", u"\u0151"},
    {866, Shape::SingleByte, "\x86\xEF", u"\u0416\u044F"},
    {874, Shape::SingleByte, "\xA1\xA2", u"\u0E01\u0E02"},
    {1250, Shape::SingleByte, "\xF5", u"\u0151"},
    {1251, Shape::SingleByte, "\xC6\xFF", u"\u0416\u044F"},
    {1252, Shape::SingleByte, "\x80\xE9", u"\u20AC\u00E9"},
    {1253, Shape::SingleByte, "\xD9\xDC", u"\u03A9\u03AC"},
    {1254, Shape::SingleByte, "\xF0\xFD", u"\u011F\u0131"},
    {1255, Shape::SingleByte, "\xE0\xF9", u"\u05D0\u05E9"},
    {1256, Shape::SingleByte, "\xC8\x8D", u"\u0628\u0686"},
    {1257, Shape::SingleByte, "\xEB\xF8", u"\u0117\u0173"},
    {1258, Shape::SingleByte, "\xF5\xF0", u"\u01A1\u0111"},
    {10000, Shape::SingleByte, "\x8E\xB7", u"\u00E9\u2211"},
    {10006, Shape::SingleByte, "\xBF\xC0", u"\u03A9\u03AC"},
    {10007, Shape::SingleByte, "\x86\xDF", u"\u0416\u044F"},
    {10029, Shape::SingleByte, "\xCE\x89", u"\u0151\u010C"},
    {10081, Shape::SingleByte, "\xDB\xDC", u"\u011F\u0130"},
    {20127, Shape::SingleByte, "\x61\x7E", u"a~"},
    {20273, Shape::SingleByte, "\xC0\xA1", u"\u00E4\u00DF"},
    {20866, Shape::SingleByte, "\xF6\xD1", u"\u0416\u044F"},
    {21866, Shape::SingleByte, "\xAD\xF6", u"\u0491\u0416"},
    {28591, Shape::SingleByte, "\xE9\xFF", u"\u00E9\u00FF"},
    {28592, Shape::SingleByte, "\xF5\xC8", u"\u0151\u010C"},
    {28593, Shape::SingleByte, "\xB1\xF8", u"\u0127\u011D"},
    {28595, Shape::SingleByte, "\xB6\xEF", u"\u0416\u044F"},
    {28597, Shape::SingleByte, "\xD9\xDC", u"\u03A9\u03AC"},
    {28599, Shape::SingleByte, "\xF0\xDD", u"\u011F\u0130"},
    {28603, Shape::SingleByte, "\xEB\xF8", u"\u0117\u0173"},
    {28605, Shape::SingleByte, "\xA4\xE9", u"\u20AC\u00E9"},
    {38598, Shape::SingleByte, "\xE0\xF9", u"\u05D0\u05E9"},
    {932, Shape::DoubleByte, "\x93\xFA\xB1", u"\u65E5\uFF71"},
    {936, Shape::DoubleByte, "\xD0\xBB\x61", u"\u8C22a"},
    {949, Shape::DoubleByte, "\xC7\xD1\x61", u"\uD55Ca"},
    {950, Shape::DoubleByte, "\xC1\xC2\x61", u"\u8B1Da"},
    {20932, Shape::Other, "\xC6\xFC\xCB\xDC", u"\u65E5\u672C"},
    {51932, Shape::Other, "\xC6\xFC\xCB\xDC", u"\u65E5\u672C"},
    {50220, Shape::Other, "\x61\x1B\x24\x42\x46\x7C\x1B\x28\x42\x62", u"a\u65E5b"},
    {50221, Shape::Other, "\x61\x1B\x24\x42\x46\x7C\x1B\x28\x42\x62", u"a\u65E5b"},
    {50222, Shape::Other, "\x61\x1B\x24\x42\x46\x7C\x1B\x28\x42\x62", u"a\u65E5b"},
    {50225, Shape::Other, "\x61\x1B\x24\x29\x43\x0E\x47\x51\x0F", u"a\uD55C"},
    {50227, Shape::Other, "\x61\x1B\x24\x29\x41\x0E\x50\x3B\x0F\x62", u"a\u8C22b"},
    {51936, Shape::Other, "\xD0\xBB", u"\u8C22"},
    {51949, Shape::Other, "\xC7\xD1", u"\uD55C"},
    {52936, Shape::Other, "\x61\x7E\x7B\x50\x3B\x7E\x7D\x62", u"a\u8C22b"},
    {54936, Shape::Other, "\xD0\xBB\xA8\xA6", u"\u8C22\u00E9"},
    {65000, Shape::Other, "\x61\x2B\x6A\x43\x49\x2D\x62", u"a\u8C22b"},
};

TEST(CodePages, AreThoseOfTheirNumbers) {
  for (const PageRow& row : kPages) {
    EXPECT_EQ(codePageShape(row.page), row.shape) << row.page;
    std::u16string text;
    decode(row.page, row.bytes, text);
    EXPECT_EQ(text, row.text) << row.page;
    std::string bytes;
    EXPECT_FALSE(encode(row.page, row.text, bytes)) << row.page;
    std::u16string back;
    decode(row.page, bytes, back);
    EXPECT_EQ(back, row.text) << row.page;
    if (row.shape != Shape::Other) {
      EXPECT_EQ(bytes, row.bytes) << row.page;
    }
  }
}

TEST(CodePages, HaveNoLeadBytesBeyondTheirRanges) {
  for (const CodePage page : {932U, 936U, 949U, 950U}) {
    EXPECT_FALSE(isLeadByte(page, 0x80)) << page;
    EXPECT_TRUE(isLeadByte(page, 0x81)) << page;
    EXPECT_FALSE(isLeadByte(page, 0xFF)) << page;
  }
}

// The byte after the end could complete the pair.
TEST(CodePages, EndWhereTheTextEnds) {
  std::u16string text;
  decode(949, std::string_view("\xC7\xD1").substr(0, 1), text);
  EXPECT_EQ(text, u"?");
  text.clear();
  decode(51949, std::string_view("a\xC7\xD1").substr(0, 2), text);
  EXPECT_EQ(text, u"a?");
}

TEST(CodePages, HaveTheirOwnCharacterForWhatTheyCannotConvert) {
  for (const CodePage page : {932U, 949U, 950U}) {
    for (unsigned pair = 0x8140; pair <= 0xFEFF; ++pair) {
      const auto lead = static_cast<unsigned char>(pair >> 8U);
      const auto trail = static_cast<unsigned char>(pair & 0xFFU);
      if (!isLeadByte(page, lead)) continue;
      ASSERT_NE(pairToUtf16(page, lead, trail), 0xFFFD) << page << std::hex << ' ' << pair;
    }
  }
  std::u16string text;
  decode(51949, "a\xFF z", text);
  EXPECT_EQ(text, u"a? z");
}

constexpr CodePage kGb18030 = 54936;

TEST(CodePagesGb18030, HasSequencesOfItsOwn) {
  EXPECT_EQ(codePageShape(kGb18030), CodePageShape::Other);
}

TEST(CodePagesGb18030, SurvivesLongBuffers) {
  const std::u16string text(10000, u'\u8C22');
  std::string bytes;
  EXPECT_FALSE(encode(kGb18030, text, bytes));
  std::u16string back;
  decode(kGb18030, bytes, back);
  EXPECT_EQ(back, text);
}

// ICU begins a text with a switch to ASCII, although that is in force already.
TEST(CodePagesHz, BeginsWithItsText) {
  struct Row {
    std::u16string_view text;
    std::string_view bytes;
  };
  constexpr Row kRows[] = {
      {u"", ""}, {u"<a>", "<a>"}, {u"a\u8C22b", "a~{P;~}b"}, {u"\u8C22", "~{P;"}, {u"~}", "~~}"},
  };
  for (const Row& row : kRows) {
    std::string bytes = "~}";
    EXPECT_FALSE(encode(52936, row.text, bytes));
    EXPECT_EQ(bytes, "~}" + std::string(row.bytes));
    std::u16string back;
    decode(52936, row.bytes, back);
    EXPECT_EQ(back, row.text);
  }
}

}  // namespace
}  // namespace brennet::platform
