#include "platform/CodePages.h"

#include <gtest/gtest.h>

#include <string>

namespace brennet::platform {
namespace {

constexpr CodePage kUnknown = 12345;

TEST(CodePages, KnowTheirShapes) {
  EXPECT_EQ(codePageShape(1252), CodePageShape::SingleByte);
  EXPECT_EQ(codePageShape(437), CodePageShape::SingleByte);
  EXPECT_EQ(codePageShape(28591), CodePageShape::SingleByte);
  EXPECT_EQ(codePageShape(20127), CodePageShape::SingleByte);
  for (const CodePage page : {932U, 936U, 949U, 950U}) {
    EXPECT_EQ(codePageShape(page), CodePageShape::DoubleByte) << page;
  }
  EXPECT_EQ(codePageShape(kUnknown), CodePageShape::Unsupported);
}

struct PairRow {
  unsigned char lead, trail;
  char16_t unit;
};

TEST(CodePages936, DecodesPairs) {
  constexpr PairRow kRows[] = {
      {0xD0, 0xBB, u'\u8C22'}, {0xB0, 0xA1, u'\u554A'}, {0xA1, 0xA1, u'\u3000'},
      {0x81, 0x40, u'\u4E02'}, {0xFE, 0x4F, u'\uFA29'}, {0xAA, 0xA1, u'\uE000'},
      {0x81, 0x20, u'?'},      {0x81, 0x7F, u'?'},      {0xFE, 0xFF, u'?'},
  };
  for (const PairRow& row : kRows) {
    EXPECT_EQ(pairToUtf16(kGb2312, row.lead, row.trail), row.unit)
        << std::hex << int{row.lead} << ' ' << int{row.trail};
  }
}

TEST(CodePages936, HasTheLeadBytesOfKernel32) {
  EXPECT_FALSE(isLeadByte(kGb2312, 0x80));
  EXPECT_TRUE(isLeadByte(kGb2312, 0x81));
  EXPECT_TRUE(isLeadByte(kGb2312, 0xFE));
  EXPECT_FALSE(isLeadByte(kGb2312, 0xFF));
  EXPECT_EQ(byteToUtf16(kGb2312, 0x80), u'\u20AC');
  EXPECT_EQ(byteToUtf16(kGb2312, 'a'), u'a');
}

TEST(CodePages936, EncodesUnitsWithBestFitAndDefault) {
  const EncodedUnit pair = utf16ToBytes(kGb2312, u'\u8C22');
  EXPECT_EQ(pair.length, 2);
  EXPECT_EQ(pair.bytes[0], 0xD0);
  EXPECT_EQ(pair.bytes[1], 0xBB);
  EXPECT_FALSE(pair.lost);

  const EncodedUnit bestFit = utf16ToBytes(kGb2312, u'\u00A5');  // the yen sign as a full-width one
  EXPECT_EQ(bestFit.length, 2);
  EXPECT_FALSE(bestFit.lost);

  constexpr char16_t kNotThere[] = {0x0E01, 0xD83D, 0xDE00, 0xFFE9, 0xFFEE};
  for (const char16_t unit : kNotThere) {
    const EncodedUnit lost = utf16ToBytes(kGb2312, unit);
    EXPECT_TRUE(lost.lost);
    EXPECT_EQ(lost.length, 1);
    EXPECT_EQ(lost.bytes[0], '?');
  }
}

TEST(CodePages936, ReadsBackEveryPairThatStandsForSomething) {
  for (int lead = 0x81; lead <= 0xFE; ++lead) {
    for (int trail = 0x40; trail <= 0xFE; ++trail) {
      const auto leadByte = static_cast<unsigned char>(lead);
      const auto trailByte = static_cast<unsigned char>(trail);
      const char16_t unit = pairToUtf16(kGb2312, leadByte, trailByte);
      if (unit == u'?') continue;
      const EncodedUnit back = utf16ToBytes(kGb2312, unit);
      ASSERT_FALSE(back.lost) << std::hex << lead << ' ' << trail;
      ASSERT_EQ(pairToUtf16(kGb2312, back.bytes[0], back.bytes[1]), unit);
    }
  }
}

TEST(CodePages932, HasTheSingleBytesOfKernel32) {
  constexpr PairRow kRows[] = {
      {0x1A, 0, 0x1A},   {0x1C, 0, 0x1C},   {0x7F, 0, 0x7F},   {0x5C, 0, u'\\'},
      {0x7E, 0, u'~'},   {0x80, 0, 0x80},   {0xA0, 0, 0xF8F0}, {0xA1, 0, 0xFF61},
      {0xDF, 0, 0xFF9F}, {0xFD, 0, 0xF8F1}, {0xFE, 0, 0xF8F2}, {0xFF, 0, 0xF8F3},
  };
  for (const PairRow& row : kRows) {
    EXPECT_EQ(byteToUtf16(932, row.lead), row.unit) << std::hex << int{row.lead};
    const EncodedUnit back = utf16ToBytes(932, row.unit);
    EXPECT_FALSE(back.lost) << std::hex << int{row.lead};
    EXPECT_EQ(back.length, 1) << std::hex << int{row.lead};
    EXPECT_EQ(back.bytes[0], row.lead);
  }
  const std::string bytes = "\x1A\x82\xA0\xFD\x7F";
  std::u16string text;
  decode(932, bytes, text);
  EXPECT_EQ(text, u"\x1A\u3042\xF8F1\x7F");
  std::string again;
  EXPECT_FALSE(encode(932, text, again));
  EXPECT_EQ(again, bytes);
}

TEST(CodePagesWholeTexts, LoseTheTopBitInAscii) {
  std::u16string text;
  decode(20127, "a\xE9\x80", text);
  EXPECT_EQ(text, std::u16string({u'a', u'i', u'\0'}));
}

TEST(CodePagesWholeTexts, AreDecodedAndEncoded) {
  std::u16string text = u"<";
  decode(1252, "\x80\xE9", text);
  EXPECT_EQ(text, u"<\u20AC\u00E9");

  std::string bytes = ">";
  EXPECT_FALSE(encode(1252, u"\u20AC\u00E9", bytes));
  EXPECT_EQ(bytes, ">\x80\xE9");
  EXPECT_TRUE(encode(1252, u"\u8C22", bytes));
  EXPECT_EQ(bytes, ">\x80\xE9?");
}

}  // namespace
}  // namespace brennet::platform
