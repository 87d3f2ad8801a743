// Torn files on the real file system, and the links, rights and owners that putting them right
// depends on.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <utility>

#include "platform/FileSystem.h"
#include "platform/Files.h"
#include "platform/InPlaceWrite.h"
#include "platform/KeptWrite.h"
#include "platform/OpenFile.h"
#include "tests/support/PassingFileSystem.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

mode_t modeOf(const Path& path) {
  struct stat status {};
  EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
  return status.st_mode & 07777U;
}

TEST(TornFilesOfTheSystem, MakesWhatIsPrivateForTheOwnerAlone) {
  const TempFolder folder;
  const mode_t before = umask(0);
  OpenFile fresh(operatingSystem());
  OpenFile kept(operatingSystem());
  EXPECT_FALSE(fresh.open(folder / "new", OpenFor::NewAndPrivate));
  EXPECT_FALSE(kept.open(folder / "kept", OpenFor::Keeping));
  EXPECT_FALSE(operatingSystem().createPrivateFolder(folder / "own"));
  umask(before);
  EXPECT_EQ(modeOf(folder / "new"), 0600U);
  EXPECT_EQ(modeOf(folder / "kept"), 0600U);
  EXPECT_EQ(modeOf(folder / "own"), 0700U);
}

TEST(TornFilesOfTheSystem, TakesNoFolderForPrivateThatOthersMayEnter) {
  const TempFolder folder;
  FileSystem& system = operatingSystem();
  for (const mode_t mode : {0755U, 0770U, 0701U}) {
    const Path path = folder / std::to_string(mode);
    ASSERT_EQ(mkdir(path.c_str(), 0700), 0);
    ASSERT_EQ(chmod(path.c_str(), mode), 0);
    EXPECT_EQ(system.createPrivateFolder(path).obstacle, Obstacle::Denied) << std::oct << mode;
  }
  ASSERT_EQ(mkdir((folder / "own").c_str(), 0700), 0);
  ASSERT_EQ(symlink((folder / "own").c_str(), (folder / "link").c_str()), 0);
  EXPECT_EQ(system.createPrivateFolder(folder / "link").obstacle, Obstacle::Denied);
  if (geteuid() != 0) return;
  ASSERT_EQ(chown((folder / "own").c_str(), 4242, 4242), 0);
  EXPECT_EQ(system.createPrivateFolder(folder / "own").obstacle, Obstacle::Denied);
}

TEST(TornFilesOfTheSystem, FollowsLinksToTheEnd) {
  const TempFolder folder;
  ASSERT_EQ(symlink("second", (folder / "first").c_str()), 0);
  ASSERT_EQ(symlink("third", (folder / "second").c_str()), 0);
  ASSERT_EQ(symlink("round", (folder / "round").c_str()), 0);
  FileSystem& system = operatingSystem();
  EXPECT_EQ(system.resolved(folder / "first").lexically_normal(), folder / "third");
  EXPECT_EQ(system.resolved(folder / "third"), folder / "third");
  EXPECT_EQ(system.resolved(folder / "round"), folder / "round");
}

// Gives the test a folder of its own for temporary files.
class ScopedTemporaries {
 public:
  ScopedTemporaries() : before_(std::filesystem::temp_directory_path()) {
    setenv("TMPDIR", folder_.path().c_str(), 1);
  }
  ~ScopedTemporaries() { setenv("TMPDIR", before_.c_str(), 1); }
  ScopedTemporaries(const ScopedTemporaries&) = delete;
  ScopedTemporaries& operator=(const ScopedTemporaries&) = delete;

 private:
  Path before_;
  TempFolder folder_;
};

// Keeps an unfinished write as a process leaves it that ends, and tears the file.
void tear(const Path& path, const char* torn) {
  Patience patience;
  KeptWrite kept(operatingSystem(), patience, path);
  ASSERT_FALSE(kept.open());
  ASSERT_FALSE(kept.write(readBytes(path), "the new content"));
  writeBytes(path, torn);
}

TEST(TornFiles, IsPutRightByWhoeverReadsItNext) {
  const ScopedTemporaries temporaries;
  const TempFolder folder;
  writeBytes(folder / "f", "the old one");
  tear(folder / "f", "the new one");
  std::string read;
  EXPECT_FALSE(readFile(folder / "./f", read, kAnySize));
  EXPECT_EQ(read, "the old one");
  EXPECT_EQ(readBytes(folder / "f"), "the old one");
  EXPECT_FALSE(pathExists(operatingSystem().privateFolder()));
}

TEST(TornFiles, IsPutRightByWhateverNameItIsRead) {
  const ScopedTemporaries temporaries;
  const TempFolder folder;
  writeBytes(folder / "f", "the old one");
  ASSERT_EQ(link((folder / "f").c_str(), (folder / "second").c_str()), 0);
  tear(folder / "f", "the new one");
  std::string read;
  EXPECT_FALSE(readFile(folder / "second", read, kAnySize));
  EXPECT_EQ(read, "the old one");
  EXPECT_FALSE(pathExists(operatingSystem().privateFolder()));
}

