#include "markup/text/TextPosition.h"

#include <gtest/gtest.h>

namespace brennet {
namespace {

TEST(TextPosition, CountsLinesAndCharactersFromOne) {
  const struct {
    std::u16string_view text;
    std::size_t offset;
    TextPosition position;
  } kRows[] = {
      {u"", 0, {1, 1}},
      {u"", 5, {1, 1}},
      {u"abc", 0, {1, 1}},
      {u"abc", 2, {1, 3}},
      {u"abc", 9, {1, 4}},
      {u"a\nb", 1, {1, 2}},
      {u"a\nb", 2, {2, 1}},
      {u"a\r\nb", 3, {2, 1}},
      {u"a\rb", 2, {2, 1}},
      {u"\r\r\n\n\rx", 5, {5, 1}},
      {u"\u8C22\u8C22x", 2, {1, 3}},
      {u"\U0001F600x", 2, {1, 2}},
      {u"\xD83Dx", 1, {1, 2}},
      {u"\xDE00x", 1, {1, 2}},
      {u"\tx", 1, {1, 2}},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(positionAt(row.text, row.offset), row.position)
        << "line " << positionAt(row.text, row.offset).line << ", column "
        << positionAt(row.text, row.offset).column << " of row " << &row - kRows;
  }
}

}  // namespace
}  // namespace brennet
