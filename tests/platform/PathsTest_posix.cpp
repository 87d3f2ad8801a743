#include <gtest/gtest.h>

#include "platform/Paths.h"

namespace brennet::platform {
namespace {

TEST(PathsFromUtf16, WritesUtf8) {
  EXPECT_EQ(pathFromUtf16(u"/a/\u00E9\u8C22\U0001F600.xml").native(),
            "/a/\xC3\xA9\xE8\xB0\xA2\xF0\x9F\x98\x80.xml");
  EXPECT_EQ(pathFromUtf16(u"\U0010FFFF").native(), "\xF4\x8F\xBF\xBF");
}

TEST(PathsFromUtf16, ReplacesUnpairedSurrogates) {
  EXPECT_EQ(pathFromUtf16(std::u16string{0xD800}).native(), "\xEF\xBF\xBD");
  EXPECT_EQ(pathFromUtf16(std::u16string{0xDC00, u'a'}).native(),
            "\xEF\xBF\xBD"
            "a");
  EXPECT_EQ(pathFromUtf16(std::u16string{0xD800, 0xD800, 0xDC00}).native(),
            "\xEF\xBF\xBD\xF0\x90\x80\x80");
}

TEST(PathsFromNarrow, TakesBytesAsTheyAre) {
  EXPECT_EQ(pathFromNarrow("/\xFF/a").native(), "/\xFF/a");
}

}  // namespace
}  // namespace brennet::platform
