// ReplaceFileW fails in the three half-way states that its documentation names.

#include "tests/platform/FileFaults_win.h"
// gtest.h comes after windows.h, which would undo its macros.
#include <string>

#include "platform/Files.h"
#include "tests/platform/FileFaultsFixture.h"

namespace brennet::platform {
namespace {

using test::halfwayFaults;
using test::readBytes;
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
  const std::string backup = "f." + std::to_string(GetCurrentProcessId()) + "-0.old";
  EXPECT_EQ(folder_.listing(), "f\n" + backup + "\n");
  EXPECT_EQ(readBytes(folder_ / backup), kOld);
}

}  // namespace
}  // namespace brennet::platform
