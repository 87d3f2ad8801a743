// How the import is asked for: this test takes the shell's place and starts nothing.

#include <windows.h>
// shellapi.h needs windows.h first.
#include <shellapi.h>

#include <string>
#include <vector>

#include "gameside/dota7/RegistryImport.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/support/StandBefore_win.h"

namespace {

struct Call {
  HWND owner;
  std::wstring verb, program, parameters, directory;
  int show;
};
std::vector<Call> calls;
std::intptr_t answer = 0;

HINSTANCE WINAPI execute(HWND owner, LPCWSTR verb, LPCWSTR program, LPCWSTR parameters,
                         LPCWSTR directory, INT show) {
  calls.push_back({owner, verb, program, parameters, directory, show});
  return reinterpret_cast<HINSTANCE>(answer);
}

}  // namespace

STAND_BEFORE(ShellExecuteW, "ShellExecuteW@24", execute);

namespace brennet {
namespace {

class RegistryImportCall : public testing::Test {
 protected:
  RegistryImportCall() {
    calls.clear();
    std::filesystem::create_directory(folder_);
    test::writeBytes(folder_ / "Tollamere.reg", "REGEDIT4\r\n");
  }

  test::ScopedRegistry registry_;
  test::TempFolder parent_;
  std::filesystem::path folder_ = parent_ / test::utf8(u8"\u9B54\u517D \u6539\u952E");
};

TEST_F(RegistryImportCall, StartsTheEditorInTheFolderOfTheFile) {
  answer = 33;
  const std::filesystem::path directory = folder_ / "";
  EXPECT_TRUE(importDefaultRegistry(directory.u16string()));
  ASSERT_EQ(calls.size(), 1U);
  const Call& call = calls.front();
  EXPECT_EQ(call.owner, nullptr);
  EXPECT_EQ(call.verb, L"open");
  EXPECT_EQ(call.program, L"regedit.exe");
  EXPECT_EQ(call.parameters, L"/s Tollamere.reg");
  EXPECT_EQ(call.directory, directory.wstring());
  EXPECT_EQ(call.show, SW_HIDE);
}

TEST_F(RegistryImportCall, StartsTheEditorThereAlsoWhereTheFolderEndsInNoSeparator) {
  answer = 33;
  EXPECT_TRUE(importDefaultRegistry(folder_.u16string()));
  EXPECT_FALSE(importDefaultRegistry((folder_ / "missing").u16string()));
  EXPECT_FALSE(importDefaultRegistry(u""));
  ASSERT_EQ(calls.size(), 1U);
  EXPECT_EQ(calls.front().parameters, L"/s Tollamere.reg");
  EXPECT_EQ(calls.front().directory, (folder_ / "").wstring());
}

// If the shell has started the program, it answers with a number above 32.
TEST_F(RegistryImportCall, TellsWhetherTheEditorWasStarted) {
  for (const std::intptr_t number : {0, 2, 32, 33, 42}) {
    answer = number;
    EXPECT_EQ(importDefaultRegistry((folder_ / "").u16string()), number > 32) << number;
  }
  EXPECT_EQ(calls.size(), 5U);
}

}  // namespace
}  // namespace brennet
