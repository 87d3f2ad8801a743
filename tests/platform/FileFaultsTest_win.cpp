// ReplaceFileW fails in the three half-way states that its documentation names, and calls fail
// while another program has the file.

#include "tests/platform/FileFaults_win.h"
// gtest.h (in FileFaultsFixture.h) comes after windows.h, which would undo its macros.
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/Files.h"
#include "platform/OpenFile.h"
#include "platform/win/FileRights.h"
#include "tests/platform/FileFaultsFixture.h"

namespace brennet::platform {
namespace {

using test::halfwayFaults;
using test::interruptions;
using test::moveFlags;
using test::passingFaults;
using test::readBytes;
using test::replacedFiles;
using test::writeBytes;

constexpr char kOld[] = "the old content";
constexpr char kNew[] = "the new content, which is longer";
constexpr char kShort[] = "short";

class FileFaultsHalfReplacement : public test::FileFaultsFixture {
 protected:
  ~FileFaultsHalfReplacement() override { halfwayFaults = test::HalfwayFaults(); }
};

TEST_F(FileFaultsHalfReplacement, ThatLeftBothNamesIsGotRoundInPlace) {
  for (const DWORD error : {ERROR_UNABLE_TO_REMOVE_REPLACED, ERROR_UNABLE_TO_MOVE_REPLACEMENT}) {
    writeBytes(path(), kOld);
    halfwayFaults.replacing = error;
    EXPECT_FALSE(replaceFile(path(), kNew)) << error;
    EXPECT_EQ(readBytes(path()), kNew) << error;
    EXPECT_EQ(folder_.listing(), "f\n") << error;
  }
}

TEST_F(FileFaultsHalfReplacement, ThatTookTheOldNameAwayIsMadeGood) {
  writeBytes(path(), kOld);
  halfwayFaults.replacing = ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
  EXPECT_FALSE(replaceFile(path(), kNew));
  EXPECT_EQ(readBytes(path()), kNew);
  EXPECT_EQ(folder_.listing(), "f\n");

  // If the new file cannot be moved, the old one comes back and is written in place.
  halfwayFaults.movingTheNew = true;
  EXPECT_FALSE(replaceFile(path(), kShort));
  EXPECT_EQ(readBytes(path()), kShort);
  EXPECT_EQ(folder_.listing(), "f\n");
}

constexpr char kBackup[] = "f.brennet-old";

// Nothing is written in place then: other processes would take that for the file, and the backup
// for one that is not needed.
TEST_F(FileFaultsHalfReplacement, ThatCannotBeMadeGoodLeavesTheOldFileUnderItsBackupName) {
  writeBytes(path(), kOld);
  halfwayFaults.replacing = ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
  halfwayFaults.moving = true;
  EXPECT_TRUE(replaceFile(path(), kNew));
  EXPECT_EQ(folder_.listing(), std::string(kBackup) + "\n");
  EXPECT_EQ(readBytes(folder_ / kBackup), kOld);

  // While it cannot be put back, the file counts as unreadable, not as missing.
  std::string read;
  EXPECT_EQ(readFile(path(), read, kAnySize).value(), ERROR_INVALID_NAME);
  EXPECT_EQ(replaceFile(path(), kNew).value(), ERROR_INVALID_NAME);
  EXPECT_EQ(readBytes(folder_ / kBackup), kOld);

  halfwayFaults = {};
  EXPECT_FALSE(readFile(path(), read, kAnySize));
  EXPECT_EQ(read, kOld);
  EXPECT_EQ(folder_.listing(), "f\n");
}

class FileFaultsPassingFault : public test::FileFaultsFixture {
 protected:
  ~FileFaultsPassingFault() override { passingFaults = test::PassingFaults(); }
};

constexpr DWORD kPassing[] = {ERROR_ACCESS_DENIED, ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION};
constexpr int kAFew = 3;

TEST_F(FileFaultsPassingFault, OfReplacingIsWaitedFor) {
  std::vector<DWORD> errors(std::begin(kPassing), std::end(kPassing));
  errors.insert(errors.end(), {ERROR_UNABLE_TO_REMOVE_REPLACED, ERROR_UNABLE_TO_MOVE_REPLACEMENT});
  for (const DWORD error : errors) {
    writeBytes(path(), kOld);
    const int before = replacedFiles;
    passingFaults = {.error = error, .replacing = kAFew};
    EXPECT_FALSE(replaceFile(path(), kNew)) << error;
    EXPECT_EQ(readBytes(path()), kNew) << error;
    EXPECT_EQ(replacedFiles, before + 1) << error << ": written in place";
  }
}

TEST_F(FileFaultsPassingFault, OfOpeningTheOldFileIsWaitedFor) {
  for (const DWORD error : kPassing) {
    writeBytes(path(), kOld);
    const int before = replacedFiles;
    passingFaults = {.error = error, .opening = kAFew, .isAboutToGo = true};
    EXPECT_FALSE(replaceFile(path(), kNew)) << error;
    EXPECT_EQ(readBytes(path()), kNew) << error;
    EXPECT_EQ(replacedFiles, before + 1) << error;
  }
}

TEST_F(FileFaultsPassingFault, OfMakingAFileIsNoneWhereTheFolderTakesNone) {
  const auto opened = [&](OpenFor purpose) {
    FileHandle file = kNoFile;
    FileFacts facts;
    return operatingSystem().open(path(), purpose, file, facts).obstacle;
  };
  for (const OpenFor purpose : {OpenFor::Creating, OpenFor::Keeping}) {
    passingFaults = {.error = ERROR_ACCESS_DENIED, .opening = kAFew};
    EXPECT_EQ(opened(purpose), Obstacle::Denied);
    passingFaults.isAboutToGo = true;
    EXPECT_EQ(opened(purpose), Obstacle::Held);
  }
  test::faults.newFiles = true;
  for (const OpenFor purpose : {OpenFor::New, OpenFor::NewAndPrivate}) {
    passingFaults.isAboutToGo = false;
    EXPECT_EQ(opened(purpose), Obstacle::Denied);
    passingFaults.isAboutToGo = true;
    EXPECT_EQ(opened(purpose), Obstacle::Exists) << "another name may do";
  }
}

// If the file is not about to go, its access list denies the access.
TEST_F(FileFaultsPassingFault, OfOpeningIsNoneWhereTheFileStays) {
  writeBytes(path(), kOld);
  passingFaults = {.error = ERROR_ACCESS_DENIED, .opening = kAFew};
  EXPECT_EQ(replaceFile(path(), kNew).value(), ERROR_ACCESS_DENIED);
  EXPECT_EQ(passingFaults.opening, kAFew - 1);
  EXPECT_EQ(readBytes(path()), kOld);
}

TEST_F(FileFaultsPassingFault, OfRemovingTheTemporaryFileIsWaitedFor) {
  writeBytes(path(), kOld);
  test::faults.flushing = true;
  passingFaults = {.error = ERROR_SHARING_VIOLATION, .deleting = kAFew};
  EXPECT_TRUE(replaceFile(path(), kNew));
  EXPECT_EQ(folder_.listing(), "f\n");
}

TEST_F(FileFaultsPassingFault, OfMovingANewFileIsWaitedFor) {
  for (const DWORD error : kPassing) {
    std::filesystem::remove(path());
    passingFaults = {.error = error, .moving = kAFew};
    EXPECT_FALSE(replaceFile(path(), kNew)) << error;
    EXPECT_EQ(passingFaults.moving, 0) << error;
    EXPECT_EQ(readBytes(path()), kNew) << error;
    EXPECT_EQ(folder_.listing(), "f\n") << error;
  }
}

TEST_F(FileFaultsPassingFault, OfReadingIsWaitedForWhereSomebodyHasTheFile) {
  writeBytes(path(), kOld);
  for (const DWORD error : {ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION}) {
    passingFaults = {.error = error, .opening = kAFew};
    std::string read;
    EXPECT_FALSE(readFile(path(), read, kAnySize)) << error;
    EXPECT_EQ(read, kOld) << error;
    // A lock does not show before the file is read.
    passingFaults = {.error = error, .reading = kAFew};
    EXPECT_FALSE(readFile(path(), read, kAnySize)) << error;
    EXPECT_EQ(read, kOld) << error;
    EXPECT_EQ(passingFaults.reading, 0) << error;
  }
}

TEST_F(FileFaultsPassingFault, ThatIsNoneIsNotWaitedFor) {
  writeBytes(path(), kOld);
  passingFaults = {.error = ERROR_NOT_SUPPORTED, .opening = kAFew};
  EXPECT_TRUE(replaceFile(path(), kNew));
  EXPECT_EQ(passingFaults.opening, kAFew - 1);
  passingFaults = {.error = ERROR_NOT_SUPPORTED, .replacing = kAFew};
  EXPECT_FALSE(replaceFile(path(), kNew)) << "written in place";
  EXPECT_EQ(passingFaults.replacing, kAFew - 1);
}

class FileFaultsInterruption : public test::FileFaultsFixture {
 protected:
  ~FileFaultsInterruption() override { interruptions = test::Interruptions(); }
};

TEST_F(FileFaultsInterruption, ThatTakesTheOldFileAwayLeavesTheNewOne) {
  writeBytes(path(), kOld);
  const int before = replacedFiles;
  interruptions.beforeReplacing = [&] { std::filesystem::rename(path(), folder_ / "away"); };
  moveFlags = ~0U;
  EXPECT_FALSE(replaceFile(path(), kNew));
  EXPECT_EQ(readBytes(path()), kNew);
  EXPECT_EQ(replacedFiles, before);
  EXPECT_EQ(moveFlags, DWORD{MOVEFILE_WRITE_THROUGH}) << "not moved, or moved in another way";
  EXPECT_EQ(folder_.listing(), "away\nf\n");
}

// Another process has moved the file away for a moment.
TEST_F(FileFaultsInterruption, ThatReplacesTheFileIsWaitedFor) {
  writeBytes(path(), kOld);
  const int before = replacedFiles;
  std::thread other;
  interruptions.beforeReplacing = [&] {
    std::filesystem::rename(path(), folder_ / kBackup);
    other = std::thread([&] {
      Sleep(50);
      writeBytes(path(), kShort);
    });
  };
  EXPECT_FALSE(replaceFile(path(), kNew));
  other.join();
  EXPECT_EQ(readBytes(path()), kNew);
  EXPECT_EQ(replacedFiles, before + 1) << "written in place";
  EXPECT_EQ(folder_.listing(), "f\n");
}

TEST_F(FileFaultsInterruption, ThatPutsAFileThereIsReplacedAsAnyOther) {
  const int before = replacedFiles;
  interruptions.beforeMoving = [&] { writeBytes(path(), kOld); };
  EXPECT_FALSE(replaceFile(path(), kNew));
  EXPECT_EQ(readBytes(path()), kNew);
  EXPECT_EQ(replacedFiles, before + 1);
  EXPECT_EQ(folder_.listing(), "f\n");
}

TEST_F(FileFaultsInterruption, ThatLetsAFileGrowIsReadToItsEnd) {
  writeBytes(path(), kOld);
  interruptions.afterSizing = [&] { writeBytes(path(), kNew); };
  std::string read;
  EXPECT_FALSE(readFile(path(), read, kAnySize));
  EXPECT_EQ(read, kNew);
}

TEST_F(FileFaultsInterruption, ThatCutsAFileIsReadToItsEnd) {
  writeBytes(path(), kOld);
  interruptions.afterSizing = [&] { writeBytes(path(), kShort); };
  std::string read;
  EXPECT_FALSE(readFile(path(), read, kAnySize));
  EXPECT_EQ(read, kShort);
}

class FileFaultsSecondName : public test::FileFaultsFixture {};

TEST_F(FileFaultsSecondName, IsBroughtToTheDiskOrNotGiven) {
  FileSystem& system = operatingSystem();
  writeBytes(path(), kOld);
  test::faults.flushing = true;
  EXPECT_EQ(system.link(path(), folder_ / "second").code.value(), test::kDeviceError);
  EXPECT_EQ(folder_.listing(), "f\n");
  test::faults.flushing = false;
  EXPECT_FALSE(system.link(path(), folder_ / "second"));
  EXPECT_EQ(folder_.listing(), "f\nsecond\n");
}

TEST_F(FileFaultsSecondName, IsKnownOnlyWhereFilesHaveNumbers) {
  FileSystem& system = operatingSystem();
  writeBytes(path(), kOld);
  ASSERT_FALSE(system.link(path(), folder_ / "second"));
  EXPECT_TRUE(system.isSameFile(path(), folder_ / "second"));
  test::hasFileNumbers = false;
  EXPECT_FALSE(system.isSameFile(path(), folder_ / "second"));
  test::hasFileNumbers = true;
}

class FileFaultsPrivateFolder : public test::FileFaultsFixture {
 protected:
  FileFaultsPrivateFolder() { EXPECT_FALSE(system_.createPrivateFolder(own_)); }
  ~FileFaultsPrivateFolder() override {
    passingFaults = test::PassingFaults();
    interruptions = test::Interruptions();
  }

