#include "markup/MarkupParser.h"

#include <gtest/gtest.h>

namespace brennet {
namespace {

TEST(MarkupParser, KeepsTheRangesOfElements) {
  const std::u16string text = u"<?x?> <a t='1'><b>xy</b><c></a> ";
  ResultLog log;
  const ElementIndex index = parseMarkup(text, log);
  struct Range {
    std::uint32_t start, startTagLength, length, count;
  };
  constexpr Range kRanges[] = {{0, 0, 32, 4}, {6, 9, 25, 3}, {15, 3, 9, 1}, {24, 3, 3, 1}};
  ASSERT_EQ(index.size(), std::size(kRanges));
  for (ElementNumber i = 0; i < index.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(index[i].start, kRanges[i].start);
    EXPECT_EQ(index[i].startTagLength, kRanges[i].startTagLength);
    EXPECT_EQ(index[i].length, kRanges[i].length);
    EXPECT_EQ(index[i].count, kRanges[i].count);
  }
}

}  // namespace
}  // namespace brennet
