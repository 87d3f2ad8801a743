#include "ui/chat/TypedPhrase.h"

#include <gtest/gtest.h>

#include "ui/chat/ChatPhrases.h"

namespace brennet {
namespace {

std::u16string units(std::size_t count, char16_t last) {
  return std::u16string(count - 1, u'\u8C22') + last;
}

TEST(TypedPhrase, IsStoredWholeUpToFortyTwoUnits) {
  EXPECT_EQ(cutTypedPhrase(u""), u"");
  EXPECT_EQ(cutTypedPhrase(units(41, u'a')), units(41, u'a'));
  EXPECT_EQ(cutTypedPhrase(units(42, u'a')), units(42, u'a'));
}

TEST(TypedPhrase, IsCutWhenItIsLonger) {
  EXPECT_EQ(cutTypedPhrase(units(44, u'a')), units(42, u'\u8C22'));
  EXPECT_EQ(cutTypedPhrase(units(50, u'\u8C22')), units(42, u'\u8C22'));
  EXPECT_EQ(cutTypedPhrase(units(5000, u'\u8C22')), units(42, u'\u8C22'));
}

TEST(TypedPhrase, KeepsHalfOfASingleUnitTooMany) {
  EXPECT_EQ(cutTypedPhrase(units(43, u'a')), units(42, u'\u8C22'));
  EXPECT_EQ(cutTypedPhrase(units(43, u'\u00E9')), units(42, u'\u8C22'));
  EXPECT_EQ(cutTypedPhrase(units(43, u'\u8C22')), units(43, u'\u8C00'));
}

TEST(ChatPhrases, StandInFourBranches) {
  const auto categories = chatPhrases();
  ASSERT_EQ(categories.size(), 4U);
  const std::size_t kSizes[] = {21, 8, 5, 9};
  for (std::size_t i = 0; i < categories.size(); ++i) {
    EXPECT_EQ(categories[i].phrases.size(), kSizes[i]) << categories[i].key;
  }
  EXPECT_STREQ(categories[0].phrases[8], categories[0].phrases[10]);
  EXPECT_STREQ(categories[0].phrases[11], "jungle ");
  EXPECT_STREQ(categories[3].phrases.front(), "phrase 14");
  EXPECT_STREQ(categories[3].phrases.back(), "phrase 22");
}

}  // namespace
}  // namespace brennet