// The name by which it was written still leads to the file, but is no longer its identity.
TEST(TornFiles, IsPutRightWhereItsFolderHasMovedAndALinkHasItsName) {
  const ScopedTemporaries temporaries;
  const TempFolder folder;
  std::filesystem::create_directory(folder / "a");
  writeBytes(folder / "a" / "f", "the old one");
  tear(folder / "a" / "f", "the new one");
  std::filesystem::rename(folder / "a", folder / "b");
  ASSERT_EQ(symlink("b", (folder / "a").c_str()), 0);
  for (const char* const name : {"a", "b"}) {
    std::string read;
    EXPECT_FALSE(readFile(folder / name / "f", read, kAnySize)) << name;
    EXPECT_EQ(read, "the old one") << name;
  }
  EXPECT_FALSE(pathExists(operatingSystem().privateFolder()));
}

TEST(TornFiles, IsLeftAloneWhereSomebodyHasWrittenItSince) {
  const ScopedTemporaries temporaries;
  const TempFolder folder;
  writeBytes(folder / "f", "the old one");
  tear(folder / "f", "by the game");
  std::string read;
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
  EXPECT_EQ(read, "by the game");
  EXPECT_FALSE(pathExists(operatingSystem().privateFolder()));
}

TEST(TornFiles, IsLeftAloneWhereItIsLargerThanAnyThatIsWrittenInPlace) {
  const ScopedTemporaries temporaries;
  const TempFolder folder;
  writeBytes(folder / "f", "the old one");
  tear(folder / "f", "the new one");
  std::filesystem::resize_file(folder / "f", kLargestInPlace + 1);
  std::string read;
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
  EXPECT_EQ(read.size(), kLargestInPlace + 1);
  EXPECT_FALSE(pathExists(operatingSystem().privateFolder()));
}

TEST(TornFiles, IsNotBelievedFromAFolderThatOthersMayEnter) {
  const ScopedTemporaries temporaries;
  const TempFolder folder;
  writeBytes(folder / "f", "the old one");
  tear(folder / "f", "the new one");
  ASSERT_EQ(chmod(operatingSystem().privateFolder().c_str(), 0777), 0);
  std::string read;
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
  EXPECT_EQ(read, "the new one");
  // Nothing is kept there either.
  ASSERT_EQ(link((folder / "f").c_str(), (folder / "second").c_str()), 0);
  EXPECT_TRUE(replaceFile(folder / "f", "newer"));
  EXPECT_EQ(readBytes(folder / "f"), "the new one");
}

TEST(TornFiles, WaitsForTheProcessThatIsWritingIt) {
  const ScopedTemporaries temporaries;
  const TempFolder folder;
  writeBytes(folder / "f", "the old one");
  Patience patience;
  KeptWrite kept(operatingSystem(), patience, folder / "f");
  ASSERT_FALSE(kept.open());
  ASSERT_FALSE(kept.write("the old one", "the new content"));
  std::string read;
  const std::error_code error = readFile(folder / "f", read, kAnySize);
  EXPECT_TRUE(error) << read;
  EXPECT_FALSE(isMissing(error));
  EXPECT_TRUE(replaceFile(folder / "f", "newer"));
  EXPECT_FALSE(kept.discard());
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
}

// A system on which writing one file fails `failures` times, after half of the first write.
class AFailingFile : public test::PassingFileSystem {
 public:
  AFailingFile(Path path, int failures) : path_(std::move(path)), failures_(failures) {}

  FileError open(const Path& path, OpenFor purpose, FileHandle& file, FileFacts& facts) override {
    const FileError error = PassingFileSystem::open(path, purpose, file, facts);
    if (!error && path == path_ && purpose == OpenFor::Writing) file_ = file;
    return error;
  }
  FileError write(FileHandle file, std::uint64_t offset, std::string_view bytes,
                  std::size_t& count) override {
    if (file != file_) return PassingFileSystem::write(file, offset, bytes, count);
    if (!std::exchange(isTorn_, true)) {
      return PassingFileSystem::write(file, offset, bytes.substr(0, bytes.size() / 2), count);
    }
    if (failures_-- > 0) return {Obstacle::Other, std::make_error_code(std::errc::io_error)};
    return PassingFileSystem::write(file, offset, bytes, count);
  }

 private:
  Path path_;
  int failures_;
  FileHandle file_ = kNoFile;
  bool isTorn_ = false;
};

struct FailureRow {
  int failures;
  const char* left;  // of the file
  bool isKept;
};

// The old content is kept until it could be put back, and not a moment longer.
TEST(TornFilesFailedWrite, KeepsTheOldContentUntilItIsPutBack) {
  constexpr FailureRow kRows[] = {{1, "the old one", false}, {2, "the nld one", true}};
  for (const FailureRow& row : kRows) {
    const ScopedTemporaries temporaries;
    const TempFolder folder;
    writeBytes(folder / "f", "the old one");
    AFailingFile system(folder / "f", row.failures);
    Patience patience;
    EXPECT_TRUE(writeInPlace(system, patience, folder / "f", "the new one"));
    EXPECT_EQ(readBytes(folder / "f"), row.left);
    EXPECT_EQ(pathExists(operatingSystem().privateFolder()), row.isKept) << row.failures;
    std::string read;
    EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
    EXPECT_EQ(read, "the old one");
    EXPECT_FALSE(pathExists(operatingSystem().privateFolder())) << row.failures;
  }
}

}  // namespace
}  // namespace brennet::platform
