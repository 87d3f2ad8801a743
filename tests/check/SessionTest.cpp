#include "check/Session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <ostream>
#include <thread>
#include <vector>

#include "check/CheckedLibrary.h"
#include "tests/check/FakeBrennet.h"
#include "tests/support/GuardedPages.h"

namespace brennet::check {
namespace {

using test::Access;
using test::FakeBrennet;
using test::GuardedPages;

constexpr wchar_t kPath[] = L"C:\\KeyInfo.xml";

// A host, and what the session says of it. The program has a QApplication.
struct Host {
  explicit Host(bool stops = false)
      : checked(
            library, [this](const std::string& line) { lines.push_back(line); }, stops),
        brennet(checked.object()) {}

  void startWell() {
    brennet.SetDataFolder(L"C:\\data");
    brennet.LoadSettings(kPath);
    block.size = sizeof(block);
  }

  FakeBrennet library;
  std::vector<std::string> lines;
  CheckedLibrary checked;
  IBrennet& brennet;
  HotkeyBlock block{};
  bool saved = false;
};

// A rule that a host breaks once, after a start that broke none.
struct Broken {
  const char* name;
  Rule rule;
  Slot slot;
  std::function<void(Host&)> breakIt;
};

void PrintTo(const Broken& broken, std::ostream* out) {
  *out << broken.name;
}

void breakThread(Host& host) {
  std::thread([&host] { host.brennet.GetLastSaveTime(); }).join();
}

void callACopy(Host& host) {
  // Whatever object of these tests the compiler takes it for, there is room.
  void* copy[32] = {};
  std::memcpy(copy, static_cast<void*>(&host.brennet), sizeof(*copy));
  EXPECT_EQ(reinterpret_cast<IBrennet*>(copy)->ApplyHotkeyBlock(&host.block, 1), -1);
}

void loadForbiddenText(Host& host) {
  const GuardedPages pages(1, Access::None);
  host.brennet.LoadSettings(reinterpret_cast<const wchar_t*>(pages.boundary()));
}

void loadEndlessText(Host& host) {
  const GuardedPages pages(2, Access::None);
  std::memset(pages.begin(), 'x', static_cast<std::size_t>(pages.boundary() - pages.begin()));
  host.brennet.LoadSettings(reinterpret_cast<const wchar_t*>(pages.begin()));
}

void setForbiddenFolder(Host& host) {
  const GuardedPages pages(1, Access::None);
  host.brennet.SetDataFolder(reinterpret_cast<const wchar_t*>(pages.boundary()));
}

void saveToForbiddenMemory(Host& host) {
  const GuardedPages pages(1, Access::Read);
  host.brennet.ShowSettingsDialog(reinterpret_cast<bool*>(pages.boundary()), 1);
}

void fillForbiddenMemory(Host& host) {
  const GuardedPages pages(1, Access::Read);
  host.brennet.FillHotkeyBlock(reinterpret_cast<HotkeyBlock*>(pages.boundary() - 3));
}

// `size` promises one byte more than there is.
void applyShortMemory(Host& host) {
  const GuardedPages pages(1, Access::None);
  char* const start = pages.boundary() - (sizeof(HotkeyBlock) - 1);
  std::memcpy(start, &host.block, sizeof(host.block) - 1);
  host.brennet.ApplyHotkeyBlock(reinterpret_cast<HotkeyBlock*>(start), 1);
}

void fillSize(Host& host, std::uint32_t size) {
  std::vector<char> memory(0x10000 + 1);
  std::memcpy(memory.data(), &size, sizeof(size));
  host.brennet.FillHotkeyBlock(reinterpret_cast<HotkeyBlock*>(memory.data()));
}

void callInside(Host& host, const std::function<void()>& outer,
                const std::function<void()>& inner) {
  host.library.during = [&host, inner] {
    const std::function<void()> call = inner;
    host.library.during = [] {};  // this function is gone now
    call();
  };
  outer();
}

void callInsideLoad(Host& host) {
  callInside(
      host, [&] { host.brennet.LoadSettings(kPath); }, [&] { host.brennet.IsShiftUsed(); });
}

void callInsideDialog(Host& host, const std::function<void()>& inner) {
  callInside(
      host, [&] { host.brennet.ShowSettingsDialog(&host.saved, 1); }, inner);
}

// Only these processors have the control words.
#if defined(__i386__) || defined(__x86_64__)

// Makes a call with these control words of the processor.
void callWith(Host& host, std::uint16_t x87, std::uint32_t sse) {
  std::uint16_t x87Before = 0;
  std::uint32_t sseBefore = 0;
  __asm__ volatile("fnstcw %0\n\tstmxcsr %1" : "=m"(x87Before), "=m"(sseBefore));
  __asm__ volatile("fldcw %0\n\tldmxcsr %1" : : "m"(x87), "m"(sse));
  host.brennet.GetLastSaveTime();
  __asm__ volatile("fldcw %0\n\tldmxcsr %1" : : "m"(x87Before), "m"(sseBefore));
}

constexpr std::uint16_t kX87 = 0x027F;
constexpr std::uint32_t kSse = 0x1F80;

#endif

class SessionWithABrokenRule : public testing::TestWithParam<Broken> {};

TEST_P(SessionWithABrokenRule, TellsItOnceAndNothingElse) {
  Host host;
  host.startWell();
  ASSERT_THAT(host.lines, testing::IsEmpty());
  for (int i = 0; i < 2; ++i) GetParam().breakIt(host);
  ASSERT_EQ(host.lines.size(), 1U) << testing::PrintToString(host.lines);
  const std::string line = findingText(GetParam().rule, GetParam().slot);
  const std::string start = line.substr(0, line.find(". Contract: "));
  EXPECT_EQ(host.lines[0].substr(0, start.size()), start);
  EXPECT_EQ(host.checked.session().findings.count(), 2U);
}

const Broken kBroken[] = {
    {"thread", Rule::Thread, Slot::GetLastSaveTime, breakThread},
    {"copy", Rule::Object, Slot::ApplyHotkeyBlock, callACopy},
    {"no path", Rule::Null, Slot::LoadSettings, [](Host& h) { h.brennet.LoadSettings(nullptr); }},
    {"no bool", Rule::Null, Slot::ShowSettingsDialog,
     [](Host& h) { h.brennet.ShowSettingsDialog(nullptr, 1); }},
    {"nothing to fill", Rule::Null, Slot::FillHotkeyBlock,
     [](Host& h) { h.brennet.FillHotkeyBlock(nullptr); }},
    {"nothing to apply", Rule::Null, Slot::ApplyHotkeyBlock,
     [](Host& h) { h.brennet.ApplyHotkeyBlock(nullptr, 1); }},
    {"no text", Rule::Text, Slot::LoadSettings, loadForbiddenText},
    {"text without an end", Rule::Text, Slot::LoadSettings, loadEndlessText},
    {"no folder's text", Rule::Text, Slot::SetDataFolder, setForbiddenFolder},
    {"bool that is no more", Rule::Memory, Slot::ShowSettingsDialog, saveToForbiddenMemory},
    {"size that is no more", Rule::Memory, Slot::FillHotkeyBlock, fillForbiddenMemory},
    {"record too short", Rule::Memory, Slot::ApplyHotkeyBlock, applyShortMemory},
    {"size 0", Rule::SizeNotSet, Slot::FillHotkeyBlock, [](Host& h) { fillSize(h, 0); }},
    {"size 3", Rule::SizeNotSet, Slot::FillHotkeyBlock, [](Host& h) { fillSize(h, 3); }},
    {"wild size", Rule::SizeNotSet, Slot::FillHotkeyBlock,
     [](Host& h) { fillSize(h, 0xCDCDCDCD); }},
    {"size 64 KiB and 1", Rule::SizeNotSet, Slot::FillHotkeyBlock,
     [](Host& h) { fillSize(h, 0x10001); }},
    {"size 64 KiB", Rule::SizeUnknown, Slot::FillHotkeyBlock,
     [](Host& h) { fillSize(h, 0x10000); }},
    {"size 4", Rule::SizeUnknown, Slot::FillHotkeyBlock, [](Host& h) { fillSize(h, 4); }},
    {"size 1806", Rule::SizeUnknown, Slot::FillHotkeyBlock, [](Host& h) { fillSize(h, 1806); }},
    {"size 1808", Rule::SizeUnknown, Slot::FillHotkeyBlock, [](Host& h) { fillSize(h, 1808); }},
    {"reserved byte", Rule::Reserved, Slot::ApplyHotkeyBlock,
     [](Host& h) {
       h.block.reserved69[10] = 1;
       h.brennet.ApplyHotkeyBlock(&h.block, 1);
     }},
    {"other reserved byte", Rule::Reserved, Slot::ApplyHotkeyBlock,
     [](Host& h) {
       h.block.reserved88[0] = 1;
       h.brennet.ApplyHotkeyBlock(&h.block, 1);
     }},
    {"free flag", Rule::Reserved, Slot::ApplyHotkeyBlock,
     [](Host& h) {
       h.block.flags = 1U << 6;
       h.brennet.ApplyHotkeyBlock(&h.block, 1);
     }},
    {"call inside a load", Rule::Reentry, Slot::IsShiftUsed, callInsideLoad},
    {"dialog in a dialog", Rule::DialogOpen, Slot::ShowSettingsDialog,
     [](Host& h) { callInsideDialog(h, [&h] { h.brennet.ShowSettingsDialog(&h.saved, 1); }); }},
    {"record while the dialog is open", Rule::DialogOpen, Slot::ApplyHotkeyBlock,
     [](Host& h) { callInsideDialog(h, [&h] { h.brennet.ApplyHotkeyBlock(&h.block, 1); }); }},
    {"call inside a load while the dialog is open", Rule::Reentry, Slot::IsShiftUsed,
     [](Host& h) { callInsideDialog(h, [&h] { callInsideLoad(h); }); }},
#if defined(__i386__) || defined(__x86_64__)
    {"rounding", Rule::FloatingPoint, Slot::GetLastSaveTime,
     [](Host& h) { callWith(h, kX87 | 0x0800, kSse); }},
    {"single precision", Rule::FloatingPoint, Slot::GetLastSaveTime,
     [](Host& h) { callWith(h, kX87 & ~0x0300, kSse); }},
    {"division by zero", Rule::FloatingPoint, Slot::GetLastSaveTime,
     [](Host& h) { callWith(h, kX87 & ~0x0004, kSse); }},
    {"rounding in SSE", Rule::FloatingPoint, Slot::GetLastSaveTime,
     [](Host& h) { callWith(h, kX87, kSse | 0x4000); }},
    {"division by zero in SSE", Rule::FloatingPoint, Slot::GetLastSaveTime,
     [](Host& h) { callWith(h, kX87, kSse & ~0x0200U); }},
#endif
};
INSTANTIATE_TEST_SUITE_P(All, SessionWithABrokenRule, testing::ValuesIn(kBroken));

std::vector<std::string> rulesOf(const std::vector<std::string>& lines) {
  std::vector<std::string> rules;
  for (const std::string& line : lines) {
    const std::size_t begin = line.find('[') + 1;
    rules.push_back(line.substr(begin, line.find(']') - begin));
  }
  return rules;
}

TEST(Session, KnowsWhatHasToComeBeforeASave) {
  Host host;
  host.brennet.SetEnabled(true, 1);
  host.block.size = sizeof(host.block);
  host.brennet.ApplyHotkeyBlock(&host.block, 1);
  EXPECT_THAT(rulesOf(host.lines), testing::ElementsAre("save-before-load", "save-before-load"));
}

TEST(Session, KnowsWhatHasToComeBeforeTheDialog) {
  Host host;
  host.brennet.ShowSettingsDialog(&host.saved, 1);
  EXPECT_THAT(rulesOf(host.lines),
              testing::ElementsAre("dialog-before-load", "dialog-before-data-folder"));
}

TEST(Session, FindsNothingInAGoodDay) {
  Host host;
  host.brennet.IsCapsLockUsed();
  host.block.size = sizeof(host.block);
  host.brennet.FillHotkeyBlock(&host.block);
  host.startWell();
  host.brennet.SetDataFolder(nullptr);
  callInsideDialog(host, [&host] {
    host.brennet.FillHotkeyBlock(&host.block);
    host.brennet.SetEnabled(true, 2);
    host.brennet.LoadSettings(kPath);
  });
  host.block.flags = 1U << 31 | 1U << 7 | 1U;
  host.block.quickChat[3] = 'x';
  host.brennet.ApplyHotkeyBlock(&host.block, 3);
  EXPECT_THAT(host.lines, testing::IsEmpty());
}

#if defined(__i386__) || defined(__x86_64__)
TEST(Session, AllowsTinyNumbersToCountAsZero) {
  Host host;
  callWith(host, kX87, kSse | 0x8000);
  EXPECT_THAT(host.lines, testing::IsEmpty());
}
#endif

// What the library had put there may stay.
TEST(Session, ComparesReservedBitsWithThoseOfTheLastFill) {
  Host host;
  host.startWell();
  host.block.reserved88[5] = 9;
  host.brennet.FillHotkeyBlock(&host.block);
  host.brennet.ApplyHotkeyBlock(&host.block, 1);
  EXPECT_THAT(host.lines, testing::IsEmpty());
  host.block.reserved88[5] = 0;
  host.brennet.ApplyHotkeyBlock(&host.block, 1);
  EXPECT_THAT(rulesOf(host.lines), testing::ElementsAre("reserved"));
}

// A short record ends before the reserved bytes; what lies behind it is not the host's.
TEST(Session, LooksOnlyAtTheBytesThatThereAre) {
  Host host;
  host.startWell();
  constexpr std::uint32_t kSize = 60;
  const GuardedPages pages(1, Access::None);
  auto* const block = reinterpret_cast<HotkeyBlock*>(pages.boundary() - kSize);
  std::memcpy(static_cast<void*>(block), &kSize, sizeof(kSize));
  host.brennet.FillHotkeyBlock(block);
  host.brennet.ApplyHotkeyBlock(block, 1);
  EXPECT_THAT(rulesOf(host.lines), testing::ElementsAre("size-unknown", "size-unknown"));
}

TEST(Session, PassesEverythingOn) {
  Host host;
  const auto expectCall = [&host](const char* operation, const void* pointer,
                                  std::uint32_t number) {
    EXPECT_EQ(host.library.operation, operation);
    EXPECT_EQ(host.library.pointer, pointer) << operation;
    EXPECT_EQ(host.library.number, number) << operation;
  };
  EXPECT_TRUE(host.brennet.LoadSettings(kPath));
  expectCall("LoadSettings", kPath, 0);
  host.brennet.SetDataFolder(kPath);
  expectCall("SetDataFolder", kPath, 0);
  EXPECT_TRUE(host.brennet.ShowSettingsDialog(&host.saved, 12));
  expectCall("ShowSettingsDialog", &host.saved, 12);
  host.block.size = sizeof(host.block);
  EXPECT_TRUE(host.brennet.FillHotkeyBlock(&host.block));
  expectCall("FillHotkeyBlock", &host.block, 0);
  EXPECT_EQ(host.brennet.GetDisableLWinFlag(), 4);
  EXPECT_EQ(host.brennet.GetLastSaveTime(), 0x55555555U);
  EXPECT_TRUE(host.brennet.SetEnabled(true, 16));
  expectCall("SetEnabled", &host.library, 16);
  EXPECT_TRUE(host.brennet.SetEnabled(false, 17));
  expectCall("SetEnabled", nullptr, 17);
  EXPECT_EQ(host.brennet.GetViewNoDragFlag(), 7);
  EXPECT_TRUE(host.brennet.IsCapsLockUsed());
  EXPECT_FALSE(host.brennet.IsShiftUsed());
  EXPECT_EQ(host.brennet.ApplyHotkeyBlock(&host.block, 20), -1);
  expectCall("ApplyHotkeyBlock", &host.block, 20);
  EXPECT_EQ(host.brennet.GetStartJSQFlag(), 11);
}

TEST(Session, EndsWithASummary) {
  FakeBrennet library;
  std::vector<std::string> lines;
  {
    CheckedLibrary checked(
        library, [&](const std::string& line) { lines.push_back(line); }, false);
    for (int i = 0; i < 3; ++i) checked.object().IsShiftUsed();
    checked.object().LoadSettings(kPath);
  }
  ASSERT_EQ(lines.size(), 3U) << testing::PrintToString(lines);
  EXPECT_EQ(lines[0], "summary: 0 findings");
  EXPECT_THAT(lines[1], testing::StartsWith("  LoadSettings        calls        1, all "));
  EXPECT_THAT(lines[2], testing::StartsWith("  IsShiftUsed         calls        3, all "));
}

TEST(SessionDeathTest, StopsAtTheFirstFinding) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  EXPECT_DEATH(
      {
        Host host(true);
        host.brennet.LoadSettings(nullptr);
      },
      "");
  Host host(true);
  host.startWell();
}

}  // namespace
}  // namespace brennet::check
