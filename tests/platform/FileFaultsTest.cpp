// Each system call that replacing a file makes fails once, one after the other. Whatever fails, the
// disk holds the whole old or the whole new content and no temporary file.

#include <gtest/gtest.h>

#include <string>

#include "platform/Files.h"
#include "tests/platform/FileFaults.h"
#include "tests/platform/FileFaultsFixture.h"
#include "tests/support/OpenHandles.h"

namespace brennet::platform {
namespace {

using test::faults;
using test::FileFaultsFixture;
using test::kDeviceError;
using test::readBytes;
using test::writeBytes;

constexpr char kOld[] = "the old content";
constexpr char kNew[] = "the new content, which is longer";
constexpr char kShort[] = "short";
constexpr int kMoreCallsThanAnyWrite = 40;

class FileFaults : public FileFaultsFixture {
 protected:
  std::error_code replaceWithFailure(int failingCall, const char* bytes = kNew) {
    faults.callsUntilFailure = failingCall;
    const std::error_code error = replaceFile(path(), bytes);
    faults.callsUntilFailure = -1;
    return error;
  }
};

TEST_F(FileFaults, LeaveTheWholeOldOrTheWholeNewContent) {
  int failures = 0;
  for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
    writeBytes(path(), kOld);
    const std::error_code error = replaceWithFailure(call);
    // The next read removes what could not be removed then.
    std::string read;
    EXPECT_FALSE(readFile(path(), read, kAnySize));
    EXPECT_EQ(read, error ? kOld : kNew) << "failing call " << call;
    EXPECT_EQ(folder_.listing(), "f\n") << "failing call " << call;
    failures += error ? 1 : 0;
  }
  EXPECT_GE(failures, 3);
}

TEST_F(FileFaults, OfFlushingAndClosingAreReported) {
  for (bool* const fails : {&faults.flushing, &faults.closing}) {
    writeBytes(path(), kOld);
    *fails = true;
    const std::error_code error = replaceFile(path(), kNew);
    *fails = false;
    EXPECT_EQ(error.value(), kDeviceError);
    EXPECT_EQ(readBytes(path()), kOld);
    EXPECT_EQ(folder_.listing(), "f\n");
  }
}

TEST_F(FileFaults, OfFlushingAreReportedInPlaceToo) {
  writeBytes(path(), kOld);
  faults.newFiles = true;
  faults.flushing = true;
  EXPECT_EQ(replaceFile(path(), kNew).value(), kDeviceError);
  EXPECT_EQ(readBytes(path()), kOld);
}

TEST_F(FileFaults, LeaveNothingWhereNothingWas) {
  for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
    std::filesystem::remove(path());
    const std::error_code error = replaceWithFailure(call);
    EXPECT_EQ(folder_.listing(), error ? "" : "f\n") << "failing call " << call;
    EXPECT_EQ(readBytes(path()), error ? "" : kNew) << "failing call " << call;
  }
}

TEST_F(FileFaults, LeaveNothingWhereNothingWasInPlaceEither) {
  int failures = 0;
  for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
    std::filesystem::remove(longPath());
    faults.callsUntilFailure = call;
    const std::error_code error = replaceFile(longPath(), kNew);
    faults.callsUntilFailure = -1;
    const std::string content = readBytes(longPath());
    // A file whose closing fails has been written and flushed before.
    EXPECT_TRUE(content == kNew || (error && folder_.listing().empty())) << "failing call " << call;
    failures += error ? 1 : 0;
  }
  EXPECT_GE(failures, 4);
}

TEST_F(FileFaults, LeaveTheOldContentOfAFileThatIsWrittenInPlace) {
  for (bool* const cause : {&faults.newFiles, &faults.replacing}) {
    *cause = true;
    for (const char* const bytes : {kNew, kShort}) {
      int failures = 0;
      for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
        writeBytes(path(), kOld);
        const std::error_code error = replaceWithFailure(call, bytes);
        // A file whose closing fails has been written and flushed before.
        const std::string content = readBytes(path());
        EXPECT_TRUE(content == (error ? kOld : bytes) || content == bytes) << "call " << call;
        EXPECT_EQ(folder_.listing(), "f\n") << "failing call " << call;
        failures += error ? 1 : 0;
      }
      EXPECT_GE(failures, 4);
    }
    *cause = false;
  }
}

// On such a disk the old content could not be written back: it must not be touched before there is
// room.
TEST_F(FileFaults, OfADiskThatStaysFullLeaveTheOldContentAlone) {
  writeBytes(path(), kOld);
  faults.newFiles = true;
  faults.diskFull = true;
  EXPECT_TRUE(replaceFile(path(), kNew));
  EXPECT_EQ(readBytes(path()), kOld);
}

TEST_F(FileFaults, LeaveNoHandleOpen) {
  writeBytes(path(), kOld);
  static_cast<void>(replaceWithFailure(0));  // opens what the system keeps open for itself
  const std::size_t before = test::openHandles();
  for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
    static_cast<void>(replaceWithFailure(call));
  }
  EXPECT_EQ(test::openHandles(), before);
}

TEST_F(FileFaults, OfAReadGiveNoBytes) {
  writeBytes(path(), kOld);
  int failures = 0;
  for (int call = 0; call < kMoreCallsThanAnyWrite; ++call) {
    faults.callsUntilFailure = call;
    std::string bytes = "before";
    const std::error_code error = readFile(path(), bytes, kAnySize);
    EXPECT_EQ(bytes, error ? "" : kOld) << "failing call " << call;
    failures += error ? 1 : 0;
  }
  EXPECT_GE(failures, 1);
}

}  // namespace
}  // namespace brennet::platform
