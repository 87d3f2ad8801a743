// Permissions, symbolic links and special files.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Files.h"
#include "tests/support/OrdinaryUser_posix.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::OrdinaryUser;
using test::readBytes;
using test::TempFolder;
using test::writeBytes;

TEST(FilesReadFile, RefusesAPipe) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo((folder / "fifo").c_str(), 0600), 0);
  std::string read = "old";
  EXPECT_TRUE(readFile(folder / "fifo", read, kAnySize));
  EXPECT_EQ(read, "");
}

TEST(FilesReplaceFile, KeepsThePermissions) {
  const TempFolder folder;
  writeBytes(folder / "f", "a much longer old content");
  ASSERT_EQ(chmod((folder / "f").c_str(), 0640), 0);
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
  struct stat status {};
  ASSERT_EQ(stat((folder / "f").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReplaceFile, KeepsASymbolicLinkAndReplacesWhatItNames) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  ASSERT_EQ(symlink((folder / "f").c_str(), (folder / "link").c_str()), 0);
  EXPECT_FALSE(replaceFile(folder / "link", "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
}

TEST(FilesReplaceFile, WritesThroughALinkToAFileThatIsNotThereYet) {
  const TempFolder folder;
  ASSERT_EQ(symlink((folder / "f").c_str(), (folder / "link").c_str()), 0);
  EXPECT_FALSE(replaceFile(folder / "link", "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
}

// Nobody could put its content back if the write were cut short.
TEST(FilesReplaceFile, LeavesAFileAloneThatCannotBeReadInAFolderThatTakesNoNewFile) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  ASSERT_EQ(chmod((folder / "f").c_str(), 0222), 0);
  {
    const OrdinaryUser user(folder.path());
    ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
    EXPECT_TRUE(replaceFile(folder / "f", "new"));
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
  }
  ASSERT_EQ(chmod((folder / "f").c_str(), 0644), 0);
  EXPECT_EQ(readBytes(folder / "f"), "old");
}

TEST(FilesReplaceFile, LeavesAFileAloneThatCannotBeOpenedForWriting) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  ASSERT_EQ(chmod((folder / "f").c_str(), 0444), 0);
  const OrdinaryUser user(folder.path());
  EXPECT_TRUE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "f"), "old");
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReplaceFile, WritesInPlaceWhereTheFolderTakesNoNewFile) {
  const TempFolder folder;
  writeBytes(folder / "f", "a longer old content");
  ASSERT_EQ(chmod((folder / "f").c_str(), 0666), 0);
  const OrdinaryUser user(folder.path());
  ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
  EXPECT_TRUE(replaceFile(folder / "other", "new"));
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReplaceFile, WritesInPlaceWhereTheTemporaryNameWouldBeTooLong) {
  const TempFolder folder;
  const std::string name(250, 'n');
  EXPECT_FALSE(replaceFile(folder / name, "new"));
  EXPECT_EQ(readBytes(folder / name), "new");
}

}  // namespace
}  // namespace brennet::platform
