// What is kept of a write in place goes neither too early nor too late: it puts right what was
// torn, and never overwrites what was saved since.

#include "platform/InPlaceWrite.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/Files.h"
#include "tests/faults/TornFileFixture.h"

namespace brennet::test {
namespace {

using platform::replaceFile;

class InPlaceWriteFaultsTest : public TornFileFixture {
 protected:
  // Saves the same content as the write that was not finished, so that nothing tells the two apart.
  std::error_code save() { return replaceFile(kFile, kNew); }

  // What was reported as saved stays; after an error the old content is there.
  void checkNextSession(const std::error_code& error, const std::string& what) {
    beginSession();
    EXPECT_EQ(read(kFile), error ? kOld : kNew) << what << ": " << error.message();
    EXPECT_EQ(in_.model.listing("/private/kept"), "") << what;
  }

  // A torn file, as at the start of each round.
  void beginTorn() {
    in_.model.makeFile(kFile, kOld);
    tear(kFile);
  }

  // The same, but its disk is away.
  void beginTornAndAway() {
    beginTorn();
    in_.model.removeFile(kFile);
  }
};

constexpr int kMoreThanAnySave = 160;
constexpr unsigned kPowerLosses = 7 * 16;
constexpr Obstacle kErrors[] = {Obstacle::Other, Obstacle::Denied, Obstacle::Held,
                                Obstacle::Missing, Obstacle::Exists};

TEST_F(InPlaceWriteFaultsTest, GoOverNoSaveOfAFileThatWasRenamedForOneOpening) {
  tear(kFile);
  in_.model.others.beforeOpen = [&, isDone = false](const Path& path, OpenFor purpose) mutable {
    if (path != kFile) return;
    if (purpose == OpenFor::Reading && !isDone) {
      isDone = true;
      EXPECT_FALSE(in_.model.move(kFile, kAway));
    } else if (purpose == OpenFor::Writing && in_.model.contentOf(kAway) != "(none)") {
      EXPECT_FALSE(in_.model.move(kAway, kFile));
    }
  };
  const std::error_code error = save();
  EXPECT_FALSE(error);
  checkNextSession(error, "");
}

TEST_F(InPlaceWriteFaultsTest, GoOverNoSaveWithOneFailingCall) {
  for (const Obstacle obstacle : kErrors) {
    for (int call = 0; call < kMoreThanAnySave; ++call) {
      beginTorn();
      in_.faulty.plan(call, Fault::Fails, obstacle);
      const std::error_code error = save();
      checkNextSession(error, described(in_, call) + std::to_string(static_cast<int>(obstacle)));
    }
  }
}

// Another process begins to write the file in place after this one has looked at it.
TEST_F(InPlaceWriteFaultsTest, GoOverNoSaveThatBeganBeforeIt) {
  constexpr int kMoreThanAllOpenings = 40;
  for (const char* const name : {kFile, kSecond}) {
    for (int opening = 0; opening < kMoreThanAllOpenings; ++opening) {
      in_.model.makeFile(kFile, kOld);
      if (name == kSecond) in_.model.makeSecondName(kFile, kSecond);
      in_.model.others.beforeOpen = [&, left = opening](const Path&, OpenFor) mutable {
        if (left-- == 0) tear(kFile, in_.model.contentOf(kFile));
      };
      const std::error_code error = replaceFile(name, kNew);
      checkNextSession(error, name + (": opening " + std::to_string(opening)));
    }
  }
}

// The new content counts once nothing is kept any more, on the disk too. Some systems cannot bring
// a removal there.
TEST_F(InPlaceWriteFaultsTest, GoOverNoSaveInPlaceAfterAPowerLoss) {
  in_.model.makeSecondName(kFile, kSecond);
  for (const bool flushesNoFolders : {false, true}) {
    in_.model.nature.flushesNoFolders = flushesNoFolders;
    for (int call = 0; call < kMoreThanAnySave; ++call) {
      for (unsigned way = 0; way < kPowerLosses; ++way) {
        in_.faulty.plan(call, Fault::Fails);
        const std::error_code error = save();
        const std::string what = described(in_, call) + ", way " + std::to_string(way);
        in_.model.losePower(way);
        beginSession();
        EXPECT_EQ(read(kFile), error ? kOld : kNew) << what;
        EXPECT_FALSE(replaceFile(kFile, kOld)) << what;
        if (HasFailure()) return;
      }
    }
  }
}

class InPlaceWriteFaultsOfAnAwayFileTest : public InPlaceWriteFaultsTest,
                                           public testing::WithParamInterface<bool> {
 protected:
  // Saves go through a temporary file, or in place, because the folder takes no such name.
  InPlaceWriteFaultsOfAnAwayFileTest() {
    if (GetParam()) in_.model.nature.shortNames.insert(kFolder);
  }

  void check(Fault fault, int call, unsigned way) {
    beginTornAndAway();
    in_.faulty.plan(call, fault);
    const std::error_code error = replaceFile(kFile, "entirely different");
    const std::string what = described(in_, call) + ", " + std::to_string(static_cast<int>(fault)) +
                             ", way " + std::to_string(way);
    if (way != 1) in_.model.losePower(way);
    beginSession();
    const bool isBack = in_.model.contentOf(kFile) == "(none)";
    if (isBack) in_.model.makeFile(kFile, kTorn);
    const std::string found = read(kFile);
    EXPECT_TRUE(found == kOld || (!isBack && found == "entirely different")) << what << found;
    // A process that has ended reports nothing, and a disk to which nothing can be brought any more
    // loses what was saved when the power fails.
    const bool isTold = fault == Fault::Fails || (fault == Fault::FailsForGood && way == 1);
    EXPECT_TRUE(error || !isTold || found == "entirely different") << what << found;
    EXPECT_FALSE(save()) << what;
    EXPECT_TRUE(way != 1 || in_.model.listing("/private/kept").empty()) << what;
    in_.model.removeFile(kFile);
  }
};

// The file's disk is away while it is saved.
TEST_P(InPlaceWriteFaultsOfAnAwayFileTest, KeepTheOldContentUntilThereIsANewFileOnTheDisk) {
  for (const Fault fault : {Fault::Fails, Fault::FailsForGood, Fault::EndsBefore, Fault::EndsInside,
                            Fault::EndsAfter}) {
    for (const unsigned way : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 14U, 15U, 22U}) {
      for (int call = 0; call < kMoreThanAnySave && !HasFailure(); ++call) check(fault, call, way);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, InPlaceWriteFaultsOfAnAwayFileTest, testing::Bool(),
                         [](const auto& row) { return row.param ? "InPlace" : "AsAWhole"; });

// The file is back before the new one takes its place.
TEST_F(InPlaceWriteFaultsTest, PutRightWhatComesBackWhileItIsSaved) {
  for (const Fault fault :
       {Fault::None, Fault::Fails, Fault::FailsForGood, Fault::EndsBefore, Fault::EndsAfter}) {
    for (int call = 0; call < kMoreThanAnySave; ++call) {
      beginTornAndAway();
      bool isBack = false;
      in_.model.others.beforeOpen = [&](const Path&, OpenFor purpose) {
        if (isBack || purpose != OpenFor::New) return;
        isBack = true;
        in_.model.makeFile(kFile, kTorn);
      };
      in_.faulty.plan(call, fault);
      const std::error_code error = replaceFile(kFile, "entirely different");
      const std::string what = described(in_, call) + std::to_string(static_cast<int>(fault));
      beginSession();
      if (in_.model.contentOf(kFile) == "(none)") in_.model.makeFile(kFile, kTorn);
      const std::string found = read(kFile);
      EXPECT_TRUE(found == "entirely different" || (error && found == kOld)) << what << found;
      EXPECT_FALSE(save()) << what;
      EXPECT_EQ(in_.model.listing("/private/kept"), "") << what;
      if (HasFailure()) return;
    }
  }
}

}  // namespace
}  // namespace brennet::test
