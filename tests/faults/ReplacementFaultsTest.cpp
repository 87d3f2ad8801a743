// Each call that replacing a file makes fails, or is the last one of its process or of the machine.
// Whatever happens, the next session finds the whole old or the whole new content, the result has
// told the truth, and nothing is left lying about.

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>

#include "platform/Files.h"
#include "tests/faults/StandIn.h"

namespace brennet::test {
namespace {

using platform::kAnySize;
using platform::readFile;
using platform::replaceFile;

constexpr char kFolder[] = "/folder";
constexpr char kFile[] = "/folder/f";
constexpr char kOld[] = "the old content, of which each part counts";
constexpr char kNew[] =
    "the new one, which is much longer than the other has ever been, and ends here";
constexpr char kShort[] = "short";
constexpr char kNone[] = "(none)";

// Where a file is replaced.
struct Setting {
  const char* name;
  void (*prepare)(ModelFileSystem& system);
  const char* before;  // the content, kNone where there is no file
};

const Setting kSettings[] = {
    {"AFile", [](ModelFileSystem& s) { s.makeFile(kFile, kOld); }, kOld},
    {"NoFile", [](ModelFileSystem&) {}, kNone},
    {"NoFileWhereNamesAreShort", [](ModelFileSystem& s) { s.nature.shortNames.insert(kFolder); },
     kNone},
    {"AFileWhereNoPlaceIsFoundForLongNames",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, kOld);
       s.nature.shortNames.insert(kFolder);
       s.nature.findsNoLongNames = true;
     },
     kOld},
    {"NoFileWhereNoPlaceIsFoundForLongNames",
     [](ModelFileSystem& s) {
       s.nature.shortNames.insert(kFolder);
       s.nature.findsNoLongNames = true;
     },
     kNone},
    {"InTwoSteps",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, kOld);
       s.nature.twoSteps = true;
     },
     kOld},
    {"InAFolderThatTakesNoFile",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, kOld);
       s.nature.closedFolders.insert(kFolder);
     },
     kOld},
    {"OnItsOwnMount",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, kOld);
       s.nature.mounts.insert(kFile);
     },
     kOld},
    {"OfAnotherOwner",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, kOld);
       s.nature.foreignFiles.insert(kFile);
     },
     kOld},
    {"WithTwoNames",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, kOld);
       s.makeSecondName(kFile, "/folder/other");
     },
     kOld},
    {"WithTwoNamesWhereFoldersAreNotFlushed",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, kOld);
       s.makeSecondName(kFile, "/folder/other");
       s.nature.flushesNoFolders = true;
     },
     kOld},
    {"ThroughALink",
     [](ModelFileSystem& s) {
       s.makeFolder("/elsewhere");
       s.makeFile("/elsewhere/g", kOld);
       s.makeLink(kFile, "/elsewhere/g");
     },
     kOld},
    {"BusyForAMoment",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, kOld);
       s.nature.busy[kFile] = 3;
     },
     kOld},
    {"InPlaceBusyForAMoment",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, kOld);
       s.nature.mounts.insert(kFile);
       s.nature.busy[kFile] = 3;
     },
     kOld},
    {"WithLeftovers",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, kOld);
       s.makeFile("/folder/f.brennet-77-0.tmp", "half");
       s.makeFile("/folder/f.brennet-old", "older");
     },
     kOld},
};

class ReplacementFaults : public testing::TestWithParam<Setting> {
 protected:
  void begin() {
    in_.reset();
    in_.emplace();
    in_->model.makeFolder(kFolder);
    GetParam().prepare(in_->model);
  }

  std::string listing() { return in_->model.listing(kFolder) + in_->model.listing("/private"); }

  [[nodiscard]] std::string content() { return in_->model.contentOf(in_->model.resolved(kFile)); }

  // A session without faults. What it reads must be what is there.
  void runCleanSession(std::initializer_list<std::string> allowed, const std::string& what) {
    in_->model.endPrograms();
    in_->faulty.plan(-1, Fault::None);
    std::string read;
    const std::error_code error = readFile(kFile, read, kAnySize);
    const std::string found = platform::isMissing(error) ? kNone : error ? error.message() : read;
    EXPECT_TRUE(std::find(allowed.begin(), allowed.end(), found) != allowed.end())
        << what << ": found " << found;
    EXPECT_EQ(content(), found) << what;
    EXPECT_FALSE(replaceFile(kFile, kShort)) << what;
    EXPECT_EQ(content(), kShort) << what;
    EXPECT_EQ(listing(), cleanListing_) << what;
  }

  // How many calls a replacement makes without a fault.
  int countCalls(const char* bytes) {
    begin();
    in_->faulty.plan(-1, Fault::None);
    EXPECT_FALSE(replaceFile(kFile, bytes));
    EXPECT_EQ(content(), bytes);
    const int calls = in_->faulty.calls();
    cleanListing_ = listing();
    return calls;
  }

  std::optional<StandIn> in_;
  std::string cleanListing_;
};

