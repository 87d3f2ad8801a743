// The handles of the user's own registry.

#include <gtest/gtest.h>

#include <string_view>

#include "platform/Registry.h"
#include "tests/support/OpenHandles.h"
#include "tests/support/ScopedRegistry.h"

namespace brennet::platform {
namespace {

constexpr std::u16string_view kKey = u"Software\\Tollamere";

TEST(RegistryHandles, AreClosedWithTheirKeys) {
  test::ScopedRegistry registry;
  registry.createKey(kKey);
  const auto use = [] {
    RegistryKey key(kKey);
    EXPECT_TRUE(key.write(u"N", dwordValue(1)));
    EXPECT_TRUE(key.read(u"N").known);
    EXPECT_TRUE(key.remove(u"N"));
  };
  // The first key makes the system open handles for itself.
  use();
  const std::size_t before = test::openHandles();
  {
    const RegistryKey key(kKey);
    EXPECT_EQ(test::openHandles(), before + 1) << "keys are handles";
  }
  for (int i = 0; i < 100; ++i) use();
  EXPECT_EQ(test::openHandles(), before);
}

}  // namespace
}  // namespace brennet::platform
