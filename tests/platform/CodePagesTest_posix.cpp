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

// ICU begins a text with a switch to ASCII, which is in force already.
TEST(Hz, BeginsWithItsText) {
  struct Row {
    std::u16string_view text;
    std::string_view bytes;
  };
  constexpr Row kRows[] = {
      {u"", ""}, {u"<a>", "<a>"}, {u"a\u8C22b", "a~{P;~}b"}, {u"\u8C22", "~{P;"}, {u"~}", "~~}"},
  };
  for (const Row& row : kRows) {
    std::string bytes = "~}";
    EXPECT_FALSE(encode(52936, row.text, bytes));
    EXPECT_EQ(bytes, "~}" + std::string(row.bytes));
    std::u16string back;
    decode(52936, row.bytes, back);
    EXPECT_EQ(back, row.text);
  }
}

}  // namespace
}  // namespace brennet::platform
