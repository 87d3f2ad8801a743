#include "markup/ElementIndex.h"

#include <gtest/gtest.h>

#include <vector>

namespace brennet {
namespace {

ElementRecord record(std::uint32_t start, std::uint32_t count) {
  return {.start = start, .startTagLength = 3, .length = 7, .count = count, .flags = 0};
}

// <a><b><c></c></b><d></d></a><e></e>
ElementIndex family() {
  ElementIndex index;
  index[0].count = 6;
  for (const std::uint32_t count : {4U, 2U, 1U, 1U, 1U}) {
    index.add(record(static_cast<std::uint32_t>(10 * index.size()), count));
  }
  return index;
}
constexpr ElementNumber kA = 1, kB = 2, kC = 3, kD = 4, kE = 5;

std::vector<ElementNumber> childrenOf(const ElementIndex& index, ElementNumber parent) {
  std::vector<ElementNumber> children;
  for (ElementNumber at = index.firstChild(parent); at != 0; at = index.next(parent, at)) {
    children.push_back(at);
  }
  return children;
}

std::vector<std::uint32_t> startsOf(const ElementIndex& index) {
  std::vector<std::uint32_t> starts;
  for (ElementNumber i = 0; i < index.size(); ++i) starts.push_back(index[i].start);
  return starts;
}

TEST(ElementIndex, HoldsTheDocumentFromTheBeginning) {
  const ElementIndex index;
  EXPECT_EQ(index.size(), 1U);
  EXPECT_EQ(index.firstChild(0), 0U);
  EXPECT_EQ(index.lastChild(0), 0U);
  EXPECT_EQ(index.behind(0), 1U);
}

TEST(ElementIndex, KnowsTheChildrenOfEachElement) {
  const ElementIndex index = family();
  EXPECT_EQ(childrenOf(index, 0), (std::vector{kA, kE}));
  EXPECT_EQ(childrenOf(index, kA), (std::vector{kB, kD}));
  EXPECT_EQ(childrenOf(index, kB), (std::vector{kC}));
  EXPECT_EQ(childrenOf(index, kE), std::vector<ElementNumber>());
}

TEST(ElementIndex, FindsTheLastChildFromAnyOther) {
  const ElementIndex index = family();
  EXPECT_EQ(index.lastChild(0), kE);
  EXPECT_EQ(index.lastChild(kA), kD);
  EXPECT_EQ(index.lastChild(kA, kB), kD);
  EXPECT_EQ(index.lastChild(kA, kD), kD);
  EXPECT_EQ(index.lastChild(kC), 0U);
}

TEST(ElementIndex, InsertsInTheOrderOfTheText) {
  ElementIndex index = family();
  const ElementRecord two[] = {record(1, 1), record(2, 1)};
  index.makeRoomFor(std::size(two));
  index.insert(kD, two, 34);
  index.insert(static_cast<ElementNumber>(index.size()), {two, 1}, 59);
  EXPECT_EQ(startsOf(index), (std::vector<std::uint32_t>{0, 10, 20, 30, 35, 36, 40, 50, 60}));
}

TEST(ElementIndex, RemovesWhatIsInsideAnElement) {
  ElementIndex index = family();
  EXPECT_EQ(index.removeInside(kD), 0U);
  EXPECT_EQ(index.removeInside(kA), 3U);
  EXPECT_EQ(startsOf(index), (std::vector<std::uint32_t>{0, 10, 50}));
}

TEST(ElementIndex, MovesAllElementsFromOneOn) {
  ElementIndex index = family();
  index.moveFrom(kD, 5);
  index.moveFrom(kE, static_cast<std::uint32_t>(-1));
  index.moveFrom(static_cast<ElementNumber>(index.size()), 1000);
  EXPECT_EQ(startsOf(index), (std::vector<std::uint32_t>{0, 10, 20, 30, 45, 54}));
}

TEST(ElementIndex, KeepsRecordsWhenItGrows) {
  constexpr ElementNumber kCount = 200'000;
  for (const std::size_t expected : {std::size_t{0}, std::size_t{70'000}}) {
    ElementIndex index(expected);
    for (ElementNumber i = 1; i <= kCount; ++i) ASSERT_EQ(index.add(record(i * 7, 1)), i);
    EXPECT_EQ(index.size(), kCount + 1);
    for (ElementNumber i = 1; i <= kCount; ++i) ASSERT_EQ(index[i].start, i * 7);
  }
}

}  // namespace
}  // namespace brennet
