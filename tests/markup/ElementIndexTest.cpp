#include "markup/ElementIndex.h"

#include <gtest/gtest.h>

#include <vector>

namespace brennet {
namespace {

std::vector<ElementNumber> childrenOf(const ElementIndex& index, ElementNumber parent) {
  std::vector<ElementNumber> children;
  for (ElementNumber at = index[parent].firstChild; at != 0; at = index[at].next) {
    children.push_back(at);
  }
  return children;
}

TEST(ElementIndex, HoldsTheDocumentFromTheBeginning) {
  const ElementIndex index;
  EXPECT_EQ(index.size(), 1U);
  EXPECT_EQ(index[0].firstChild, 0U);
  EXPECT_EQ(index.lastChild(0), 0U);
  EXPECT_EQ(index.nextInText(0), 0U);
}

TEST(ElementIndex, LinksAtTheFrontInTheMiddleAndAtTheEnd) {
  ElementIndex index;
  const ElementNumber a = index.add();
  const ElementNumber b = index.add();
  const ElementNumber c = index.add();
  const ElementNumber d = index.add();
  index.append(0, b);
  index.append(0, d);
  index.link(0, 0, a);
  index.link(0, b, c);
  EXPECT_EQ(childrenOf(index, 0), (std::vector{a, b, c, d}));
  EXPECT_EQ(index[a].previous, d) << "the first one's previous is the last one";
  EXPECT_EQ(index[b].previous, a);
  EXPECT_EQ(index[c].previous, b);
  EXPECT_EQ(index[d].previous, c);
  EXPECT_EQ(index.lastChild(0), d);
}

TEST(ElementIndex, WalksInTheOrderOfTheText) {
  ElementIndex index;
  const ElementNumber a = index.add();
  const ElementNumber inA = index.add();
  const ElementNumber deep = index.add();
  const ElementNumber b = index.add();
  index.append(0, a);
  index.append(a, inA);
  index.append(inA, deep);
  index.append(0, b);
  EXPECT_EQ(index.nextInText(0), a);
  EXPECT_EQ(index.nextInText(a), inA);
  EXPECT_EQ(index.nextInText(inA), deep);
  EXPECT_EQ(index.nextInText(deep), b);
  EXPECT_EQ(index.nextInText(b), 0U);
  EXPECT_EQ(index.nextBehind(a), b);
}

// Records keep their place and content in every way of growing: doubling the first segment,
// reaching its end, adding segments.
TEST(ElementIndex, KeepsRecordsWhenItGrowsOverSegments) {
  constexpr ElementNumber kCount = 200'000;
  for (const std::size_t expected : {std::size_t{0}, std::size_t{70'000}}) {
    ElementIndex index(expected);
    for (ElementNumber i = 1; i <= kCount; ++i) {
      ASSERT_EQ(index.add(), i);
      index[i].start = i * 7;
    }
    EXPECT_EQ(index.size(), kCount + 1);
    for (ElementNumber i = 1; i <= kCount; ++i) ASSERT_EQ(index[i].start, i * 7);
  }
}

}  // namespace
}  // namespace brennet
