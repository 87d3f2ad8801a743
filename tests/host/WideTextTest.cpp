#include "host/WideText.h"

#include <gtest/gtest.h>

namespace brennet {
namespace {

TEST(FromWide, GivesUtf16) {
  EXPECT_EQ(fromWide(nullptr), u"");
  EXPECT_EQ(fromWide(L""), u"");
  EXPECT_EQ(fromWide(L"a\u8C22\U0001F600"), u"a\u8C22\U0001F600");
}

#if !defined(_WIN32)
TEST(FromWide, ReplacesWhatIsNoCodePoint) {
  const wchar_t text[] = {static_cast<wchar_t>(0x110000), static_cast<wchar_t>(-1), 0};
  EXPECT_EQ(fromWide(text), u"\uFFFD\uFFFD");
}
#endif

}  // namespace
}  // namespace brennet
