#include "platform/Files.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "platform/FileSystem.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

TEST(FilesReadFile, GivesTheBytesAsTheyAre) {
  const TempFolder folder;
  const std::string bytes("a\r\n\0\x1A\xFFz", 7);
  writeBytes(folder / "f", bytes);
  std::string read = "old";
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
  EXPECT_EQ(read, bytes);
}

TEST(FilesReadFile, GivesNothingForAnEmptyFile) {
  const TempFolder folder;
  writeBytes(folder / "f", "");
  std::string read = "old";
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
  EXPECT_EQ(read, "");
}

TEST(FilesReadFile, RefusesWhatIsNoFile) {
  const TempFolder folder;
  for (const Path& path : {folder / "missing", folder / "missing/f", folder.path(), Path()}) {
    std::string read = "old";
    EXPECT_TRUE(readFile(path, read, kAnySize)) << path;
    EXPECT_EQ(read, "") << path;
  }
}

TEST(FilesReplaceFile, CreatesAMissingFile) {
  const TempFolder folder;
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReplaceFile, RefusesAFolderAMissingFolderAndNoName) {
  const TempFolder folder;
  for (const Path& path : {folder.path(), folder / "missing/f", Path()}) {
    EXPECT_TRUE(replaceFile(path, "new")) << path;
  }
  EXPECT_EQ(folder.listing(), "");
}

TEST(FilesReplaceFile, ReplacesTheContent) {
  const TempFolder folder;
  for (const char* const bytes : {"old", "a much longer content", "", "new"}) {
    EXPECT_FALSE(replaceFile(folder / "f", bytes));
    EXPECT_EQ(readBytes(folder / "f"), bytes);
    EXPECT_EQ(folder.listing(), "f\n");
  }
}

constexpr auto kHour = std::chrono::hours(1);

void makeOld(const Path& path, std::chrono::seconds age = 2 * kHour) {
  const auto before = std::filesystem::file_time_type::clock::now() - age;
  std::error_code unused;  // not every system sets the time of a folder
  std::filesystem::last_write_time(path, before, unused);
}

void writeOldBytes(const Path& path) {
  writeBytes(path, "half");
  makeOld(path);
}

// What is left by processes that were ended while they wrote.
TEST(FilesReplaceFile, RemovesOldTemporaryFilesOfItsOwn) {
  const TempFolder folder;
  for (const char* const name : {"f.brennet-1-0.tmp", "f.brennet-4294967295-99.tmp"})
    writeOldBytes(folder / name);
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReplaceFile, RemovesThemFromTheWorkingFolderToo) {
  const TempFolder folder;
  const Path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.path());
  writeOldBytes("f.brennet-1-0.tmp");
  EXPECT_FALSE(replaceFile("f", "new"));
  std::filesystem::current_path(before);
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReplaceFile, LeavesTemporaryFilesAloneThatMayBeInUse) {
  const TempFolder folder;
  const std::string name = "f.brennet-" + std::to_string(fileSystem().process()) + "-0.tmp";
  writeBytes(folder / name, "somebody is writing this");
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(folder.listing(), "f\n" + name + "\n");
}

TEST(FilesReplaceFile, RemovesTemporaryFilesThatAreAnHourOld) {
  struct Row {
    std::chrono::seconds age;
    bool goes;
  };
  // The second row leaves the test half a minute.
  const Row kRows[] = {{kHour, true}, {kHour - std::chrono::seconds(30), false}};
  for (const Row& row : kRows) {
    const TempFolder folder;
    const std::string name = "f.brennet-" + std::to_string(fileSystem().process()) + "-0.tmp";
    writeBytes(folder / name, "half");
    makeOld(folder / name, row.age);
    EXPECT_FALSE(replaceFile(folder / "f", "new"));
    EXPECT_EQ(folder.listing(), row.goes ? "f\n" : "f\n" + name + "\n") << row.age.count();
  }
}

