#include "platform/Paths.h"

#include <gtest/gtest.h>

namespace brennet::platform {
namespace {

TEST(PathsFromUtf16, KeepsAnEmptyNameEmpty) {
  EXPECT_TRUE(pathFromUtf16(u"").empty());
}

}  // namespace
}  // namespace brennet::platform
