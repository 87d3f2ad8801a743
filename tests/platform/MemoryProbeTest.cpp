#include "platform/MemoryProbe.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "tests/support/GuardedPages.h"

namespace brennet::platform {
namespace {

using test::Access;
using test::GuardedPages;

bool isWritable(void* address, std::size_t size) {
  const Writability writability = probeMemory(address, size);
  EXPECT_NE(writability, Writability::Unknown);
  return writability == Writability::Writable;
}

TEST(MemoryProbe, AcceptsOwnMemoryAndLeavesItAlone) {
  char bytes[] = "abcdefgh";
  EXPECT_TRUE(isWritable(bytes, sizeof(bytes)));
  EXPECT_STREQ(bytes, "abcdefgh");
}

TEST(MemoryProbe, AcceptsNoBytesAnywhere) {
  EXPECT_TRUE(isWritable(nullptr, 0));
  EXPECT_TRUE(isWritable(reinterpret_cast<void*>(16), 0));
}

TEST(MemoryProbe, RefusesNullAndUnmappedMemory) {
  EXPECT_FALSE(isWritable(nullptr, 1));
  EXPECT_FALSE(isWritable(reinterpret_cast<void*>(16), 4));
  const GuardedPages pages(1, Access::None);
  EXPECT_FALSE(isWritable(pages.boundary(), 1));
}

TEST(MemoryProbe, RefusesARangeThatRunsIntoForbiddenMemory) {
  for (const Access guard : {Access::None, Access::Read, Access::Signal}) {
    const GuardedPages pages(1, guard);
    const auto size = static_cast<std::size_t>(pages.boundary() - pages.begin());
    EXPECT_TRUE(isWritable(pages.begin(), size));
    EXPECT_TRUE(isWritable(pages.boundary() - 4, 4));
    EXPECT_FALSE(isWritable(pages.boundary() - 3, 4));
    EXPECT_FALSE(isWritable(pages.begin(), size + 1));
  }
}

TEST(MemoryProbe, LeavesMemoryAloneAfterARefusal) {
  const GuardedPages pages(1, Access::Read);
  char bytes[] = "ab";
  for (int round = 0; round < 3; ++round) {
    EXPECT_FALSE(isWritable(pages.boundary(), 1));
    EXPECT_TRUE(isWritable(bytes, 1));
    EXPECT_TRUE(isWritable(bytes + 1, 1));
  }
  EXPECT_STREQ(bytes, "ab");
}

TEST(MemoryProbe, LeavesAPageAloneThatSignalsTheFirstTouch) {
  const GuardedPages pages(1, Access::Signal);
  for (int round = 0; round < 2; ++round) {
    EXPECT_FALSE(isWritable(pages.boundary(), 1)) << round;
    EXPECT_FALSE(isWritable(pages.boundary() - 1, 2)) << round;
    EXPECT_TRUE(isWritable(pages.boundary() - 1, 1)) << round;
  }
}

TEST(MemoryProbe, RefusesARangeThatWrapsAround) {
  char byte = 0;
  EXPECT_FALSE(isWritable(&byte, SIZE_MAX));
}

TEST(MemoryProbe, ReadsWhatItMayNotWrite) {
  const GuardedPages pages(1, Access::Read);
  EXPECT_TRUE(isReadable(pages.boundary() - 1, 2));
  EXPECT_FALSE(isWritable(pages.boundary() - 1, 2));
  EXPECT_TRUE(isReadable("text", 5));
}

TEST(MemoryProbe, DoesNotReadWhatItMayNot) {
  for (const Access guard : {Access::None, Access::Signal}) {
    const GuardedPages pages(1, guard);
    EXPECT_TRUE(isReadable(pages.boundary() - 4, 4));
    EXPECT_FALSE(isReadable(pages.boundary() - 3, 4));
    EXPECT_FALSE(isReadable(pages.boundary(), 1));
  }
  EXPECT_FALSE(isReadable(nullptr, 1));
  EXPECT_FALSE(isReadable(reinterpret_cast<const void*>(UINTPTR_MAX), 2));
  EXPECT_TRUE(isReadable(nullptr, 0));
}

}  // namespace
}  // namespace brennet::platform
