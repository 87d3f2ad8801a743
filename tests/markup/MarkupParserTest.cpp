#include "markup/MarkupParser.h"

#include <gtest/gtest.h>

namespace brennet {
namespace {

TEST(MarkupParser, KeepsTheRangesOfElements) {
  const std::u16string text = u"<?x?> <a t='1'><b>xy</b><c></a> ";
  ResultLog log;
  const ElementIndex index = parseMarkup(text, log);
  struct Range {
    std::uint32_t start, startTagLength, length, parent, firstChild, next, previous;
  };
  constexpr Range kRanges[] = {{0, 0, 32, 0, 1, 0, 0},
                               {6, 9, 25, 0, 2, 0, 1},
                               {15, 3, 9, 1, 0, 3, 3},
                               {24, 3, 3, 1, 0, 0, 2}};
  ASSERT_EQ(index.size(), std::size(kRanges));
  for (ElementNumber i = 0; i < index.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(index[i].start, kRanges[i].start);
    EXPECT_EQ(index[i].startTagLength, kRanges[i].startTagLength);
    EXPECT_EQ(index[i].length, kRanges[i].length);
    EXPECT_EQ(index[i].parent, kRanges[i].parent);
    EXPECT_EQ(index[i].firstChild, kRanges[i].firstChild);
    EXPECT_EQ(index[i].next, kRanges[i].next);
    EXPECT_EQ(index[i].previous, kRanges[i].previous);
  }
}

}  // namespace
}  // namespace brennet
