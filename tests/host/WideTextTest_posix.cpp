// Systems where wchar_t has 32 bits.

#include <gtest/gtest.h>

#include "host/WideText.h"

namespace brennet {
namespace {

TEST(WideText, ReplacesWhatIsNoCodePoint) {
  const wchar_t text[] = {static_cast<wchar_t>(0x110000), static_cast<wchar_t>(-1), 0};
  EXPECT_EQ(fromWide(text), u"\uFFFD\uFFFD");
}

}  // namespace
}  // namespace brennet
