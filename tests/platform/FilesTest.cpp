#include "platform/Files.h"

#include <gtest/gtest.h>

#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

TEST(ReadFile, GivesTheBytesAsTheyAre) {
  const TempFolder folder;
  const std::string bytes("a\r\n\0\x1A\xFFz", 7);
  writeBytes(folder / "f", bytes);
  std::string read = "old";
  EXPECT_FALSE(readFile(folder / "f", read));
  EXPECT_EQ(read, bytes);
}

TEST(ReadFile, GivesNothingForAnEmptyFile) {
  const TempFolder folder;
  writeBytes(folder / "f", "");
  std::string read = "old";
  EXPECT_FALSE(readFile(folder / "f", read));
  EXPECT_EQ(read, "");
}

TEST(ReadFile, RefusesWhatIsNoFile) {
  const TempFolder folder;
  for (const Path& path : {folder / "missing", folder / "missing/f", folder.path(), Path()}) {
    std::string read = "old";
    EXPECT_TRUE(readFile(path, read)) << path;
    EXPECT_EQ(read, "") << path;
  }
}

TEST(ReplaceFile, CreatesAMissingFile) {
  const TempFolder folder;
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(ReplaceFile, RefusesAFolderAMissingFolderAndNoName) {
  const TempFolder folder;
  for (const Path& path : {folder.path(), folder / "missing/f", Path()}) {
    EXPECT_TRUE(replaceFile(path, "new")) << path;
  }
  EXPECT_EQ(folder.listing(), "");
}

TEST(ReplaceFile, ReplacesTheContent) {
  const TempFolder folder;
  for (const char* const bytes : {"old", "a much longer content", "", "new"}) {
    EXPECT_FALSE(replaceFile(folder / "f", bytes));
    EXPECT_EQ(readBytes(folder / "f"), bytes);
    EXPECT_EQ(folder.listing(), "f\n");
  }
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

TEST(PathExists, ForFilesAndFolders) {
  const TempFolder folder;
  EXPECT_FALSE(pathExists(folder / "f"));
  EXPECT_FALSE(pathExists(Path()));
  EXPECT_TRUE(pathExists(folder.path()));
  writeBytes(folder / "f", "");
  EXPECT_TRUE(pathExists(folder / "f"));
}

}  // namespace
}  // namespace brennet::platform
