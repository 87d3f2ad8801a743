#include "platform/MemoryProbe.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>

namespace brennet::platform {
namespace {

// Two pages: the first may be read and written, the second has the given protection.
class TwoPages {
 public:
  explicit TwoPages(int protection)
      : size_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))),
        start_(static_cast<char*>(
            mmap(nullptr, 2 * size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))) {
    EXPECT_EQ(mprotect(start_ + size_, size_, protection), 0);
  }
  ~TwoPages() { munmap(start_, 2 * size_); }
  TwoPages(const TwoPages&) = delete;
  TwoPages& operator=(const TwoPages&) = delete;

  [[nodiscard]] char* boundary() const { return start_ + size_; }
  [[nodiscard]] std::size_t size() const { return size_; }

 private:
  std::size_t size_;
  char* start_;
};

TEST(IsWritable, AcceptsOwnMemoryAndLeavesItAlone) {
  char bytes[] = "abcdefgh";
  EXPECT_TRUE(isWritable(bytes, sizeof(bytes)));
  EXPECT_STREQ(bytes, "abcdefgh");
}

TEST(IsWritable, AcceptsNoBytesAnywhere) {
  EXPECT_TRUE(isWritable(nullptr, 0));
  EXPECT_TRUE(isWritable(reinterpret_cast<void*>(16), 0));
}

TEST(IsWritable, RefusesNullAndUnmappedMemory) {
  EXPECT_FALSE(isWritable(nullptr, 1));
  EXPECT_FALSE(isWritable(reinterpret_cast<void*>(16), 4));
  const TwoPages pages(PROT_NONE);
  EXPECT_FALSE(isWritable(pages.boundary(), 1));
}

TEST(IsWritable, RefusesARangeThatRunsIntoForbiddenMemory) {
  for (const int protection : {PROT_NONE, PROT_READ}) {
    const TwoPages pages(protection);
    EXPECT_TRUE(isWritable(pages.boundary() - pages.size(), pages.size()));
    EXPECT_TRUE(isWritable(pages.boundary() - 4, 4));
    EXPECT_FALSE(isWritable(pages.boundary() - 3, 4));
    EXPECT_FALSE(isWritable(pages.boundary() - pages.size(), pages.size() + 1));
  }
}

TEST(IsWritable, RefusesARangeThatWrapsAround) {
  char byte = 0;
  EXPECT_FALSE(isWritable(&byte, SIZE_MAX));
}

}  // namespace
}  // namespace brennet::platform
