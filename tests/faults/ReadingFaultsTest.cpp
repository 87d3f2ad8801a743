// Files that others replace, write in place or lock while they are read.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "platform/Files.h"
#include "platform/PrivateFile.h"
#include "platform/Replacement.h"
#include "tests/faults/TornFileFixture.h"

namespace brennet::test {
namespace {

using platform::replaceFile;

class ReadingFaultsTest : public TornFileFixture {
 protected:
  ReadingFaultsTest() { in_.model.makeSecondName(kFile, kSecond); }

  // Calls `action` before the file is opened for reading, the first `times` times.
  void beforeOpening(int times, const std::function<void()>& action) {
    in_.model.others.beforeOpen = [this, times, action](const Path& path, OpenFor purpose) mutable {
      if (purpose != OpenFor::Reading || path != kFile || isBusy_ || times == 0) return;
      --times;
      isBusy_ = true;
      action();
      isBusy_ = false;
    };
  }

  void moveAway() {
    if (in_.model.contentOf(kFile) == "(none)") return;
    EXPECT_FALSE(in_.model.move(kFile, platform::backupName(kFile)));
  }

  bool isBusy_ = false;
};

TEST_F(ReadingFaultsTest, FindsAFileThatWasMovedAwayAfterTheFirstLook) {
  beforeOpening(1, [&] { moveAway(); });
  EXPECT_EQ(read(kFile), kOld) << error_.message();
}

TEST_F(ReadingFaultsTest, NeverTellsThatAFileIsMissingWhichIsMovedAwayEachTime) {
  beforeOpening(1000, [&] { moveAway(); });
  read(kFile);
  EXPECT_TRUE(error_);
  EXPECT_FALSE(platform::isMissing(error_));
}

TEST_F(ReadingFaultsTest, PutsRightWhatWasTornAfterTheFirstLook) {
  beforeOpening(1, [&] { tear(kFile); });
  EXPECT_EQ(read(kFile), kOld) << error_.message();
  EXPECT_EQ(in_.model.contentOf(kFile), kOld);
  EXPECT_EQ(in_.model.listing("/private"), "");
}

TEST_F(ReadingFaultsTest, PutsRightByAnyNameWhatWasTornByAnother) {
  for (const char* const torn : {kFile, kSecond}) {
    for (const char* const name : {kFile, kSecond}) {
      tear(torn);
      EXPECT_EQ(read(name), kOld) << torn << name << error_.message();
      EXPECT_EQ(in_.model.contentOf(torn), kOld);
      EXPECT_EQ(in_.model.listing("/private"), "");
    }
  }
}

TEST_F(ReadingFaultsTest, IsNotDoneWhereWhatIsKeptCannotBeLookedThrough) {
  tear(kFile);
  in_.model.nature.unlistedFolders.insert(in_.model.privateFolder());
  EXPECT_EQ(read(kSecond), "");
  EXPECT_TRUE(error_);
  EXPECT_TRUE(replaceFile(kSecond, "newer"));
  in_.model.nature.unlistedFolders.clear();
  EXPECT_EQ(read(kSecond), kOld) << error_.message();
}

TEST_F(ReadingFaultsTest, PutsRightByAnyNameBeforeItIsWritten) {
  tear(kFile);
  EXPECT_FALSE(replaceFile(kSecond, "newer"));
  EXPECT_EQ(in_.model.contentOf(kFile), "newer");
  EXPECT_EQ(in_.model.listing("/private"), "");
}

TEST_F(ReadingFaultsTest, FindsOneContentWholeAfterAWriteByAnotherNameThatEndsAnywhere) {
  constexpr int kMoreThanAnySave = 80;
  for (const Fault fault : {Fault::EndsBefore, Fault::EndsInside, Fault::EndsAfter}) {
    for (int call = 0; call < kMoreThanAnySave; ++call) {
      tear(kFile);
      in_.faulty.plan(call, fault);
      static_cast<void>(replaceFile(kSecond, "newer and longer"));
      in_.model.endPrograms();
      in_.faulty.plan(-1, Fault::None);
      const std::string found = read(kFile);
      EXPECT_TRUE(found == kOld || found == "newer and longer") << found << described(in_, call);
      EXPECT_EQ(read(kSecond), found) << described(in_, call);
      EXPECT_FALSE(replaceFile(kFile, kOld));
      EXPECT_EQ(in_.model.listing("/private"), "") << described(in_, call);
    }
  }
}

// That its content would fit does not make another file the torn one: any empty file would fit.
TEST_F(ReadingFaultsTest, TakesNoOtherFileForTheOneThatWasTorn) {
  for (const char* const content : {"", kTorn, kOld, kNew}) {
    in_.model.makeFile("/folder/other", content);
    tear(kFile);
    EXPECT_EQ(read("/folder/other"), content);
    EXPECT_EQ(read(kFile), kOld);
  }
}

// The file's disk is away for a while, or somebody has renamed the file for a moment.
TEST_F(ReadingFaultsTest, PutsRightWhatWasTornOnceItIsBack) {
  in_.model.removeFile(kSecond);
  tear(kFile);
  ASSERT_FALSE(in_.model.move(kFile, kAway));
  EXPECT_EQ(read(kFile), "");
  EXPECT_TRUE(platform::isMissing(error_));
  ASSERT_FALSE(in_.model.move(kAway, kFile));
  EXPECT_EQ(read(kFile), kOld) << error_.message();
  EXPECT_EQ(in_.model.listing("/private"), "");
}

// The folder exists without its disk, and takes no files.
TEST_F(ReadingFaultsTest, PutsRightWhatWasTornAfterASaveThatFailedMeanwhile) {
  constexpr int kMoreThanAnySave = 120;
  in_.model.removeFile(kSecond);
  for (const Fault fault : {Fault::Fails, Fault::EndsBefore, Fault::EndsAfter}) {
    for (int call = 0; call < kMoreThanAnySave; ++call) {
      in_.model.makeFile(kFile, kOld);
      tear(kFile);
      ASSERT_FALSE(in_.model.move(kFile, kAway));
      in_.model.nature.closedFolders.insert("/folder");
      in_.faulty.plan(call, fault);
      EXPECT_TRUE(replaceFile(kFile, kNew)) << described(in_, call);
      in_.model.endPrograms();
      in_.faulty.plan(-1, Fault::None);
      in_.model.nature.closedFolders.clear();
      ASSERT_FALSE(in_.model.move(kAway, kFile));
      EXPECT_EQ(read(kFile), kOld) << described(in_, call) << error_.message();
      EXPECT_EQ(in_.model.listing("/private"), "") << described(in_, call);
    }
  }
}

// The player has deleted the torn file.
TEST_F(ReadingFaultsTest, GivesAFileThatWasMadeAnewNothingOfOneThatWasTorn) {
  constexpr int kMoreThanAnySave = 120;
  in_.model.removeFile(kSecond);
  for (const bool isInPlace : {false, true}) {
    if (isInPlace) in_.model.nature.shortNames.insert("/folder");
    for (const Fault fault : {Fault::Fails, Fault::EndsBefore, Fault::EndsInside}) {
      for (int call = 0; call < kMoreThanAnySave; ++call) {
        in_.model.makeFile(kFile, kOld);
        tear(kFile);
        in_.model.removeFile(kFile);
        in_.faulty.plan(call, fault);
        // The same content as in the write that was not finished.
        const std::error_code error = replaceFile(kFile, kNew);
        in_.model.endPrograms();
        in_.faulty.plan(-1, Fault::None);
        const std::string found = read(kFile);
        EXPECT_TRUE(found == kNew || (error && (found == kOld || platform::isMissing(error_))))
            << described(in_, call) << found << error_.message();
        EXPECT_FALSE(replaceFile(kFile, kNew));
        EXPECT_EQ(read(kFile), kNew) << described(in_, call);
        EXPECT_EQ(in_.model.listing("/private/kept"), "") << described(in_, call);
      }
    }
  }
}

TEST_F(ReadingFaultsTest, KeepsTheFileFromBeingWrittenInPlaceMeanwhile) {
  for (const char* const name : {kFile, kSecond}) {
    bool isTried = false;
    bool isRefused = false;
    in_.model.others.beforeRead = [&](const Path& path) {
      if (path != kFile || isTried) return;
      isTried = true;
      isRefused = static_cast<bool>(replaceFile(name, kNew));
    };
    EXPECT_EQ(read(kFile), kOld) << name;
    EXPECT_TRUE(isRefused) << name;
    EXPECT_EQ(in_.model.contentOf(kFile), kOld) << name;
    EXPECT_EQ(in_.model.listing("/private"), "") << name;
  }
}

TEST_F(ReadingFaultsTest, IsNotDoneWhileTheFileIsWrittenInPlace) {
  for (const char* const name : {kFile, kSecond}) {
    platform::OpenFile file(in_.model);
    ASSERT_FALSE(file.open(kSecond, OpenFor::Writing));
    ASSERT_FALSE(file.lock(Sharing::Alone));
    read(name);
    EXPECT_TRUE(error_) << name;
    EXPECT_FALSE(platform::isMissing(error_)) << name;
    EXPECT_TRUE(replaceFile(name, kNew)) << name;
    EXPECT_EQ(in_.model.contentOf(kFile), kOld);
    EXPECT_FALSE(file.close());
    EXPECT_EQ(read(name), kOld);
  }
}

// Another process that used the folder may remove it, once empty, at any moment.
TEST_F(ReadingFaultsTest, MakesNoFolderForKeptFiles) {
  const Path folder = in_.model.privateFolder();
  in_.model.makeFolder(folder);
  in_.model.others.beforePrivateFolder = [&] { in_.model.removeFile(folder); };
  EXPECT_EQ(read(kFile), kOld);
  EXPECT_EQ(in_.model.listing("/private"), "");
  in_.model.makeFolder(folder);
  EXPECT_FALSE(platform::PrivateFile().isThere("file"));
  EXPECT_EQ(in_.model.listing("/private"), "");
}

// Some systems report a lock when the file is opened, others not before it is read.
TEST_F(ReadingFaultsTest, WaitsForWhatIsHeldInWhateverCall) {
  tear(kFile);
  constexpr int kMoreThanAnyRead = 60;
  for (int call = 0; call < kMoreThanAnyRead; ++call) {
    tear(kFile);
    in_.faulty.plan(call, Fault::Fails, Obstacle::Held);
    EXPECT_EQ(read(kFile), kOld) << described(in_, call) << error_.message();
    in_.faulty.plan(-1, Fault::None);
    static_cast<void>(read(kFile));
  }
}

}  // namespace
}  // namespace brennet::test
