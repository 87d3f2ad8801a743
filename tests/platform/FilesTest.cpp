#include "platform/Files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

// Root may write everywhere; some refusals only show to an ordinary user.
class ScopedOrdinaryUser {
 public:
  explicit ScopedOrdinaryUser(const TempFolder& folder) {
    if (geteuid() != 0) return;
    constexpr uid_t kNobody = 65534;
    EXPECT_EQ(chown(folder.path().c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(seteuid(kNobody), 0);
  }
  ~ScopedOrdinaryUser() {
    if (getuid() == 0) {
      EXPECT_EQ(seteuid(0), 0);
    }
  }
  ScopedOrdinaryUser(const ScopedOrdinaryUser&) = delete;
  ScopedOrdinaryUser& operator=(const ScopedOrdinaryUser&) = delete;
};

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
  ASSERT_EQ(mkfifo((folder / "fifo").c_str(), 0600), 0);
  for (const Path& path : {folder / "missing", folder.path(), folder / "fifo", Path()}) {
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

TEST(ReplaceFile, ReplacesTheContentAndKeepsThePermissions) {
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

TEST(ReplaceFile, KeepsASymbolicLinkAndReplacesWhatItNames) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  ASSERT_EQ(symlink((folder / "f").c_str(), (folder / "link").c_str()), 0);
  EXPECT_FALSE(replaceFile(folder / "link", "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
}

TEST(ReplaceFile, WritesThroughALinkToAFileThatIsNotThereYet) {
  const TempFolder folder;
  ASSERT_EQ(symlink((folder / "f").c_str(), (folder / "link").c_str()), 0);
  EXPECT_FALSE(replaceFile(folder / "link", "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
}

TEST(ReplaceFile, WritesAFileThatCannotBeReadInAFolderThatTakesNoNewFile) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  ASSERT_EQ(chmod((folder / "f").c_str(), 0222), 0);
  {
    const ScopedOrdinaryUser user(folder);
    ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
    EXPECT_FALSE(replaceFile(folder / "f", "new"));
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
  }
  ASSERT_EQ(chmod((folder / "f").c_str(), 0644), 0);
  EXPECT_EQ(readBytes(folder / "f"), "new");
}

TEST(ReplaceFile, RefusesAFolderAMissingFolderAndNoName) {
  const TempFolder folder;
  for (const Path& path : {folder.path(), folder / "missing/f", Path()}) {
    EXPECT_TRUE(replaceFile(path, "new")) << path;
  }
  EXPECT_EQ(folder.listing(), "");
}

TEST(ReplaceFile, LeavesAFileAloneThatCannotBeOpenedForWriting) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  ASSERT_EQ(chmod((folder / "f").c_str(), 0444), 0);
  const ScopedOrdinaryUser user(folder);
  EXPECT_TRUE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "f"), "old");
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(ReplaceFile, WritesInPlaceWhereTheFolderTakesNoNewFile) {
  const TempFolder folder;
  writeBytes(folder / "f", "a longer old content");
  ASSERT_EQ(chmod((folder / "f").c_str(), 0666), 0);
  const ScopedOrdinaryUser user(folder);
  ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
  EXPECT_TRUE(replaceFile(folder / "other", "new"));
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(ReplaceFile, WritesInPlaceWhereTheTemporaryNameWouldBeTooLong) {
  const TempFolder folder;
  const std::string name(250, 'n');
  EXPECT_FALSE(replaceFile(folder / name, "new"));
  EXPECT_EQ(readBytes(folder / name), "new");
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

}  // namespace
}  // namespace brennet::platform
