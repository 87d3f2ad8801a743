#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "platform/Files.h"
#include "tests/support/TestData.h"

namespace brennet::test {

// Fails where `actual` is not what the file `name` of the test data holds. With
// BRENNET_UPDATE_GOLDEN set in the environment the file is written anew instead; look at the
// difference before you commit it.
inline void expectGolden(const std::string& name, const std::string& actual) {
  const platform::Path file = platform::pathFromNarrow(testData(name));
  if (std::getenv("BRENNET_UPDATE_GOLDEN") != nullptr) {
    ASSERT_FALSE(platform::replaceFile(file, actual));
    return;
  }
  std::string expected;
  ASSERT_FALSE(platform::readFile(file, expected, platform::kAnySize)) << name;
  EXPECT_EQ(actual, expected) << name;
}

}  // namespace brennet::test
