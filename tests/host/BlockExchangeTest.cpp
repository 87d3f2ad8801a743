#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tests/host/HostFixture.h"
#include "tests/support/GuardedPages.h"

namespace brennet {
namespace {

using namespace test;

using BlockExchange = HostFixture;

constexpr std::size_t kRecord = sizeof(HotkeyBlock);

// A caller's memory of `provided` bytes, which announces `announced` bytes. It ends at a forbidden
// page, so that touching one byte too many crashes.
class CallerMemory {
 public:
  CallerMemory(std::size_t provided, std::uint32_t announced)
      : pages_(3, Access::None), block_(pages_.boundary() - provided) {
    std::fill(pages_.begin(), pages_.boundary(), '\xEE');
    std::memcpy(block_, &announced, std::min(sizeof(announced), provided));
  }

  [[nodiscard]] HotkeyBlock* block() const { return reinterpret_cast<HotkeyBlock*>(block_); }
  [[nodiscard]] std::string bytes(std::size_t size) const { return {block_, size}; }
  void write(std::size_t offset, std::string_view bytes) const {
    std::memcpy(block_ + offset, bytes.data(), bytes.size());
  }
  void makeReadOnly() const { pages_.limit(Access::Read); }

 private:
  GuardedPages pages_;
  char* block_;
};

std::string bytesOf(const HotkeyBlock& block) {
  return {reinterpret_cast<const char*>(&block), sizeof(block)};
}

TEST_F(BlockExchange, FillsAsMuchAsTheCallerProvides) {
  const std::string whole = bytesOf(filled());
  for (const std::uint32_t size : {4U, 5U, 8U, 100U, 1806U, 1807U, 1808U, 5000U}) {
    const CallerMemory memory(size, size);
    EXPECT_TRUE(brennet_.FillHotkeyBlock(memory.block())) << size;
    const std::size_t shared = std::min<std::size_t>(size, kRecord);
    EXPECT_EQ(memory.bytes(4), std::string(reinterpret_cast<const char*>(&size), 4)) << size;
    EXPECT_EQ(memory.bytes(shared).substr(4), whole.substr(4, shared - 4)) << size;
    EXPECT_EQ(memory.bytes(size).substr(shared), std::string(size - shared, '\xEE')) << size;
  }
}

TEST_F(BlockExchange, WritesNothingForASizeThatHoldsNothing) {
  for (const std::uint32_t size : {0U, 3U}) {
    const CallerMemory memory(8, size);
    EXPECT_TRUE(brennet_.FillHotkeyBlock(memory.block())) << size;
    EXPECT_EQ(memory.bytes(8),
              std::string(reinterpret_cast<const char*>(&size), 4) + std::string(4, '\xEE'));
  }
}

TEST_F(BlockExchange, FillsOnlyMemoryThatIsThere) {
  EXPECT_FALSE(brennet_.FillHotkeyBlock(nullptr));
  EXPECT_FALSE(brennet_.FillHotkeyBlock(CallerMemory(3, 0).block()));
  EXPECT_FALSE(brennet_.FillHotkeyBlock(CallerMemory(100, 101).block()));
  EXPECT_FALSE(brennet_.FillHotkeyBlock(CallerMemory(1806, 0xFFFFFFFFU).block()));
  EXPECT_TRUE(brennet_.FillHotkeyBlock(CallerMemory(kRecord, 0xFFFFFFFFU).block()))
      << "a record is all that is touched";
  const CallerMemory memory(kRecord, kRecord);
  memory.makeReadOnly();
  EXPECT_FALSE(brennet_.FillHotkeyBlock(memory.block()));
}

TEST_F(BlockExchange, TakesNothingFromMemoryThatIsNotThere) {
  const std::string before = readBytes(settings_);
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(nullptr, 5), 0);
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(CallerMemory(3, 0).block(), 5), 0);
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(CallerMemory(100, 101).block(), 5), 0);
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(CallerMemory(kRecord, 5000).block(), 5), 0);
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(CallerMemory(kRecord, 0xFFFFFFFFU).block(), 5), 0);
  const CallerMemory memory(kRecord, kRecord);
  memory.makeReadOnly();
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(memory.block(), 5), 0);
  EXPECT_EQ(readBytes(settings_), before);
}

