// Runs in processes that are killed, on the system's own registry.

#include <windows.h>
// windows.h comes first.
#include <string>

#include "tests/gameside/Dota7Test.h"

namespace brennet::test {
namespace {

constexpr wchar_t kVariable[] = L"BRENNET_TEST_STEPS";
constexpr unsigned kKilled = 9;
constexpr int kSteps = 5;

// The first so many things that a player does; the last is to confirm all.
void play(Dota7KeyInfoManager& manager, int steps) {
  Dota7Settings& settings = manager.settings();
  manager.beginRun();
  settings.load();
  const Dota7KeyField& stop = *findDota7KeyField(u"edt_HStopKey");
  if (steps > 0) static_cast<void>(settings.storeKey(stop, key('T')));
  if (steps > 1) settings.setOn(*findDota7Switch(u"chk_SLegacyKeys"), true);
  if (steps > 2) static_cast<void>(settings.storeKey(stop, key('U', Dota7Key::kAlt)));
  if (steps > 3) settings.setPhrase(*findDota7Phrase(u"edt_SOnStartString0"), u"new");
  if (steps > 4) manager.acceptChanges();
}

// A part of the next test, in a process of its own.
TEST(Dota7KilledProcess, DISABLED_Plays) {
  wchar_t steps[8] = {};
  ASSERT_EQ(GetEnvironmentVariableW(kVariable, steps, 8), 1U);
  Dota7KeyInfoManager manager;
  play(manager, steps[0] - L'0');
  TerminateProcess(GetCurrentProcess(), kKilled);
}

// Runs the program itself for that test. Gives its exit code.
DWORD playInAnotherProcess(int steps) {
  const wchar_t digit[] = {static_cast<wchar_t>(L'0' + steps), L'\0'};
  SetEnvironmentVariableW(kVariable, digit);
  wchar_t program[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  std::wstring command = L"\"" + std::wstring(program) +
                         L"\" --gtest_also_run_disabled_tests "
                         L"--gtest_filter=Dota7KilledProcess.DISABLED_Plays";
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION process{};
  if (CreateProcessW(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                     &process) == FALSE) {
    return 0;
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return code;
}

using Dota7Killed = Dota7Test;

TEST_F(Dota7Killed, LeavesTheOldOrTheConfirmedValuesToTheNextRun) {
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
  registry.set(kDota7PhrasesPath, u"SOnStartString0", bytesValue("go"));
  const platform::RegFile before = registry.content();
  for (int steps = 0; steps <= kSteps; ++steps) {
    ASSERT_EQ(playInAnotherProcess(steps), kKilled);
    const platform::RegFile left = registry.content();
    EXPECT_EQ(left == before, steps == 0) << steps;
    manager.beginRun();
    EXPECT_EQ(registry.content(), steps == kSteps ? left : before) << steps;
  }
}

}  // namespace
}  // namespace brennet::test
