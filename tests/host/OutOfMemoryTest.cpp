// Each allocation of an operation fails, alone or with all that follow: the host gets a result that
// is true, never an exception, and files and settings are either the old ones or the new ones.

#include <gtest/gtest.h>

#include "tests/host/FailingNew.h"
#include "tests/host/HostFixture.h"
#include "tests/host/SettingsWithoutMarks.h"
#include "tests/support/FaultPoints.h"

namespace brennet {
namespace {

using namespace test;

constexpr long kSample = 40;

class OutOfMemory : public HostFixture, public testing::WithParamInterface<Lasts> {
 protected:
  OutOfMemory() {
    std::string text = kDefaults;
    // The phrase takes memory besides that of the fields.
    text.replace(text.find("<Chat id=\"0\"/>"), 14, kPhrase);
    text_ = text;
    reset();
    files_ = folder_.listing();
  }

  // The state before each try.
  void reset() {
    writeBytes(preferences_, kPreferences);
    ASSERT_TRUE(loadText(settingsWithoutMarks()));
    ASSERT_TRUE(loadText(text_));
    preferencesBefore_ = readBytes(preferences_);
    before_ = filled();
  }

  // Runs `operation` from that state for one failing allocation after the other, and after each run
  // calls `check` with the number of that allocation.
  template <class Operation, class Check>
  void failEachAllocation(Operation operation, Check check) {
    const long count = allocationsOf(operation);
    EXPECT_GT(count, 0);
    RecordProperty("allocations", static_cast<int>(count));
    for (const long point : faultPoints(count, kSample)) {
      reset();
      {
        const FailingAllocation failing(point, GetParam());
        operation();
        EXPECT_TRUE(failing.hasFailed()) << point;
      }
      check(point);
      EXPECT_EQ(folder_.listing(), files_) << point;
      if (HasFailure()) return;
    }
  }

  [[nodiscard]] bool isFilledWith(const HotkeyBlock& expected) {
    const HotkeyBlock now = filled();
    return std::memcmp(&now, &expected, sizeof(now)) == 0;
  }

  static constexpr char kPhrase[] = "<Chat id=\"0\">a phrase of many letters</Chat>";
  std::string text_;
  std::string files_;
  std::string preferencesBefore_;
  HotkeyBlock before_;
};

// The file is not the one that is loaded already.
TEST_P(OutOfMemory, WhileLoadingGivesTheDefaultsOrTheFile) {
  std::string other = text_;
  other.replace(other.find("77<"), 2, "78");
  other.replace(other.find("20736"), 5, "20992");
  ASSERT_TRUE(loadText(other));
  const HotkeyBlock whole = filled();
  const std::string preferencesAfter = readBytes(preferences_);
  const std::wstring path = settings_.wstring();
  bool loaded = false;
  failEachAllocation(
      [&] {
        {
          const WithoutFailures inTheTest;
          writeBytes(settings_, other);
        }
        loaded = brennet_.LoadSettings(path.c_str());
      },
      [&](long point) {
        const std::string preferences = readBytes(preferences_);
        EXPECT_EQ(readBytes(settings_), other) << point;
        EXPECT_TRUE(preferences == preferencesAfter || preferences == preferencesBefore_) << point;
        if (loaded) {
          EXPECT_TRUE(isFilledWith(whole)) << point;
          EXPECT_EQ(brennet_.GetLastSaveTime(), 78U) << point;
          return;
        }
        EXPECT_EQ(preferences, preferencesBefore_) << point;
        EXPECT_FALSE(isFilledWith(before_)) << point;
        EXPECT_EQ(filled().heroSkillKeys0to5[0], 0) << point;
        EXPECT_EQ(brennet_.GetLastSaveTime(), 0U) << point;
        if (point != 0) return;
        // The first allocation is for the path: without it there is none to save to.
        EXPECT_FALSE(brennet_.SetEnabled(true, 5));
        EXPECT_EQ(readBytes(settings_), other);
      });
}

TEST_P(OutOfMemory, WhileApplyingABlockChangesAllOrNothing) {
  HotkeyBlock block = filled();
  block.heroSkillKeys0to5[0] = 0x5200;
  block.quickChat[0] = 'x';
  ASSERT_EQ(brennet_.ApplyHotkeyBlock(&block, 5), 0);
  const std::string after = readBytes(settings_);
  const std::string preferencesAfter = readBytes(preferences_);
  ASSERT_NE(after, text_);
  ASSERT_NE(preferencesAfter, preferencesBefore_);
  reset();
  std::int32_t applied = -1;
  failEachAllocation([&] { applied = brennet_.ApplyHotkeyBlock(&block, 5); },
                     [&](long point) {
                       const bool isApplied = applied == 0;
                       EXPECT_TRUE(isFilledWith(isApplied ? block : before_)) << point;
                       EXPECT_EQ(readBytes(settings_), isApplied ? after : text_) << point;
                       const std::string preferences = readBytes(preferences_);
                       EXPECT_TRUE(preferences == preferencesBefore_ ||
                                   (isApplied && preferences == preferencesAfter))
                           << point;
                     });
}

TEST_P(OutOfMemory, WhileSwitchingKeepsTheFileOrReplacesIt) {
  ASSERT_TRUE(brennet_.SetEnabled(false, 5));
  const std::string after = readBytes(settings_);
  ASSERT_NE(after, text_);
  reset();
  bool isSwitched = false;
  failEachAllocation([&] { isSwitched = brennet_.SetEnabled(false, 5); },
                     [&](long point) {
                       EXPECT_EQ(readBytes(settings_), isSwitched ? after : text_) << point;
                       EXPECT_EQ(filled().flags, 0U) << "in memory in any case, " << point;
                       ASSERT_TRUE(brennet_.SetEnabled(true, 6)) << "and can be saved again";
                       EXPECT_TRUE(isFilledWith(before_)) << point;
                     });
}

TEST_P(OutOfMemory, WhileTheFolderIsNamedIsNoFailure) {
  failEachAllocation([&] { brennet_.SetDataFolder(L"a folder with a name of many letters"); },
                     [&](long point) { EXPECT_TRUE(isFilledWith(before_)) << point; });
}

TEST_P(OutOfMemory, DoesNotMatterToWhatTakesNone) {
  HotkeyBlock block = filled();
  block.size = sizeof(block);
  const FailingAllocation failing(0, GetParam());
  EXPECT_TRUE(brennet_.FillHotkeyBlock(&block));
  EXPECT_EQ(brennet_.GetDisableLWinFlag(), 0);
  EXPECT_EQ(brennet_.GetViewNoDragFlag(), 0);
  EXPECT_EQ(brennet_.GetStartJSQFlag(), 0);
  EXPECT_EQ(brennet_.GetLastSaveTime(), 77U);
  EXPECT_FALSE(brennet_.IsCapsLockUsed());
  EXPECT_FALSE(brennet_.IsShiftUsed());
  EXPECT_FALSE(brennet_.SetEnabled(true, 1)) << "it is so already";
  EXPECT_EQ(failing.calls(), 0);
}

INSTANTIATE_TEST_SUITE_P(Of, OutOfMemory, testing::Values(Lasts::Once, Lasts::ForEver),
                         [](const auto& lasts) {
                           return lasts.param == Lasts::Once ? "Once" : "ForEver";
                         });

}  // namespace
}  // namespace brennet
