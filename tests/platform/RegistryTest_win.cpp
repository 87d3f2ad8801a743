// The handles of the user's own registry.

#include <windows.h>
// gtest.h comes after windows.h, which would undo its macros.
#include <gtest/gtest.h>

#include <cstdint>
#include <string_view>

#include "platform/Registry.h"
#include "tests/support/ScopedRegistry.h"

namespace brennet::platform {
namespace {

constexpr std::u16string_view kKey = u"Software\\Tollamere";

// Values of handles are multiples of 4, and one that is free is given again before a larger one.
int openHandles() {
  constexpr std::uintptr_t kLastHandle = 16384;
  int count = 0;
  for (std::uintptr_t value = 4; value <= kLastHandle; value += 4) {
    DWORD flags = 0;
    if (GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) != FALSE) ++count;
  }
  return count;
}

TEST(RegistryHandles, AreClosedWithTheirKeys) {
  test::ScopedRegistry registry;
  registry.createKey(kKey);
  const auto use = [] {
    RegistryKey key(kKey);
    EXPECT_TRUE(key.write(u"N", dwordValue(1)));
    EXPECT_TRUE(key.read(u"N").known);
    EXPECT_TRUE(key.remove(u"N"));
  };
  // With the first key the system opens what it needs itself.
  use();
  const int before = openHandles();
  {
    const RegistryKey key(kKey);
    EXPECT_EQ(openHandles(), before + 1) << "keys are handles";
  }
  for (int i = 0; i < 100; ++i) use();
  EXPECT_EQ(openHandles(), before);
}

}  // namespace
}  // namespace brennet::platform
