// The count of what is in use finds whatever is left behind.

#include "tests/host/InUse.h"

#include <gtest/gtest-spi.h>

#include <cstdio>
#include <memory>
#include <vector>

#include "tests/support/TempFolder.h"

namespace brennet::test {
namespace {

constexpr int kRounds = 100;

class InUseTest : public testing::Test {
 protected:
  void leakMemory(std::size_t bytes) { memory_.push_back(std::make_unique<char[]>(bytes)); }
  void openFile() {
    files_.emplace_back(std::fopen((folder_ / "file").string().c_str(), "wb"), std::fclose);
  }

  TempFolder folder_;
  std::vector<std::unique_ptr<char[]>> memory_;
  std::vector<std::unique_ptr<FILE, int (*)(FILE*)>> files_;
};

TEST_F(InUseTest, IsNoMoreWhereEachRoundGivesAllBack) {
  expectNothingIsLeft(kRounds, [&](int) {
    leakMemory(1024);
    memory_.clear();
  });
}

TEST_F(InUseTest, IsMoreWhereARoundLeavesALittle) {
  memory_.reserve(kRounds);
  constexpr std::size_t kSizes[] = {64, 100, 1024};
  for (const std::size_t bytes : kSizes) {
    const auto leak = [&](int) { leakMemory(bytes); };
    EXPECT_NONFATAL_FAILURE(expectNothingIsLeft(kRounds, leak), "after.memory");
    EXPECT_NONFATAL_FAILURE(expectNothingIsLeft(kRounds, leak, bytes / 2), "after.memory");
    memory_.clear();
  }
}

TEST_F(InUseTest, MayStayWithinTheSlack) {
  memory_.reserve(kRounds);
  expectNothingIsLeft(
      kRounds, [&](int) { leakMemory(100); }, 256);
}

TEST_F(InUseTest, IsMoreWhereARoundLeavesAHandle) {
  files_.reserve(kRounds);
  EXPECT_NONFATAL_FAILURE(expectNothingIsLeft(
                              kRounds, [&](int) { openFile(); }, 10'000),
                          "after.handles");
}

TEST_F(InUseTest, MayBecomeLess) {
  for (int i = 0; i < kRounds; ++i) {
    leakMemory(1024);
    openFile();
  }
  expectNothingIsLeft(kRounds, [&](int) {
    memory_.pop_back();
    files_.pop_back();
  });
}

}  // namespace
}  // namespace brennet::test
