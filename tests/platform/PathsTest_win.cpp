#include <gtest/gtest.h>

#include "platform/Paths.h"

namespace brennet::platform {
namespace {

TEST(PathsFromUtf16, KeepsEveryUnit) {
  EXPECT_EQ(pathFromUtf16(u"C:\\\u8C22\u0E01\U0001F600.xml").native(),
            L"C:\\\u8C22\u0E01\U0001F600.xml");
  EXPECT_EQ(pathFromUtf16(std::u16string{0xD800, u'a'}).native(), (std::wstring{0xD800, L'a'}));
}

TEST(PathsFromNarrow, ReadsTheAnsiCodePage) {
  EXPECT_EQ(pathFromNarrow("C:\\a b").native(), L"C:\\a b");
  EXPECT_EQ(pathFromNarrow("").native(), L"");
}

}  // namespace
}  // namespace brennet::platform
