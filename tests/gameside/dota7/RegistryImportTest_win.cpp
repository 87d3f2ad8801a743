// The import by the registry editor itself: which processes it starts, and what is imported.

#include <windows.h>

#include <stdexcept>

#include "gameside/dota7/RegistryImport.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/support/TestData.h"

namespace brennet {
namespace {

using platform::RegFile;
using test::below;
using test::readBytes;
using test::ScopedRegistry;
using test::TempFolder;
using test::utf8;
using test::writeBytes;

const std::string kSample = test::sampleData("Tollamere.reg");

// Has the system count all processes that this one starts from now on.
class StartedProcesses {
 public:
  StartedProcesses() : job_(CreateJobObjectW(nullptr, nullptr)) {
    if (AssignProcessToJobObject(job_, GetCurrentProcess()) == FALSE) {
      throw std::runtime_error("the processes cannot be counted");
    }
    before_ = counts().TotalProcesses;
  }
  ~StartedProcesses() { CloseHandle(job_); }
  StartedProcesses(const StartedProcesses&) = delete;
  StartedProcesses& operator=(const StartedProcesses&) = delete;

  // How many were started, including those that have ended.
  [[nodiscard]] DWORD number() const { return counts().TotalProcesses - before_; }

  // Waits until only this process is left; false if that takes too long.
  [[nodiscard]] bool waitForThem() const {
    constexpr int kTries = 600;
    for (int i = 0; i < kTries && counts().ActiveProcesses > 1; ++i) Sleep(50);
    return counts().ActiveProcesses == 1;
  }

 private:
  [[nodiscard]] JOBOBJECT_BASIC_ACCOUNTING_INFORMATION counts() const {
    JOBOBJECT_BASIC_ACCOUNTING_INFORMATION counts = {};
    if (QueryInformationJobObject(job_, JobObjectBasicAccountingInformation, &counts,
                                  sizeof(counts), nullptr) == FALSE) {
      throw std::runtime_error("the processes cannot be counted");
    }
    return counts;
  }

  HANDLE job_;
  DWORD before_ = 0;
};

std::u16string withSeparator(const std::filesystem::path& folder) {
  return (folder / "").u16string();
}

class RegistryImportByRegedit : public testing::TestWithParam<const char8_t*> {
 protected:
  RegistryImportByRegedit() : folder_(parent_.path() / GetParam()) {
    std::filesystem::create_directory(folder_);
  }

  TempFolder parent_;
  std::filesystem::path folder_;
  ScopedRegistry registry_;
};

TEST_P(RegistryImportByRegedit, GivesTheRegistryTheSampleOnce) {
  writeBytes(folder_ / "Tollamere.reg", readBytes(kSample));
  const StartedProcesses processes;
  EXPECT_TRUE(importDefaultRegistry(withSeparator(folder_)));
  ASSERT_TRUE(processes.waitForThem());
  EXPECT_EQ(processes.number(), 1U);
  RegFile expected;
  EXPECT_TRUE(expected.merge(readBytes(kSample)));
  EXPECT_EQ(registry_.content(), expected) << "what regedit reads there is what we read";

  Dota7KeyInfoManager manager;
  manager.settings().load();
  EXPECT_EQ(manager.settings().keyText(*findDota7KeyField(u"edtHACSkill_3")), u"ALT + Q");

  EXPECT_TRUE(importDefaultRegistry(withSeparator(folder_)));
  EXPECT_EQ(processes.number(), 1U) << "the key is there now";
}

TEST_P(RegistryImportByRegedit, TakesAFolderWithoutASeparatorAtItsEnd) {
  writeBytes(folder_ / "Tollamere.reg", readBytes(kSample));
  const StartedProcesses processes;
  EXPECT_TRUE(importDefaultRegistry(folder_.u16string()));
  ASSERT_TRUE(processes.waitForThem());
  RegFile expected;
  EXPECT_TRUE(expected.merge(readBytes(kSample)));
  EXPECT_EQ(registry_.content(), expected);
}

TEST_P(RegistryImportByRegedit, StartsNothingWhereTheKeyIsThere) {
  registry_.createKey(kDota7Path);
  writeBytes(folder_ / "Tollamere.reg", readBytes(kSample));
  const RegFile before = registry_.content();
  const StartedProcesses processes;
  EXPECT_TRUE(importDefaultRegistry(withSeparator(folder_)));
  EXPECT_EQ(processes.number(), 0U);
  EXPECT_EQ(registry_.content(), before);
}

TEST_P(RegistryImportByRegedit, StartsNothingWhereThereIsNoFile) {
  const StartedProcesses processes;
  EXPECT_FALSE(importDefaultRegistry(withSeparator(folder_)));
  EXPECT_FALSE(importDefaultRegistry(withSeparator(folder_ / "missing")));
  EXPECT_EQ(processes.number(), 0U);
}

TEST_P(RegistryImportByRegedit, LeavesTheRegistryAloneWhereTheFileIsDamaged) {
  const RegFile before = registry_.content();
  for (const std::string& bytes : {std::string(), std::string("REGEDIT"),
                                   readBytes(kSample).substr(2), std::string(10 << 20, '\0')}) {
    writeBytes(folder_ / "Tollamere.reg", bytes);
    const StartedProcesses processes;
    EXPECT_TRUE(importDefaultRegistry(withSeparator(folder_))) << "it was started";
    ASSERT_TRUE(processes.waitForThem());
    EXPECT_EQ(processes.number(), 1U);
    EXPECT_EQ(registry_.content(), before);
    Dota7KeyInfoManager manager;
    manager.settings().load();
    EXPECT_EQ(manager.settings().key(dota7KeyFields().front()), Dota7Key());
  }
}

INSTANTIATE_TEST_SUITE_P(Folders, RegistryImportByRegedit,
                         testing::Values(u8"plain", u8"two words", u8"\u9B54\u517D \u6539\u952E"));

TEST(RegistryImportByRegeditAlone, IsTriedWhereTheKeyMayNotBeChanged) {
  const TempFolder folder;
  writeBytes(folder / "Tollamere.reg", readBytes(kSample));
  ScopedRegistry registry;
  registry.createKey(kDota7Path);
  registry.denyWriting(kDota7Path);
  const StartedProcesses processes;
  EXPECT_TRUE(importDefaultRegistry(withSeparator(folder.path())));
  ASSERT_TRUE(processes.waitForThem());
  EXPECT_EQ(processes.number(), 1U);
}

}  // namespace
}  // namespace brennet