TEST_F(BlockExchange, FindsNothingToTakeInAnUnchangedBlock) {
  const std::string before = readBytes(settings_);
  for (const std::uint32_t size : {0U, 3U, 4U, 100U, 1807U}) {
    HotkeyBlock block = filled();
    block.size = size;
    EXPECT_EQ(brennet_.ApplyHotkeyBlock(&block, 5), -1) << size;
  }
  std::vector<char> larger(5000, 'x');
  const HotkeyBlock block = filled();
  std::memcpy(larger.data(), &block, sizeof(block));
  const std::uint32_t size = 5000;
  std::memcpy(larger.data(), &size, sizeof(size));
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(reinterpret_cast<HotkeyBlock*>(larger.data()), 5), -1);
  EXPECT_EQ(readBytes(settings_), before);
}

TEST_F(BlockExchange, SavesWhatTheGameChanged) {
  HotkeyBlock block = filled();
  block.heroSkillKeys0to5[0] = 0x5208;
  block.zoomValue = 120;
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(&block, 123456), 0);
  EXPECT_EQ(brennet_.GetLastSaveTime(), 77U);
  EXPECT_EQ(bytesOf(filled()), bytesOf(block));
  EXPECT_NE(readBytes(preferences_).find("Hotkey=82\r\n"), std::string::npos);

  EXPECT_TRUE(brennet_.LoadSettings(settings_.wstring().c_str()));
  EXPECT_EQ(brennet_.GetLastSaveTime(), 123456U);
  EXPECT_EQ(bytesOf(filled()), bytesOf(block));
}

TEST_F(BlockExchange, ChangesNothingThatAShorterRecordDoesNotCarry) {
  HotkeyBlock block = filled();
  block.zoomValue = 120;  // offset 68
  block.heroSkillKeys0to5[1] = 0;
  block.hideUI = 1;  // offset 1802
  block.size = 69;
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(&block, 5), 0);
  const HotkeyBlock now = filled();
  EXPECT_EQ(now.zoomValue, 120);
  EXPECT_EQ(now.heroSkillKeys0to5[1], 0);
  EXPECT_EQ(now.hideUI, 0);
}

TEST_F(BlockExchange, KeepsTheSettingsWhenTheSaveFails) {
  ASSERT_FALSE(brennet_.LoadSettings(folder_.path().wstring().c_str()));
  const HotkeyBlock before = filled();
  HotkeyBlock block = before;
  block.zoomValue = 120;
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(&block, 5), -1);
  EXPECT_EQ(bytesOf(filled()), bytesOf(before));
}

TEST_F(BlockExchange, KeepsNothingOfAnEarlierFailedAttempt) {
  ASSERT_FALSE(brennet_.LoadSettings(folder_.path().wstring().c_str()));
  HotkeyBlock block = filled();
  block.hideUI = 1;
  block.quickChat[0] = 'x';
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(&block, 5), -1);

  ASSERT_TRUE(loadText(kDefaults));
  block = filled();
  block.zoomValue = 90;
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(&block, 5), 0);
  EXPECT_EQ(filled().hideUI, 0);
  EXPECT_EQ(filled().quickChat[0], '\0');
}

TEST_F(BlockExchange, TakesBlocksAtOddAddresses) {
  std::vector<char> memory(kRecord + 1);
  auto* const block = reinterpret_cast<HotkeyBlock*>(memory.data() + 1);
  const std::uint32_t size = kRecord;
  std::memcpy(block, &size, sizeof(size));
  EXPECT_TRUE(brennet_.FillHotkeyBlock(block));
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(block, 5), -1);
}

}  // namespace
}  // namespace brennet
