#include "markup/text/Utf8.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "markup/text/Utf16.h"

namespace brennet {
namespace {

std::u16string decoded(std::string_view bytes) {
  std::u16string text;
  utf8ToUtf16(bytes, text);
  return text;
}

std::string encoded(std::u16string_view text) {
  std::string bytes(utf8Length(text), '\0');
  EXPECT_EQ(utf16ToUtf8(text, bytes), bytes.size());
  return bytes;
}

TEST(Utf8, ConvertsEveryCharacterBothWays) {
  for (char32_t codePoint = 1; codePoint <= kLastCodePoint;
       codePoint += codePoint < 0x3000 ? 1 : 61) {
    if (!isScalarValue(codePoint)) continue;
    char16_t units[2];
    const std::u16string text(units, writeCharacter(codePoint, units));
    ASSERT_EQ(decoded(encoded(text)), text) << static_cast<unsigned>(codePoint);
  }
}

TEST(Utf8, WritesTheKnownForms) {
  EXPECT_EQ(encoded(u"A\u00E9\u8C22\U0001F600"), "A\xC3\xA9\xE8\xB0\xA2\xF0\x9F\x98\x80");
  EXPECT_EQ(utf8Length(u"A\u00E9\u8C22\U0001F600"), 10U);
}

TEST(Utf8, WritesUnpairedSurrogatesAsTheReplacementCharacter) {
  for (const std::u16string& text :
       {std::u16string{0xD800}, std::u16string{0xDC00}, std::u16string{0xDBFF, u'x'}}) {
    EXPECT_EQ(encoded(text).substr(0, 3), "\xEF\xBF\xBD");
    EXPECT_FALSE(isWellFormedUtf16(text));
  }
  EXPECT_TRUE(isWellFormedUtf16(u"\U0001F600\u8C22x"));
}

TEST(Utf8, FindsAnUnpairedSurrogateAnywhere) {
  for (std::size_t at = 0; at < 200; ++at) {
    std::u16string text(200, u'x');
    EXPECT_TRUE(isWellFormedUtf16(text));
    text[at] = 0xDC00;
    EXPECT_FALSE(isWellFormedUtf16(text));
    if (at == 0) continue;
    text[at - 1] = 0xD83D;
    EXPECT_TRUE(isWellFormedUtf16(text));
  }
}

TEST(Utf8, WritesWholeCharactersOnly) {
  const std::u16string text = u"abcdefghijklmnopqrs\u8C22\u00E9\U0001F600z";
  const std::string all = encoded(text);
  for (std::size_t room = 0; room <= all.size(); ++room) {
    std::string bytes(room, '!');
    const std::size_t written = utf16ToUtf8(text, bytes);
    EXPECT_LE(written, room);
    EXPECT_EQ(bytes.substr(0, written), all.substr(0, written));
    EXPECT_EQ(wholeUtf8Length(bytes.substr(0, written)), written);
    EXPECT_LT(room - written, 4U) << "as many as fit";
  }
}

// Long texts are read in parts.
TEST(Utf8, ReadsCharactersOfAllLengthsAnywhereInALongText) {
  for (const std::u16string_view character : {u"\u00E9", u"\u8C22", u"\U0001F600"}) {
    const std::size_t bytes = utf8Length(character);
    for (std::size_t before = 0; before < 4; ++before) {
      for (const std::size_t size : {4090U, 4096U, 4097U, 4102U, 8194U, 13'000U}) {
        std::u16string text(before, u'a');
        for (std::size_t n = 0; n < size; n += bytes) text.append(character);
        ASSERT_EQ(decoded(encoded(text)), text) << before << ' ' << size;
      }
    }
  }
}

TEST(Utf8, ReadsPartsOfCharactersAnywhereInALongText) {
  const std::string_view character = "\xF0\x9F\x98\x80";
  for (std::size_t before = 4090; before < 4100; ++before) {
    for (std::size_t length = 1; length < character.size(); ++length) {
      const std::string bytes = std::string(before, 'a').append(character.substr(0, length));
      const std::u16string read = std::u16string(before, u'a') + u'\uFFFD';
      ASSERT_EQ(decoded(bytes), read) << before << ' ' << length;
      ASSERT_EQ(decoded(bytes + "b"), read + u'b') << before << ' ' << length;
    }
  }
}

struct BadBytes {
  std::string_view bytes;
  std::u16string_view read;
};

TEST(Utf8, ReadsEachBadPartAsOneReplacementCharacter) {
  const BadBytes kCases[] = {
      {"\x80", u"\uFFFD"},
      {"\xBF\xBF", u"\uFFFD\uFFFD"},
      {"\xC0\xAF", u"\uFFFD\uFFFD"},            // overlong
      {"\xC1\x81", u"\uFFFD\uFFFD"},            // overlong
      {"\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD"},  // overlong
      {"\xF0\x80\x80\xAF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},            // a surrogate
      {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // beyond U+10FFFF
      {"\xF5\x80", u"\uFFFD\uFFFD"},
      {"\xFF"
       "a",
       u"\uFFFDa"},
      {"\xC3", u"\uFFFD"},  // cut off
      {"\xC3"
       "a",
       u"\uFFFDa"},
      {"\xE8\xB0", u"\uFFFD"},
      {"\xE8\xB0"
       "a",
       u"\uFFFDa"},
      {"\xF0\x9F\x98", u"\uFFFD"},
      {"\xF0\x9F\x98\xE8\xB0\xA2", u"\uFFFD\u8C22"},
  };
  for (const BadBytes& test : kCases) {
    EXPECT_EQ(decoded(test.bytes), test.read) << testing::PrintToString(test.bytes);
  }
}

// Long texts are converted in chunks; where these meet makes no difference.
TEST(Utf8, ReadsLongTextsLikeShortOnes) {
  const std::string_view kPieces[] = {"a",
                                      "plain ascii text, longer than a register",
                                      "\xC3\xA9",
                                      "\xE8\xB0\xA2",
                                      "\xF0\x9F\x98\x80",
                                      "\x80",
                                      "\xF0\x9F"};
  std::mt19937 random(7);
  std::string bytes;
  std::u16string expected;
  while (bytes.size() < 30'000) {
    const std::string_view piece = kPieces[random() % std::size(kPieces)];
    bytes += piece;
    bytes += '.';  // so that no piece joins the next
    expected += decoded(piece) + u".";
  }
  EXPECT_EQ(decoded(bytes), expected);
}

TEST(Utf8, TellsWhatStandsAtTheFront) {
  using State = Utf8Character::State;
  struct Case {
    std::string_view bytes;
    State state;
    std::size_t length;
    char32_t codePoint;
  };
  const Case kCases[] = {
      {"a\xC3", State::Good, 1, U'a'},
      {std::string_view("\0", 1), State::Good, 1, 0},
      {"\x7F", State::Good, 1, 0x7F},
      {"\xC3\xA9z", State::Good, 2, 0xE9},
      {"\xE8\xB0\xA2", State::Good, 3, 0x8C22},
      {"\xF0\x9F\x98\x80", State::Good, 4, 0x1F600},
      {"\xF0\x9F\x98", State::CutOff, 3, kReplacementUnit},
      {"\xF0\x9Fz", State::Bad, 2, kReplacementUnit},
      {"\x80z", State::Bad, 1, kReplacementUnit},
      {"\xF5\x80", State::Bad, 1, kReplacementUnit},
  };
  for (const Case& test : kCases) {
    const Utf8Character character = firstUtf8Character(test.bytes);
    EXPECT_EQ(character.state, test.state) << testing::PrintToString(test.bytes);
    EXPECT_EQ(character.bytes, test.length) << testing::PrintToString(test.bytes);
    EXPECT_EQ(character.codePoint, test.codePoint) << testing::PrintToString(test.bytes);
  }
}

TEST(Utf8, KnowsWhatTheEndCutsOff) {
  struct Case {
    std::string_view bytes;
    std::size_t whole;
  };
  const Case kCases[] = {
      {"", 0},
      {"a", 1},
      {"\xC3", 0},
      {"a\xC3\xA9", 3},
      {"a\xE8", 1},
      {"a\xE8\xB0", 1},
      {"a\xE8\xB0\xA2", 4},
      {"a\xF0\x9F\x98", 1},
      {"a\xF0\x9F\x98\x80", 5},
      {"\x80\x80\x80\x80", 4},
      {"a\xC0", 2},
      {"a\xF8\x80", 3},
      {"\xE0\x80", 2},
  };
  for (const Case& test : kCases) {
    EXPECT_EQ(wholeUtf8Length(test.bytes), test.whole) << testing::PrintToString(test.bytes);
  }
}

}  // namespace
}  // namespace brennet