constexpr Obstacle kErrors[] = {Obstacle::Other,   Obstacle::Denied, Obstacle::Held,
                                Obstacle::Missing, Obstacle::Exists, Obstacle::Halfway};

TEST_P(ReplacementFaults, OfOneCallOrAllLeaveTheOldContentAfterAnError) {
  for (const char* const bytes : {kNew, kShort}) {
    const int calls = countCalls(bytes);
    for (const Fault fault : {Fault::Fails, Fault::FailsForGood}) {
      for (const Obstacle obstacle : kErrors) {
        for (int call = 0; call < calls; ++call) {
          begin();
          in_->faulty.plan(call, fault, obstacle);
          const std::error_code error = replaceFile(kFile, bytes);
          const std::string what = described(*in_, call) + " fails with " +
                                   std::to_string(static_cast<int>(obstacle)) +
                                   (fault == Fault::Fails ? " once, " : " for good, ") + bytes;
          runCleanSession({error ? GetParam().before : bytes}, what);
          if (HasFailure()) return;
        }
      }
    }
  }
}

TEST_P(ReplacementFaults, OfShortWritesAndReadsAreNone) {
  const int calls = countCalls(kNew);
  for (int call = 0; call < calls; ++call) {
    begin();
    in_->faulty.plan(call, Fault::Short);
    EXPECT_FALSE(replaceFile(kFile, kNew)) << call << ": " << in_->faulty.faulty();
    EXPECT_EQ(content(), kNew) << call << ": " << in_->faulty.faulty();
  }
}

TEST_P(ReplacementFaults, ThatEndTheProcessLeaveOneContentWhole) {
  for (const char* const bytes : {kNew, kShort}) {
    const int calls = countCalls(bytes);
    for (const Fault fault : {Fault::EndsBefore, Fault::EndsInside, Fault::EndsAfter}) {
      for (int call = 0; call < calls; ++call) {
        begin();
        in_->faulty.plan(call, fault);
        static_cast<void>(replaceFile(kFile, bytes));
        runCleanSession({GetParam().before, bytes},
                        described(*in_, call) + " is the last, " + bytes);
        if (HasFailure()) return;
      }
    }
  }
}

constexpr unsigned kPowerLosses = 7 * 64;

TEST_P(ReplacementFaults, ThatTakeThePowerAwayLeaveOneContentWhole) {
  for (const char* const bytes : {kNew, kShort}) {
    const int calls = countCalls(bytes);
    for (int call = 0; call < calls; ++call) {
      for (unsigned way = 0; way < kPowerLosses; ++way) {
        begin();
        in_->faulty.plan(call, Fault::EndsInside);
        static_cast<void>(replaceFile(kFile, bytes));
        in_->model.losePower(way);
        runCleanSession({GetParam().before, bytes}, described(*in_, call) + ", power lost, " +
                                                        bytes + ", way " + std::to_string(way));
        if (HasFailure()) return;
      }
    }
  }
}

// What was reported as done is on the disk.
TEST_P(ReplacementFaults, LeaveWhatWasDoneAfterAPowerLoss) {
  for (const char* const bytes : {kNew, kShort}) {
    static_cast<void>(countCalls(bytes));
    for (unsigned way = 0; way < kPowerLosses; ++way) {
      begin();
      in_->faulty.plan(-1, Fault::None);
      EXPECT_FALSE(replaceFile(kFile, bytes));
      in_->model.losePower(way);
      runCleanSession({bytes}, "way " + std::to_string(way));
    }
  }
}

TEST(ReplacementFaultsFileMadeInPlace, IsToldAsDoneOnlyWithItsNameOnTheDisk) {
  constexpr int kMoreThanAnySave = 60;
  int flushes = 0;
  for (int call = 0; call < kMoreThanAnySave; ++call) {
    StandIn in;
    in.model.makeFolder(kFolder);
    in.model.nature.shortNames.insert(kFolder);
    in.faulty.plan(call, Fault::Fails);
    const std::error_code error = replaceFile(kFile, kNew);
    if (in.faulty.faulty() != "flushFolder") continue;
    ++flushes;
    const std::string what = described(in, call);
    in.faulty.plan(-1, Fault::None);
    in.model.losePower(0);
    std::string read;
    EXPECT_EQ(platform::isMissing(readFile(kFile, read, kAnySize)), static_cast<bool>(error))
        << what;
  }
  EXPECT_GE(flushes, 2);
}

TEST(ReplacementFaultsCreateFolder, BringsItsNameToTheDisk) {
  StandIn in;
  in.model.makeFolder("/games");
  for (const char* const name : {"/games/folder", "/games/other/"}) {
    EXPECT_TRUE(platform::createFolder(name)) << name;
  }
  in.model.losePower(0);
  EXPECT_TRUE(platform::folderExists("/games/folder"));
  EXPECT_TRUE(platform::folderExists("/games/other"));
}

INSTANTIATE_TEST_SUITE_P(, ReplacementFaults, testing::ValuesIn(kSettings),
                         [](const auto& setting) { return std::string(setting.param.name); });

}  // namespace
}  // namespace brennet::test
