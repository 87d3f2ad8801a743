// The layer as a host loads it, with the real library below it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QLibrary>
#include <QString>

#include <brennet/HotkeyBlock.h>
#include <brennet/IBrennet.h>

#include <algorithm>
#include <string>

#include "check/Slots.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestData.h"

namespace brennet::check {
namespace {

using testing::HasSubstr;

class Layer : public testing::Test {
 protected:
  Layer() : profile_(folder_.path()) {
    qputenv("BRENNET_CHECK_LOG", QFile::encodeName(logFile()));
    settings_ = folder_ / "KeyInfo.xml";
    std::filesystem::copy_file(test::sampleData("KeyInfo.xml"), settings_);
  }
  ~Layer() override {
    for (const char* const name : {"BRENNET_CHECK_LOG", "BRENNET_CHECK_TARGET", "BRENNET_CHECK"}) {
      qunsetenv(name);
    }
  }

  // The interface, or null.
  IBrennet* load() {
    const QFunctionPointer get = library_.resolve("GetBrennetPtr");
    if (get == nullptr) return nullptr;
    return reinterpret_cast<GetBrennetPtrFunction>(get)();
  }

  void unload() { ASSERT_TRUE(library_.unload()) << qPrintable(library_.errorString()); }

  QString logFile() const {
    const std::filesystem::path name = folder_.path() / u"\u68C0\u67E5 log.txt";
    return QString::fromStdU16String(name.u16string());
  }

  std::string log() const {
    QFile file(logFile());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
  }

  test::TempFolder folder_;
  test::ScopedProfile profile_;
  std::filesystem::path settings_;
  QLibrary library_{QStringLiteral(BRENNET_CHECK_LIBRARY)};
};

bool isRealLibraryLoaded() {
  return QFile::exists(QStringLiteral(":/skin/war3key.qss"));
}

TEST_F(Layer, WatchesTheRealLibraryAndLeavesWithIt) {
  IBrennet* const brennet = load();
  ASSERT_NE(brennet, nullptr);
  EXPECT_EQ(load(), brennet);
  brennet->SetDataFolder(L"");
  EXPECT_TRUE(brennet->LoadSettings(settings_.wstring().c_str()));
  HotkeyBlock block{};
  EXPECT_TRUE(brennet->FillHotkeyBlock(&block));
  EXPECT_EQ(block.flags, 0U);  // `size` was 0, so nothing was filled
  EXPECT_TRUE(isRealLibraryLoaded());
  unload();
  EXPECT_FALSE(isRealLibraryLoaded());

  EXPECT_THAT(log(), testing::StartsWith("BrennetCheck: checks "));
  EXPECT_THAT(log(), HasSubstr("\nBrennetCheck: slot 3 FillHotkeyBlock: [size-not-set] "));
  EXPECT_THAT(log(), HasSubstr("\nBrennetCheck: summary: 1 finding\n"));
}

// The call on what is no object any more is what is tested.
__attribute__((no_sanitize("undefined"))) void callAllSlots(IBrennet& brennet) {
  HotkeyBlock block{};
  bool saved = true;
  EXPECT_FALSE(brennet.LoadSettings(L"x"));
  brennet.SetDataFolder(L"x");
  EXPECT_FALSE(brennet.ShowSettingsDialog(&saved, 1));
  EXPECT_FALSE(brennet.FillHotkeyBlock(&block));
  EXPECT_EQ(brennet.GetDisableLWinFlag(), 0);
  EXPECT_EQ(brennet.GetLastSaveTime(), 0U);
  EXPECT_FALSE(brennet.SetEnabled(true, 1));
  EXPECT_EQ(brennet.GetViewNoDragFlag(), 0);
  EXPECT_FALSE(brennet.IsCapsLockUsed());
  EXPECT_FALSE(brennet.IsShiftUsed());
  EXPECT_EQ(brennet.ApplyHotkeyBlock(&block, 1), -1);
  EXPECT_EQ(brennet.GetStartJSQFlag(), 0);
}

TEST_F(Layer, TellsCallsAfterTheUnloading) {
  IBrennet* const brennet = load();
  ASSERT_NE(brennet, nullptr);
  unload();
  testing::internal::CaptureStderr();
  callAllSlots(*brennet);
  std::string lines = testing::internal::GetCapturedStderr();
  lines.erase(std::remove(lines.begin(), lines.end(), '\r'), lines.end());
  for (std::size_t i = 0; i < kSlots.size(); ++i) {
    EXPECT_THAT(lines, HasSubstr("BrennetCheck: slot " + std::to_string(i) + " " + kSlots[i].name +
                                 ": [unloaded] "));
  }
  EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 12);
}

TEST_F(Layer, IsLoadedAnew) {
  for (int i = 0; i < 3; ++i) {
    IBrennet* const brennet = load();
    ASSERT_NE(brennet, nullptr);
    EXPECT_TRUE(brennet->LoadSettings(settings_.wstring().c_str()));
    unload();
  }
  EXPECT_THAT(log(), testing::Not(HasSubstr("[")));
  // What the file had before stays.
  int times = 0;
  for (std::size_t at = 0; (at = log().find("BrennetCheck: checks ", at)) != std::string::npos;) {
    ++times;
    ++at;
  }
  EXPECT_EQ(times, 3);
}

TEST_F(Layer, SaysThatThereIsNothingToCheck) {
  qputenv("BRENNET_CHECK_TARGET", "/no/such/library");
  EXPECT_EQ(load(), nullptr);
  unload();
  EXPECT_THAT(log(), testing::StartsWith("BrennetCheck: there is nothing to check: "));
}

TEST_F(Layer, DoesNotCheckItself) {
  qputenv("BRENNET_CHECK_TARGET", BRENNET_CHECK_LIBRARY);
  EXPECT_EQ(load(), nullptr);
  unload();
  EXPECT_EQ(log(),
            "BrennetCheck: BRENNET_CHECK_TARGET names the checking layer; name the library "
            "itself\n");
}

TEST_F(Layer, WritesToStandardErrorIfThereIsNoFile) {
  qputenv("BRENNET_CHECK_LOG", QFile::encodeName(logFile() + QStringLiteral("/x")));
  testing::internal::CaptureStderr();
  load()->LoadSettings(nullptr);
  unload();
  const std::string lines = testing::internal::GetCapturedStderr();
  EXPECT_THAT(lines, testing::StartsWith("BrennetCheck: cannot write to "));
  EXPECT_THAT(lines, HasSubstr("BrennetCheck: slot 0 LoadSettings: [null] "));
}

using LayerDeathTest = Layer;

TEST_F(LayerDeathTest, StopsAtTheFirstFinding) {
  qputenv("BRENNET_CHECK", "stop");
  qunsetenv("BRENNET_CHECK_LOG");
  EXPECT_DEATH(load()->LoadSettings(nullptr), "slot 0 LoadSettings: .null.");
}

}  // namespace
}  // namespace brennet::check
