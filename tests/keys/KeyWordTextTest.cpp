#include "keys/KeyWordText.h"

#include <gtest/gtest.h>

namespace brennet {
namespace {

struct TextCase {
  std::uint16_t word;
  bool named;
  const char16_t* text;
};

class KeyWordText : public testing::TestWithParam<TextCase> {};

TEST_P(KeyWordText, ReplacesWhateverTheOutputHeld) {
  const TextCase& row = GetParam();
  std::u16string text = u"before";
  EXPECT_EQ(formatKeyWord(KeyWord(row.word), text), row.named);
  EXPECT_EQ(text, row.text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, KeyWordText,
    testing::Values(TextCase{0x5100, true, u"Q"}, TextCase{0x5101, true, u"SHIFT + Q"},
                    TextCase{0x5102, true, u"CTRL + Q"},
                    TextCase{0x5103, true, u"CTRL + SHIFT + Q"}, TextCase{0x5104, true, u"Alt + Q"},
                    TextCase{0x5105, true, u"Alt + SHIFT + Q"},
                    TextCase{0x5106, true, u"CTRL + Alt + Q"},
                    TextCase{0x5107, true, u"CTRL + Alt + SHIFT + Q"},
                    // Neither the quick-cast bit nor unused bits show.
                    TextCase{0x5108, true, u"Q"}, TextCase{0x51FF, true, u"CTRL + Alt + SHIFT + Q"},
                    TextCase{0x1204, true, u"Alt + ALT"}, TextCase{0x0800, true, u"BACK"},
                    TextCase{0xDE02, true, u"CTRL + '"}, TextCase{0x0002, false, u""},
                    TextCase{0x0000, false, u""}, TextCase{0xDF07, false, u""},
                    TextCase{0xFF00, false, u""}, TextCase{0xFF04, false, u""}));

}  // namespace
}  // namespace brennet
