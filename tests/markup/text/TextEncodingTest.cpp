#include "markup/ResultLog.h"
#include "markup/text/TextEncoding.h"

#include <gtest/gtest.h>

namespace brennet {
namespace {

using namespace std::string_view_literals;

TEST(TextEncoding, WritesEachEncodingAndReportsIt) {
  struct Case {
    std::u16string_view encoding;
    std::u16string_view text;
    std::string_view bytes;
    std::u16string_view log;
  };
  const Case kCases[] = {
      {u"gb2312", u"a\u54C8", "a\xB9\xFE", u"<converted_from encoding=\"UTF-16\" length=\"2\"/>"},
      {u"GB2312", u"a\u0B85", "a?",
       u"<converted_from encoding=\"UTF-16\" length=\"2\"/><conversion_loss/>"},
      {u"utf-8", u"\u54C8", "\xE5\x93\x88", u"<converted_from encoding=\"UTF-16\" length=\"1\"/>"},
      {u"utf-8", u"\xD800", "\xEF\xBF\xBD",
       u"<converted_from encoding=\"UTF-16\" length=\"1\"/><conversion_loss/>"},
      {u"utf-16", u"<\u54C8", "\xFF\xFE<\0\xC8\x54"sv, u""},
      {u"utf-16be", u"<\u54C8", "\xFE\xFF\0<\x54\xC8"sv, u"<endian_swap/>"},
      {u"utf-32", u"<\U0001F600", "\xFF\xFE\0\0<\0\0\0\0\xF6\x01\0"sv,
       u"<converted_from encoding=\"UTF-16\" length=\"3\"/>"},
      {u"utf-32be", u"<", "\0\0\xFE\xFF\0\0\0<"sv,
       u"<converted_from encoding=\"UTF-16\" length=\"1\"/>"},
      {u"windows-1252", u"\u00E9", "\xE9", u"<converted_from encoding=\"UTF-16\" length=\"1\"/>"},
      {u"windows-1252", u"\u54C8", "?",
       u"<converted_from encoding=\"UTF-16\" length=\"1\"/><conversion_loss/>"},
      {u"bogus", u"\u54C8", "\xB9\xFE", u"<converted_from encoding=\"UTF-16\" length=\"1\"/>"},
      {u"", u"", "", u"<converted_from encoding=\"UTF-16\" length=\"0\"/>"},
  };
  for (const Case& test : kCases) {
    SCOPED_TRACE(testing::PrintToString(test.encoding));
    ResultLog log;
    EXPECT_EQ(encodeText(test.text, test.encoding, log), test.bytes);
    EXPECT_EQ(log.text(), test.log);
  }
}

TEST(TextEncoding, KeepsMarkAndByteOrderOfTheFileItCameFrom) {
  ResultLog log;
  EXPECT_EQ(encodeText(u"<", u"utf-8", log, {65001, true}), "\xEF\xBB\xBF<");
  EXPECT_EQ(encodeText(u"<", u"utf-8", log, {65001, false}), "<");
  EXPECT_EQ(encodeText(u"<", u"utf-16", log, {1201, true}), "\xFE\xFF\0<"sv);
  EXPECT_EQ(encodeText(u"<", u"utf-16", log, {1201, false}), "\0<"sv);
  EXPECT_EQ(encodeText(u"<", u"utf-16", log, {1200, false}), "<\0"sv);
  EXPECT_EQ(encodeText(u"<", u"utf-32", log, {12001, true}), "\0\0\xFE\xFF\0\0\0<"sv);
  EXPECT_EQ(encodeText(u"", u"utf-32", log, {12000, false}), "");
  EXPECT_EQ(encodeText(u"<", u"utf-16", log, {65001, false}), "\xFF\xFE<\0"sv)
      << "a text that changes its encoding is as good as new";
  EXPECT_EQ(encodeText(u"<", u"gb2312", log, {65001, true}), "<");
}

}  // namespace
}  // namespace brennet
