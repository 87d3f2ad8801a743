#include "markup/text/DoubleByteCodec.h"

#include <gtest/gtest.h>

#include <random>

namespace brennet {
namespace {

using platform::CodePage;

constexpr CodePage kCodePages[] = {932, 936, 949, 950};

DoubleByteCodec& gb2312() {
  return DoubleByteCodec::of(platform::kGb2312);
}

std::u16string decoded(DoubleByteCodec& codec, std::string_view bytes) {
  std::u16string text;
  EXPECT_EQ(codec.decode(bytes, text), bytes.size());
  return text;
}

TEST(DoubleByteCodec, ConvertsAPhraseBothWays) {
  const std::string bytes = "\xD0\xBB\xD0\xBB, \xB9\xFE\xB9\xFE!";
  const std::u16string text = u"\u8C22\u8C22, \u54C8\u54C8!";
  EXPECT_EQ(decoded(gb2312(), bytes), text);
  std::string again;
  EXPECT_FALSE(gb2312().encode(text, again));
  EXPECT_EQ(again, bytes);
}

TEST(DoubleByteCodec, GivesWhatTheSystemGivesForEveryPair) {
  for (const CodePage codePage : kCodePages) {
    DoubleByteCodec& codec = DoubleByteCodec::of(codePage);
    for (unsigned lead = 0x80; lead < 0x100; ++lead) {
      const auto leadByte = static_cast<unsigned char>(lead);
      ASSERT_EQ(codec.isLeadByte(leadByte), platform::isLeadByte(codePage, leadByte));
      if (!codec.isLeadByte(leadByte)) {
        const char byte = static_cast<char>(lead);
        ASSERT_EQ(decoded(codec, {&byte, 1}),
                  std::u16string(1, platform::byteToUtf16(codePage, leadByte)));
        continue;
      }
      for (unsigned trail = 0; trail < 0x100; trail += 5) {
        const char pair[] = {static_cast<char>(lead), static_cast<char>(trail)};
        const char16_t unit =
            platform::pairToUtf16(codePage, leadByte, static_cast<unsigned char>(trail));
        ASSERT_EQ(decoded(codec, {pair, 2}), std::u16string(1, unit));
      }
    }
  }
}

TEST(DoubleByteCodec, GivesWhatTheSystemGivesForEveryUnit) {
  for (const CodePage codePage : kCodePages) {
    DoubleByteCodec& codec = DoubleByteCodec::of(codePage);
    for (unsigned unit = 0; unit < 0x10000; unit += 3) {
      const auto text = static_cast<char16_t>(unit);
      const platform::EncodedUnit expected = platform::utf16ToBytes(codePage, text);
      std::string bytes;
      ASSERT_EQ(codec.encode({&text, 1}, bytes), expected.lost) << unit;
      ASSERT_EQ(bytes, std::string(reinterpret_cast<const char*>(expected.bytes), expected.length));
    }
  }
}

TEST(DoubleByteCodec, LeavesHalfACharacterAtTheEnd) {
  std::u16string text;
  EXPECT_EQ(gb2312().decode("a\xD0\xBB\xD0", text), 3U);
  EXPECT_EQ(text, u"a\u8C22");
  EXPECT_EQ(gb2312().decode("\xD0", text), 0U);
  EXPECT_EQ(gb2312().decode("", text), 0U);
  EXPECT_EQ(text, u"a\u8C22");
}

TEST(DoubleByteCodec, SaysWhenAUnitIsLost) {
  std::string bytes;
  EXPECT_TRUE(gb2312().encode(u"a\u0B85z", bytes));
  EXPECT_EQ(bytes, "a?z");
  bytes.clear();
  EXPECT_TRUE(gb2312().encode(u"\U0001F600", bytes));
  EXPECT_EQ(bytes, "??") << "surrogates are encoded one by one";
}

// Texts are converted in chunks and runs; where these meet makes no difference.
TEST(DoubleByteCodec, ConvertsLongTextsLikeShortOnes) {
  const std::string_view kPieces[] = {"a", "plain text, longer than a register ", "\xD0\xBB",
                                      "\xB9\xFE\xC4\xE3", "\x80"};
  std::mt19937 random(3);
  for (int round = 0; round < 20; ++round) {
    std::string bytes;
    std::u16string expected;
    while (bytes.size() < 15'000) {
      const std::string_view piece = kPieces[random() % std::size(kPieces)];
      bytes += piece;
      expected += decoded(gb2312(), piece);
    }
    ASSERT_EQ(decoded(gb2312(), bytes), expected);
    std::string again;
    ASSERT_FALSE(gb2312().encode(expected, again));
    ASSERT_EQ(again, bytes);
  }
}

TEST(DoubleByteCodec, KnowsWhichBytesItCanDecode) {
  EXPECT_TRUE(gb2312().canDecode(""));
  EXPECT_TRUE(gb2312().canDecode("plain ?"));
  EXPECT_TRUE(gb2312().canDecode("\xD0\xBB\xA3\xBF\x80"));
  EXPECT_FALSE(gb2312().canDecode("\xD0")) << "half a character";
  EXPECT_FALSE(gb2312().canDecode("a\xD0\xBB\xD0"));
  EXPECT_FALSE(gb2312().canDecode("\xA8\x20")) << "no such pair";
  DoubleByteCodec& shiftJis = DoubleByteCodec::of(932);
  EXPECT_TRUE(shiftJis.canDecode("\x81\x45")) << "the default character, as itself";
  EXPECT_FALSE(shiftJis.canDecode("\x81\x20"));
}

}  // namespace
}  // namespace brennet