// The process has ended, so the file need not become old first.
TEST(FilesReplaceFile, RemovesTemporaryFilesOfProcessesThatAreNone) {
  const TempFolder folder;
  writeBytes(folder / "f.brennet-4294967290-0.tmp", "half");
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReplaceFile, LeavesFilesAloneThatAreNotItsOwn) {
  const TempFolder folder;
  for (const char* const name :
       {".brennet-1-0.tmp", "f-brennet-1-0.tmp", "f.1-0.tmp", "f.brennet--0.tmp",
        "f.brennet-1-.tmp", "f.brennet-1-0.bak", "f.brennet-1-0.tmp.bak", "f.brennet-1-0x.tmp",
        "f.tmp", "ff.brennet-1-0.tmp", "g.brennet-1-0.tmp"}) {
    writeOldBytes(folder / name);
  }
  writeBytes(folder / "f", "old");
  const std::string before = folder.listing();
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(folder.listing(), before);
}

TEST(FilesReplaceFile, LeavesTheFilesOfAFolderAloneThatIsNoFile) {
  const TempFolder folder;
  writeOldBytes(folder / ".brennet-1-0.tmp");
  EXPECT_TRUE(replaceFile(folder.path() / "", "new"));
  EXPECT_EQ(folder.listing(), ".brennet-1-0.tmp\n");
}

TEST(FilesReplaceFile, LeavesAFolderAloneThatHasTheNameOfATemporaryFile) {
  const TempFolder folder;
  EXPECT_TRUE(createFolder(folder / "f.brennet-1-0.tmp"));
  makeOld(folder / "f.brennet-1-0.tmp");
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(folder.listing(), "f\nf.brennet-1-0.tmp\n");
}

TEST(Folders, AreCreatedOneLevelAtATime) {
  const TempFolder folder;
  EXPECT_FALSE(folderExists(folder / "a"));
  EXPECT_FALSE(createFolder(folder / "a/b"));
  EXPECT_TRUE(createFolder(folder / "a"));
  EXPECT_TRUE(folderExists(folder / "a"));
  EXPECT_FALSE(createFolder(folder / "a"));
  writeBytes(folder / "f", "");
  EXPECT_FALSE(folderExists(folder / "f"));
}

TEST(FilesPathExists, ForFilesAndFolders) {
  const TempFolder folder;
  EXPECT_FALSE(pathExists(folder / "f"));
  EXPECT_FALSE(pathExists(Path()));
  EXPECT_TRUE(pathExists(folder.path()));
  writeBytes(folder / "f", "");
  EXPECT_TRUE(pathExists(folder / "f"));
}

// Both contents would be in memory, in more than one copy.
TEST(FilesIsFileLarger, ThanSoManyBytes) {
  const TempFolder folder;
  writeBytes(folder / "f", "12345");
  EXPECT_TRUE(isFileLarger(folder / "f", 0));
  EXPECT_TRUE(isFileLarger(folder / "f", 4));
  EXPECT_FALSE(isFileLarger(folder / "f", 5));
  EXPECT_FALSE(isFileLarger(folder / "f", 6));
  EXPECT_FALSE(isFileLarger(folder / "missing", 0));
  EXPECT_FALSE(isFileLarger(folder.path(), 0));
}

TEST(FilesReplaceFile, DoesNotWriteLargeFilesInPlace) {
  constexpr std::uint64_t kLimit = 64U << 20U;  // bytes
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  std::filesystem::create_hard_link(folder / "f", folder / "second");
  const std::string large(kLimit + 1, 'n');
  EXPECT_TRUE(isTooLarge(replaceFile(folder / "f", large)));
  EXPECT_EQ(readBytes(folder / "f"), "old");
  std::filesystem::resize_file(folder / "f", kLimit + 1);
  for (const OldContent old : {OldContent::Drop, OldContent::Keep}) {
    EXPECT_TRUE(isTooLarge(replaceFile(folder / "f", "new", old)));
    EXPECT_EQ(std::filesystem::file_size(folder / "second"), kLimit + 1);
    EXPECT_EQ(folder.listing(), "f\nsecond\n");
  }
  std::filesystem::resize_file(folder / "f", kLimit);
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "second"), "new");
}

}  // namespace
}  // namespace brennet::platform
