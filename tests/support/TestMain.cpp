// Main of the tests that need no application object.

#include <gtest/gtest.h>

#include "tests/support/World.h"

int main(int argc, char** argv) {
  brennet::test::leaveTheCallersWorld();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
