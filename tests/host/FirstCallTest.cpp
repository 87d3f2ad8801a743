// The very first call, which builds the object.

#include <gtest/gtest.h>

#include "brennet/HotkeyBlock.h"
#include "brennet/IBrennet.h"
#include "tests/host/FailingNew.h"

extern "C" brennet::IBrennet* GetBrennetPtr() noexcept;

namespace brennet {
namespace {

TEST(FirstCall, NeedsNoMemory) {
  IBrennet* brennet = nullptr;
  EXPECT_EQ(test::allocationsOf([&] { brennet = GetBrennetPtr(); }), 0);
  ASSERT_NE(brennet, nullptr);
  HotkeyBlock block{};
  block.size = sizeof(block);
  EXPECT_TRUE(brennet->FillHotkeyBlock(&block));
  EXPECT_EQ(block.zoomValue, 100);
}

}  // namespace
}  // namespace brennet
