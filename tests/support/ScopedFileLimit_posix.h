#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace brennet::test {

// While it lives, this process can write no file longer than `size` bytes.
class ScopedFileLimit {
 public:
  explicit ScopedFileLimit(rlim_t size) {
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &before_), 0);
    const rlimit limit{size, before_.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  }
  ~ScopedFileLimit() { EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &before_), 0); }
  ScopedFileLimit(const ScopedFileLimit&) = delete;
  ScopedFileLimit& operator=(const ScopedFileLimit&) = delete;

 private:
  rlimit before_{};
};

}  // namespace brennet::test
