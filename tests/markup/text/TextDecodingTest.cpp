#include "markup/DeclaredEncoding.h"
#include "markup/ResultLog.h"
#include "markup/text/TextDecoding.h"

#include <gtest/gtest.h>

#include <random>

#include "markup/text/TextEncoding.h"
#include "platform/CodePages.h"

namespace brennet {
namespace {

using namespace std::string_view_literals;

struct Decoded {
  std::u16string text;
  std::u16string log;
};

Decoded decode(std::string_view bytes, std::size_t blockSize = kReadBlockSize) {
  ResultLog log;
  std::u16string text = decodeText(bytes, declaredEncodingOfBytes, log, blockSize).text;
  return {std::move(text), log.text()};
}

TEST(TextDecoding, ReportsWhatItDid) {
  struct Case {
    const char* what;
    std::string_view bytes;
    std::u16string_view text;
    std::u16string_view log;
  };
  const Case kCases[] = {
      {"an empty file", "", u"", u"<read encoding=\"UTF-8\" length=\"0\"/>"},
      {"a mark alone", "\xEF\xBB\xBF", u"", u"<bom/><read encoding=\"UTF-8\" length=\"0\"/>"},
      {"plain", "<a/>", u"<a/>",
       u"<utf8_detection/><read encoding=\"UTF-8\" length=\"4\"/>"
       u"<converted_to encoding=\"UTF-16\" length=\"4\"/>"},
      {"GB2312", "<?xml encoding='gb2312'?>\xB9\xFE", u"<?xml encoding='gb2312'?>\u54C8",
       u"<read encoding=\"gb2312\" length=\"27\"/>"
       u"<converted_to encoding=\"UTF-16\" length=\"26\"/>"},
      {"no declaration", "\xB9\xFE", u"\u54C8",
       u"<read encoding=\"ANSI\" length=\"2\"/><converted_to encoding=\"UTF-16\" length=\"1\"/>"},
      {"zero bytes", "<\0\0a/>\0"sv, u"<a/>",
       u"<utf8_detection/><read encoding=\"UTF-8\" length=\"7\"/><nulls_removed count=\"3\"/>"
       u"<converted_to encoding=\"UTF-16\" length=\"4\"/>"},
      {"a byte that becomes a zero", "<?xml encoding='us'?>\x80 \xE1", u"<?xml encoding='us'?> a",
       u"<read encoding=\"us\" length=\"24\"/><nulls_removed count=\"1\"/>"
       u"<converted_to encoding=\"UTF-16\" length=\"23\"/>"},
      {"UTF-16", "\xFF\xFE<\0\x22\x8C\0\0"sv, u"<\u8C22",
       u"<bom/><read encoding=\"UTF-16LE\" length=\"3\"/><nulls_removed count=\"1\"/>"},
      {"UTF-16, high byte first", "\xFE\xFF\0<\x8C\x22"sv, u"<\u8C22",
       u"<bom/><read encoding=\"UTF-16BE\" length=\"2\"/>"},
      {"UTF-32", "\xFF\xFE\0\0\x22\x8C\0\0\0\xF6\x01\0\0\0\0\0"sv, u"\u8C22\U0001F600",
       u"<bom/><read encoding=\"UTF-32LE\" length=\"3\"/><nulls_removed count=\"1\"/>"
       u"<converted_to encoding=\"UTF-16\" length=\"3\"/>"},
      {"UTF-32 that is none", "\0\0\xFE\xFF\0\0\xD8\0\x12\0\0\0\0\0\0"sv, u"\uFFFD\uFFFD\uFFFD",
       u"<bom/><read encoding=\"UTF-32BE\" length=\"2\"/>"
       u"<converted_to encoding=\"UTF-16\" length=\"3\"/>"},
      {"half a unit", "\xFF\xFE<\0a"sv, u"<\uFFFD",
       u"<bom/><read encoding=\"UTF-16LE\" length=\"1\"/>"},
      {"half a character of GB2312", "<?xml encoding='gb2312'?>\xB9\xFE\xB9",
       u"<?xml encoding='gb2312'?>\u54C8?",
       u"<read encoding=\"gb2312\" length=\"28\"/>"
       u"<converted_to encoding=\"UTF-16\" length=\"27\"/>"},
      {"half a character of UTF-8", "\xE8\xB0", u"\uFFFD",
       u"<utf8_detection/><read encoding=\"UTF-8\" length=\"2\"/>"
       u"<converted_to encoding=\"UTF-16\" length=\"1\"/>"},
  };
  for (const Case& test : kCases) {
    SCOPED_TRACE(test.what);
    const Decoded decoded = decode(test.bytes);
    EXPECT_EQ(decoded.text, test.text);
    EXPECT_EQ(decoded.log, test.log);
  }
}

TEST(TextDecoding, GivesACharacterThatABlockCutsOffToTheNextOne) {
  const Decoded decoded = decode("\xB9\xFE\xB9\xFE", 3);
  EXPECT_EQ(decoded.text, u"\u54C8\u54C8");
  EXPECT_EQ(decoded.log,
            u"<read encoding=\"ANSI\" length=\"3\"/><read encoding=\"ANSI\" length=\"2\"/>"
            u"<converted_to encoding=\"UTF-16\" length=\"1\"/>"
            u"<read encoding=\"ANSI\" length=\"2\"/>"
            u"<converted_to encoding=\"UTF-16\" length=\"1\"/>");
}

// If the system cannot convert GB18030, the ANSI code page takes its place, and the ends of that
// one's blocks can be examined.
TEST(TextDecoding, TakesTheRestWhereABlockEndCannotBeExamined) {
  const bool known = platform::codePageShape(54936) != platform::CodePageShape::Unsupported;
  const std::string_view bytes = "<?xml encoding='gb18030'?>\x81\x30\x81\x30\xB9\xFE";
  const Decoded decoded = decode(bytes, 28);
  EXPECT_EQ(decoded.text, decode(bytes).text);
  EXPECT_EQ(decoded.text, known ? u"<?xml encoding='gb18030'?>\u0080\u54C8"
                                : u"<?xml encoding='gb18030'?>??\u54C8");
  EXPECT_EQ(decoded.log, known ? u"<read encoding=\"gb18030\" length=\"28\"/>"
                                 u"<truncation_error encoding=\"gb18030\"/>"
                                 u"<read encoding=\"gb18030\" length=\"32\"/>"
                                 u"<converted_to encoding=\"UTF-16\" length=\"28\"/>"
                               : u"<read encoding=\"gb18030\" length=\"28\"/>"
                                 u"<converted_to encoding=\"UTF-16\" length=\"27\"/>"
                                 u"<read encoding=\"gb18030\" length=\"4\"/>"
                                 u"<converted_to encoding=\"UTF-16\" length=\"2\"/>");
}

TEST(TextDecoding, GivesTheSameTextForEveryBlockSize) {
  const std::string_view kEncodings[] = {"gb2312", "utf-8",        "utf-16",    "utf-16be",
                                         "utf-32", "windows-1252", "shift_jis", "gb18030"};
  for (const std::string_view encoding : kEncodings) {
    SCOPED_TRACE(encoding);
    const std::u16string name(encoding.begin(), encoding.end());
    std::u16string text = u"<?xml version='1.0' encoding='" + name + u"'?>\r\n<a>";
    text += encoding == "windows-1252" ? u"\u00E9\u00E9t\u00E9" : u"\u54C8a\u54C8\u54C8bc\u4E2D";
    if (encoding.starts_with("utf")) text += u"\U0001F600\U0001F600x\U0001F600";
    text += u"</a>";
    ResultLog log;
    const std::string bytes = encodeText(text, name, log);
    EXPECT_EQ(log.text().find(u"loss"), std::u16string::npos);
    for (const std::size_t blockSize : {1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 9U, 11U, 13U, 64U}) {
      EXPECT_EQ(decode(bytes, blockSize).text, text) << blockSize;
    }
  }
}

// Zero units may be inside characters and around the ends of blocks.
TEST(TextDecoding, RemovesZerosAlikeForEveryBlockSize) {
  std::mt19937 random(5);
  for (int round = 0; round < 300; ++round) {
    std::string bytes = round % 2 == 0 ? "<?xml encoding='gb2312'?>" : "";
    if (round % 3 == 0) bytes = "\xFF\xFE";
    for (int i = 0; i < 40; ++i) {
      const std::string_view kPieces[] = {"\0"sv,           "\xB9\xFE"sv,     "\xB9"sv,  "a"sv,
                                          "\0\0\0\0\0\0"sv, "\xE8\xB0\xA2"sv, "\0\xD8"sv};
      bytes += kPieces[random() % std::size(kPieces)];
    }
    const std::u16string whole = decode(bytes).text;
    EXPECT_EQ(whole.find(u'\0'), std::u16string::npos);
    for (const std::size_t blockSize : {1U, 2U, 3U, 4U, 5U, 7U, 16U}) {
      ASSERT_EQ(decode(bytes, blockSize).text, whole) << round << ", " << blockSize;
    }
  }
}

// The number of removed zeros in all entries of a log, which has one digit in each.
std::size_t zerosIn(std::u16string_view log) {
  constexpr std::u16string_view kCount = u"<nulls_removed count=\"";
  std::size_t zeros = 0;
  for (std::size_t at = log.find(kCount); at != log.npos; at = log.find(kCount, at + 1)) {
    zeros += static_cast<std::size_t>(log[at + kCount.size()] - u'0');
  }
  return zeros;
}

TEST(TextDecoding, CountsEachZeroOnce) {
  constexpr std::string_view kFiles[] = {
      "\xFF\xFE"
      "a\0\0\0\x3D\xD8\0\0\x00\xDE"sv,
      "\xEF\xBB\xBF"
      "a\0\xE8\0\xB0\xA2"sv,
      "\xFF\xFE\0\0a\0\0\0\0\0\0\0\0\0\0\0"sv,
  };
  for (const std::string_view bytes : kFiles) {
    for (const std::size_t blockSize : {3U, 4U, 5U, 6U, 7U, 8U, 100U}) {
      EXPECT_EQ(zerosIn(decode(bytes, blockSize).log), 2U)
          << testing::PrintToString(bytes) << ", " << blockSize;
    }
  }
}

TEST(TextDecoding, TellsHowTheTextWasWritten) {
  ResultLog log;
  EXPECT_EQ(decodeText("\xEF\xBB\xBF<a/>", declaredEncodingOfBytes, log).form.codePage, 65001U);
  EXPECT_TRUE(decodeText("\xEF\xBB\xBF<a/>", declaredEncodingOfBytes, log).form.hasMark);
  EXPECT_FALSE(decodeText("<a/>", declaredEncodingOfBytes, log).form.hasMark);
  EXPECT_EQ(decodeText("\0<\0a"sv, declaredEncodingOfBytes, log).form.codePage, 1201U);
  EXPECT_EQ(decodeText("", declaredEncodingOfBytes, log).form.codePage, 0U);
}

}  // namespace
}  // namespace brennet
