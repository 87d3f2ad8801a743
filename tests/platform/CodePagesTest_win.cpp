#include <windows.h>
// gtest.h comes after windows.h, which would undo its macros.
#include <gtest/gtest.h>

#include "platform/CodePages.h"

namespace brennet::platform {
namespace {

constexpr CodePage kGb18030 = 54936;

TEST(CodePagesAnsi, IsTheOneOfTheSystem) {
  EXPECT_EQ(ansiCodePage(), GetACP());
}

// Windows has it; not every version of Wine does.
TEST(CodePagesGb18030, IsThereWhereTheSystemHasIt) {
  const bool known = IsValidCodePage(kGb18030) != FALSE;
  EXPECT_EQ(codePageShape(kGb18030), known ? CodePageShape::Other : CodePageShape::Unsupported);

  std::string bytes;
  EXPECT_EQ(encode(kGb18030, u"\u8C22", bytes), !known);
  EXPECT_EQ(bytes, known ? "\xD0\xBB" : "");
}

// kernel32 cannot report losses in UTF-7, and fails when it is asked to. There are none: UTF-7 has
// every unit.
TEST(CodePagesUtf7, IsWritten) {
  std::string bytes;
  EXPECT_FALSE(encode(65000, u"a\u8C22", bytes));
  EXPECT_EQ(bytes, "a+jCI-");
  EXPECT_FALSE(encode(65000, std::u16string{0xD800, u'a'}, bytes));
}

}  // namespace
}  // namespace brennet::platform
