// ReplaceFileW fails in the three half-way states that its documentation names, and calls fail
// while another program has the file.

#include "tests/platform/FileFaults_win.h"
// gtest.h comes after windows.h, which would undo its macros.
#include <string>

#include "platform/Files.h"
#include "tests/platform/FileFaultsFixture.h"

namespace brennet::platform {
namespace {

using test::halfwayFaults;
using test::passingFaults;
using test::readBytes;
using test::replacedFiles;
using test::writeBytes;

constexpr char kOld[] = "the old content";
constexpr char kNew[] = "the new content, which is longer";
constexpr char kShort[] = "short";

class HalfReplacement : public test::FileFaultsFixture {
 protected:
  ~HalfReplacement() override { halfwayFaults = test::HalfwayFaults(); }
};

TEST_F(HalfReplacement, ThatLeftBothNamesIsGotRoundInPlace) {
  for (const DWORD error : {ERROR_UNABLE_TO_REMOVE_REPLACED, ERROR_UNABLE_TO_MOVE_REPLACEMENT}) {
    writeBytes(path(), kOld);
    halfwayFaults.replacing = error;
    EXPECT_FALSE(replaceFile(path(), kNew)) << error;
    EXPECT_EQ(readBytes(path()), kNew) << error;
    EXPECT_EQ(folder_.listing(), "f\n") << error;
  }
}

TEST_F(HalfReplacement, ThatTookTheOldNameAwayIsMadeGood) {
  writeBytes(path(), kOld);
  halfwayFaults.replacing = ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
  EXPECT_FALSE(replaceFile(path(), kNew));
  EXPECT_EQ(readBytes(path()), kNew);
  EXPECT_EQ(folder_.listing(), "f\n");

  // Where the new file cannot be moved, the old one comes back and is written in place.
  halfwayFaults.movingTheNew = true;
  EXPECT_FALSE(replaceFile(path(), kShort));
  EXPECT_EQ(readBytes(path()), kShort);
  EXPECT_EQ(folder_.listing(), "f\n");
}

TEST_F(HalfReplacement, ThatCannotBeMadeGoodLeavesTheOldFileUnderItsBackupName) {
  writeBytes(path(), kOld);
  halfwayFaults.replacing = ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
  halfwayFaults.moving = true;
  EXPECT_FALSE(replaceFile(path(), kNew));
  EXPECT_EQ(readBytes(path()), kNew);
  const std::string backup = "f.brennet-old";
  EXPECT_EQ(folder_.listing(), "f\n" + backup + "\n");
  EXPECT_EQ(readBytes(folder_ / backup), kOld);
}

class PassingFault : public test::FileFaultsFixture {
 protected:
  ~PassingFault() override { passingFaults = test::PassingFaults(); }
};

constexpr DWORD kPassing[] = {ERROR_ACCESS_DENIED, ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION};
constexpr int kAFew = 3;

TEST_F(PassingFault, OfReplacingIsWaitedFor) {
  for (const DWORD error : kPassing) {
    writeBytes(path(), kOld);
    const int before = replacedFiles;
    passingFaults = {.error = error, .opening = kAFew, .replacing = kAFew};
    EXPECT_FALSE(replaceFile(path(), kNew)) << error;
    EXPECT_EQ(readBytes(path()), kNew) << error;
    EXPECT_EQ(replacedFiles, before + 1) << error << ": written in place";
  }
}

TEST_F(PassingFault, OfMovingANewFileIsWaitedFor) {
  for (const DWORD error : kPassing) {
    std::filesystem::remove(path());
    passingFaults = {.error = error, .moving = kAFew};
    EXPECT_FALSE(replaceFile(path(), kNew)) << error;
    EXPECT_EQ(passingFaults.moving, 0) << error;
    EXPECT_EQ(readBytes(path()), kNew) << error;
    EXPECT_EQ(folder_.listing(), "f\n") << error;
  }
}

TEST_F(PassingFault, OfReadingIsWaitedForWhereSomebodyHasTheFile) {
  writeBytes(path(), kOld);
  for (const DWORD error : {ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION}) {
    passingFaults = {.error = error, .opening = kAFew};
    std::string read;
    EXPECT_FALSE(readFile(path(), read)) << error;
    EXPECT_EQ(read, kOld) << error;
  }
}

TEST_F(PassingFault, ThatIsNoneIsNotWaitedFor) {
  writeBytes(path(), kOld);
  passingFaults = {.error = ERROR_PATH_NOT_FOUND, .opening = kAFew};
  EXPECT_TRUE(replaceFile(path(), kNew));
  EXPECT_EQ(passingFaults.opening, kAFew - 1);
  passingFaults = {.error = ERROR_PATH_NOT_FOUND, .replacing = kAFew};
  EXPECT_FALSE(replaceFile(path(), kNew)) << "written in place";
  EXPECT_EQ(passingFaults.replacing, kAFew - 1);
}

}  // namespace
}  // namespace brennet::platform