  FileSystem& system_ = operatingSystem();
  const Path own_ = folder_ / "own";
};

// A failure must not cause what is kept there to be ignored.
TEST_F(FileFaultsPrivateFolder, ThatCannotBeAskedAboutIsNotTakenForSomebodyElses) {
  for (const DWORD error : {ERROR_IO_DEVICE, ERROR_NOT_ENOUGH_MEMORY, ERROR_NETNAME_DELETED}) {
    passingFaults = {.error = error, .opening = 1};
    EXPECT_EQ(system_.checkPrivateFolder(own_).code.value(), static_cast<int>(error));
  }
  test::faults.callsUntilFailure = 1;  // after the opening
  EXPECT_EQ(system_.checkPrivateFolder(own_).code.value(), test::kDeviceError);
  EXPECT_FALSE(system_.checkPrivateFolder(own_));
  passingFaults = {.error = ERROR_ACCESS_DENIED, .opening = 1};
  EXPECT_EQ(system_.checkPrivateFolder(own_).obstacle, Obstacle::Denied);
}

TEST_F(FileFaultsPrivateFolder, ThatCannotBeIsMissing) {
  for (const char* const name : {"no|name", "missing/own"}) {
    EXPECT_EQ(system_.checkPrivateFolder(folder_ / name).obstacle, Obstacle::Missing) << name;
  }
}

// Another process that used it removes it in the end; then it can be made again.
TEST_F(FileFaultsPrivateFolder, ThatGoesIsMissing) {
  interruptions.beforeOpening = [&] { std::filesystem::remove(own_); };
  EXPECT_EQ(system_.checkPrivateFolder(own_).obstacle, Obstacle::Missing);
  EXPECT_FALSE(system_.createPrivateFolder(own_));
  interruptions.beforeOpening = [&] { std::filesystem::remove(own_); };
  EXPECT_EQ(system_.createPrivateFolder(own_).obstacle, Obstacle::Missing);
  passingFaults = {.error = ERROR_ACCESS_DENIED, .making = 1, .isAboutToGo = true};
  EXPECT_EQ(system_.createPrivateFolder(own_).obstacle, Obstacle::Missing);
  // What was about to go has gone by now.
  passingFaults = {.error = ERROR_ACCESS_DENIED, .making = 1};
  EXPECT_FALSE(system_.createPrivateFolder(own_));
}

TEST_F(FileFaultsPrivateFolder, IsKnownAsSoonAsTheUserIs) {
  passingFaults = {.error = ERROR_NOT_ENOUGH_MEMORY, .asking = 1};
  const OwnRights rights;
  EXPECT_EQ(rights.attributes(), nullptr);
  EXPECT_NE(rights.attributes(), nullptr);
  EXPECT_EQ(rights.check(own_), DWORD{ERROR_SUCCESS});
}

class FileFaultsReparsePoint : public test::FileFaultsFixture {
 protected:
  ~FileFaultsReparsePoint() override { test::reparseTag = 0; }
};

TEST_F(FileFaultsReparsePoint, OfALinkKeepsItFromBeingReplaced) {
  test::reparseTag = IO_REPARSE_TAG_SYMLINK;
  const int before = replacedFiles;
  moveFlags = 0;
  for (const char* const bytes : {kOld, kNew, kShort}) {
    EXPECT_FALSE(replaceFile(path(), bytes));
    EXPECT_EQ(readBytes(path()), bytes);
  }
  EXPECT_EQ(replacedFiles, before);
}

TEST_F(FileFaultsReparsePoint, OfALinkHidesNoSize) {
  writeBytes(path(), kOld);
  test::reparseTag = IO_REPARSE_TAG_SYMLINK;
  EXPECT_TRUE(isFileLarger(path(), sizeof(kOld) - 2));
  EXPECT_FALSE(isFileLarger(path(), sizeof(kOld) - 1));
}

TEST_F(FileFaultsReparsePoint, OfAnyKindMakesAFileNoneToKeep) {
  const auto opened = [&] {
    OpenFile file(operatingSystem());
    return file.open(path(), OpenFor::Keeping).obstacle;
  };
  EXPECT_EQ(opened(), Obstacle::None) << "a new one";
  EXPECT_EQ(opened(), Obstacle::None);
  test::reparseTag = IO_REPARSE_TAG_SYMLINK;
  EXPECT_EQ(opened(), Obstacle::Denied);
}

TEST_F(FileFaultsReparsePoint, OfAnyKindMakesAFolderNobodysOwn) {
  FileSystem& system = operatingSystem();
  ASSERT_FALSE(system.createPrivateFolder(folder_ / "own"));
  EXPECT_FALSE(system.createPrivateFolder(folder_ / "own"));
  for (const DWORD tag :
       {IO_REPARSE_TAG_SYMLINK, IO_REPARSE_TAG_MOUNT_POINT, IO_REPARSE_TAG_DEDUP}) {
    test::reparseTag = tag;
    EXPECT_EQ(system.createPrivateFolder(folder_ / "own").obstacle, Obstacle::Denied) << tag;
  }
}

TEST_F(FileFaultsReparsePoint, OfAnotherKindDoesNot) {
  writeBytes(path(), kOld);
  test::reparseTag = IO_REPARSE_TAG_DEDUP;
  const int before = replacedFiles;
  EXPECT_FALSE(replaceFile(path(), kNew));
  EXPECT_EQ(readBytes(path()), kNew);
  EXPECT_EQ(replacedFiles, before + 1);
}

}  // namespace
}  // namespace brennet::platform
