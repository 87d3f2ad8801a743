// Each allocation on the way fails once, one after the other: the host gets a result, never an
// exception, and what was saved before stays whole.

#include <gtest/gtest.h>

#include "tests/host/FailingNew.h"
#include "tests/host/HostFixture.h"

namespace brennet {
namespace {

using namespace test;

using OutOfMemory = HostFixture;

// Runs `operation` with failing allocations, further and further on, until none fails any more.
template <class Operation, class Check>
void failEachAllocation(Operation operation, Check check) {
  constexpr long kMoreThanAnyOperation = 100000;
  for (long n = 0; n < kMoreThanAnyOperation; ++n) {
    allocationsUntilFailure = n;
    operation();
    const bool wasReached = allocationsUntilFailure < 0;
    allocationsUntilFailure = -1;
    check(n);
    if (!wasReached) return;
  }
  FAIL() << "the operation never ends";
}

TEST_F(OutOfMemory, WhileLoadingGivesTheDefaultsOrTheFile) {
  // The phrase is kept last, and takes memory of its own: what came before it is there already.
  std::string text = kDefaults;
  text.replace(text.find("<Chat id=\"0\"/>"), 14, "<Chat id=\"0\">a phrase of many letters</Chat>");
  writeBytes(settings_, text);
  const std::wstring path = settings_.wstring();
  bool loaded = false;
  failEachAllocation([&] { loaded = brennet_.LoadSettings(path.c_str()); },
                     [&](long n) {
                       // The first allocation is that of the path: then nothing changes at all.
                       const bool hasSettings = loaded || n == 0;
                       const HotkeyBlock block = filled();
                       EXPECT_EQ(block.heroSkillKeys0to5[0], hasSettings ? 0x5100 : 0) << n;
                       EXPECT_EQ(brennet_.GetLastSaveTime(), hasSettings ? 77U : 0U) << n;
                       EXPECT_EQ(readBytes(settings_), text) << n;
                     });
  EXPECT_TRUE(loaded);
}

TEST_F(OutOfMemory, WhileApplyingABlockChangesAllOrNothing) {
  HotkeyBlock block = filled();
  const HotkeyBlock before = block;
  const std::string fileBefore = readBytes(settings_);
  const std::string filesBefore = folder_.listing();
  block.heroSkillKeys0to5[0] = 0x5200;
  block.quickChat[0] = 'x';
  std::int32_t applied = -1;
  failEachAllocation([&] { applied = brennet_.ApplyHotkeyBlock(&block, 5); },
                     [&](long n) {
                       const HotkeyBlock now = filled();
                       const HotkeyBlock& expected = applied == 0 ? block : before;
                       EXPECT_EQ(std::memcmp(&now, &expected, sizeof(now)), 0) << n;
                       EXPECT_EQ(readBytes(settings_) == fileBefore, applied != 0) << n;
                       EXPECT_EQ(folder_.listing(), filesBefore) << n;
                       if (applied != 0) return;
                       // From here on the allocations of the game's file fail, silently.
                       ASSERT_TRUE(loadText(fileBefore));
                     });
  EXPECT_EQ(applied, 0);
}

TEST_F(OutOfMemory, WhileSwitchingLeavesALoadableFile) {
  bool switched = false;
  bool enable = true;
  failEachAllocation(
      [&] {
        enable = !enable;
        switched = brennet_.SetEnabled(enable, 5);
      },
      [&](long n) {
        EXPECT_EQ(filled().flags, enable ? 0x80000000U : 0U) << n;
        EXPECT_NE(readBytes(settings_).find("</KeyInfo>"), std::string::npos) << n;
      });
  EXPECT_TRUE(switched);
}

}  // namespace
}  // namespace brennet
