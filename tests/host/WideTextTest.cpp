#include "host/WideText.h"

#include <gtest/gtest.h>

namespace brennet {
namespace {

TEST(WideText, GivesUtf16) {
  EXPECT_EQ(fromWide(nullptr), u"");
  EXPECT_EQ(fromWide(L""), u"");
  EXPECT_EQ(fromWide(L"a\u8C22\U0001F600"), u"a\u8C22\U0001F600");
}

}  // namespace
}  // namespace brennet
