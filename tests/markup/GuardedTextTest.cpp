// Nothing behind the end of a text is read.

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "markup/MarkupParser.h"
#include "markup/Names.h"
#include "tests/support/GuardedPages.h"

namespace brennet {
namespace {

// A copy of a text whose end is the end of accessible memory.
class GuardedText {
 public:
  explicit GuardedText(std::u16string_view text)
      : start_(reinterpret_cast<char16_t*>(pages_.boundary()) - text.size()), size_(text.size()) {
    std::copy(text.begin(), text.end(), start_);
  }

  [[nodiscard]] std::u16string_view view() const { return {start_, size_}; }

 private:
  test::GuardedPages pages_{1, test::Access::None};
  char16_t* start_;
  std::size_t size_;
};

TEST(GuardedTextName, EndsWithTheText) {
  for (const std::u16string_view name : {u"", u"a", u"abc"}) {
    const GuardedText text(name);
    EXPECT_EQ(leadingName(text.view()), name);
    EXPECT_EQ(isName(text.view()), !name.empty());
  }
}

TEST(GuardedTextParseMarkup, ReadsNothingBehindTheText) {
  struct Row {
    std::u16string_view text;
    ElementNumber elements;
  };
  constexpr Row kRows[] = {
      {u"<a></a>", 1},
      {u"<a><bc></bc>", 2},
      {u"<a><bc></b>", 2},
      {u"<a></a", 1},
      {u"<a></", 1},
      {u"<a", 0},
      {u"<a t='1", 0},
      {u"<a t='1'/>", 1},
      {u"</a>", 0},
      {u"<!--", 0},
      {u"<", 0},
      {u"", 0},
      {u"<abcdefgh></abcdefgh>", 1},
      {u"<abcdefghi></abcdefghi>", 1},
      {u"<a></>", 1},
  };
  for (const Row& row : kRows) {
    const GuardedText text(row.text);
    ResultLog log;
    EXPECT_EQ(parseMarkup(text.view(), log).size(), row.elements + 1)
        << testing::PrintToString(row.text);
  }
}

}  // namespace
}  // namespace brennet
