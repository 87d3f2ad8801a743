#include "tests/host/InUse.h"

#include <gtest/gtest.h>

namespace brennet::test {

void expectNoMoreInUse(const InUse& before, std::size_t slack) {
  const InUse now = inUse();
  ASSERT_GT(before.memory, 0U);
  EXPECT_LE(now.memory, before.memory + slack);
  EXPECT_EQ(now.handles, before.handles);
  EXPECT_EQ(now.drawingObjects, before.drawingObjects);
  EXPECT_EQ(now.windowObjects, before.windowObjects);
}

}  // namespace brennet::test
