#include "keys/KeyWord.h"

#include <gtest/gtest.h>

namespace brennet {
namespace {

TEST(KeyWord, StartsAsNoKey) {
  EXPECT_EQ(KeyWord().raw(), 0xFF00);
  EXPECT_EQ(KeyWord(), kNoKey);
  EXPECT_FALSE(KeyWord().isSet());
}

TEST(KeyWord, HoldsTheVirtualKeyAboveTheModifiers) {
  const KeyWord altQ(0x51, KeyWord::kAlt);
  EXPECT_EQ(altQ.raw(), 20740);
  EXPECT_EQ(altQ.virtualKey(), 0x51);
  EXPECT_EQ(altQ.modifiers(), KeyWord::kAlt);
  EXPECT_TRUE(altQ.isSet());
}

TEST(KeyWord, DoesNotCountModifiersAloneAsAKey) {
  EXPECT_FALSE(KeyWord(0xFF07).isSet());
}

TEST(KeyWord, TellsTheQuickCastMarkFromTheModifiers) {
  const KeyWord marked(0x510C);
  EXPECT_TRUE(marked.quickCast());
  EXPECT_EQ(marked.modifiers(), KeyWord::kAlt);
  EXPECT_EQ(marked.without(KeyWord::kQuickCast), KeyWord(0x5104));
  EXPECT_EQ(KeyWord(0x5104).with(KeyWord::kQuickCast), marked);
}

struct SameKeyCase {
  std::uint16_t one;
  std::uint16_t other;
  bool same;
};

class KeyWordSameKey : public testing::TestWithParam<SameKeyCase> {};

TEST_P(KeyWordSameKey, ComparesTheKeyAndItsThreeModifiers) {
  const SameKeyCase& row = GetParam();
  EXPECT_EQ(KeyWord(row.one).sameKey(KeyWord(row.other)), row.same);
  EXPECT_EQ(KeyWord(row.other).sameKey(KeyWord(row.one)), row.same);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, KeyWordSameKey,
    testing::Values(SameKeyCase{0x5104, 0x5104, true}, SameKeyCase{0x5104, 0x510C, true},
                    SameKeyCase{0x5104, 0x51F4, true}, SameKeyCase{0x5104, 0x5105, false},
                    SameKeyCase{0x5104, 0x5106, false}, SameKeyCase{0x5104, 0x5100, false},
                    SameKeyCase{0x5104, 0x5204, false}, SameKeyCase{0xFF00, 0xFF08, true},
                    SameKeyCase{0xFF00, 0xFF04, false}));

}  // namespace
}  // namespace brennet
