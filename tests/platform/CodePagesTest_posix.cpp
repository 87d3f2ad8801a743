// ICU knows GB18030 wherever it runs.

#include <gtest/gtest.h>

#include "platform/CodePages.h"

namespace brennet::platform {
namespace {

constexpr CodePage kGb18030 = 54936;

TEST(Gb18030, HasSequencesOfItsOwn) {
  EXPECT_EQ(codePageShape(kGb18030), CodePageShape::Other);
}

TEST(Gb18030, SurvivesLongBuffers) {
  const std::u16string text(10000, u'\u8C22');
  std::string bytes;
  EXPECT_FALSE(encode(kGb18030, text, bytes));
  std::u16string back;
  decode(kGb18030, bytes, back);
  EXPECT_EQ(back, text);
}

}  // namespace
}  // namespace brennet::platform
