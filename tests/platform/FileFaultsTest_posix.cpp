// What others do between two calls of ours, and what a file system cannot do.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <functional>
#include <utility>

#include "platform/FileSystem.h"
#include "platform/Files.h"
#include "tests/platform/FileFaultsFixture.h"
#include "tests/platform/FileFaults_posix.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::writeBytes;

using FileFaultsMovedFile = test::FileFaultsFixture;

class FileFaultsFileToBeKept : public test::FileFaultsFixture {
 protected:
  // Opens the file; `happens` is called between the opening and the look at what was opened.
  Obstacle opened(std::function<void()> happens) {
    test::beforeStatus = std::move(happens);
    FileHandle file = kNoFile;
    FileFacts facts;
    const FileError error = operatingSystem().open(path(), OpenFor::Keeping, file, facts);
    if (!error) static_cast<void>(operatingSystem().close(file));
    return error.obstacle;
  }
};

// A process that keeps a file removes it before it releases it; what others have opened by then is
// no longer the file of that name.
TEST_F(FileFaultsFileToBeKept, IsTheOneUnderItsName) {
  EXPECT_EQ(opened([] {}), Obstacle::None);
  EXPECT_EQ(opened([&] { std::filesystem::remove(path()); }), Obstacle::Held);
  EXPECT_EQ(opened([&] {
              writeBytes(folder_ / "another", "");
              std::filesystem::rename(folder_ / "another", path());
            }),
            Obstacle::Held);
  EXPECT_EQ(opened([] {}), Obstacle::None);
}

// Whichever way of moving the file system offers.
TEST_F(FileFaultsMovedFile, TakesAFreeNameOnly) {
  const Path other = folder_ / "other";
  for (const test::Lacking& lacks :
       {test::Lacking{}, test::Lacking{true, false, false}, test::Lacking{true, true, false}}) {
    test::lacking = lacks;
    writeBytes(path(), "new");
    writeBytes(other, "old");
    const Obstacle taken = operatingSystem().move(path(), other).obstacle;
    const std::string before = readBytes(other);
    std::filesystem::remove(other);
    const FileError error = operatingSystem().move(path(), other);
    const Obstacle missing = operatingSystem().move(path(), folder_ / "third").obstacle;
    test::lacking = test::Lacking();
    EXPECT_EQ(taken, Obstacle::Exists) << lacks.links;
    EXPECT_EQ(before, "old") << lacks.links;
    EXPECT_FALSE(error) << lacks.links;
    EXPECT_EQ(missing, Obstacle::Missing) << lacks.links;
    EXPECT_EQ(folder_.listing(), "other\n") << lacks.links;
    EXPECT_EQ(readBytes(other), "new") << lacks.links;
  }
}

TEST_F(FileFaultsMovedFile, HasItsOldNameAfterHalfAMove) {
  writeBytes(path(), "new");
  test::lacking = {true, false, true};
  const FileError error = operatingSystem().move(path(), folder_ / "other");
  test::lacking = test::Lacking();
  EXPECT_TRUE(error);
  EXPECT_EQ(folder_.listing(), "f\n");
}

using FileFaultsMode = test::FileFaultsFixture;

// If there may be a list that could not be read, the file stays private to its owner.
TEST_F(FileFaultsMode, IsKeptWhereNoFileHasAnAccessList) {
  struct Row {
    int error;
    mode_t mode;
  };
  constexpr Row kRows[] = {{0, 0640}, {EOPNOTSUPP, 0640}, {ENODATA, 0640}, {EIO, 0600}};
  for (const Row& row : kRows) {
    writeBytes(path(), "old");
    ASSERT_EQ(chmod(path().c_str(), 0640), 0);
    test::attributeError = row.error;
    const std::error_code error = replaceFile(path(), "new");
    test::attributeError = 0;
    EXPECT_FALSE(error) << row.error;
    EXPECT_EQ(readBytes(path()), "new") << row.error;
    struct stat status {};
    ASSERT_EQ(lstat(path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, row.mode) << row.error;
  }
}

}  // namespace
}  // namespace brennet::platform
