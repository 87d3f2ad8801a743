// The first call of all, which builds the object.

#include <gtest/gtest.h>

#include "host/IBrennet.h"
#include "model/HotkeyBlock.h"
#include "tests/host/FailingNew.h"

extern "C" brennet::IBrennet* GetBrennetPtr() noexcept;

namespace brennet {
namespace {

using test::allocationsUntilFailure;

TEST(TheFirstCall, NeedsNoMemory) {
  allocationsUntilFailure = 0;
  IBrennet* const brennet = GetBrennetPtr();
  const bool wasAskedFor = allocationsUntilFailure < 0;
  allocationsUntilFailure = -1;
  EXPECT_FALSE(wasAskedFor);
  ASSERT_NE(brennet, nullptr);
  HotkeyBlock block{};
  block.size = sizeof(block);
  EXPECT_TRUE(brennet->FillHotkeyBlock(&block));
  EXPECT_EQ(block.zoomValue, 100);
}

}  // namespace
}  // namespace brennet
