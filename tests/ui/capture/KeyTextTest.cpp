#include "ui/capture/KeyText.h"

#include <gtest/gtest.h>

#include <string>

namespace brennet {
namespace {

TEST(KeyText, HoldsWhatIsAppended) {
  KeyText text;
  EXPECT_EQ(text.view(), u"");
  text += u"CTRL +";
  text += u"Q";
  EXPECT_EQ(text.view(), u"CTRL +Q");
}

TEST(KeyText, IsCutWhereItIsFull) {
  KeyText text(std::u16string(KeyText::kCapacity - 1, u'x'));
  text += u"yz";
  EXPECT_EQ(text.view(), std::u16string(KeyText::kCapacity - 1, u'x') + u'y');
  text += u"more";
  EXPECT_EQ(text.view().size(), KeyText::kCapacity);
}

}  // namespace
}  // namespace brennet
