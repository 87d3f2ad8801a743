// A file that could not be loaded is put aside and replaced, while any call fails, or is the last
// one of its process or of the machine. What it held stays in place, or whole under a kept name.

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "platform/Files.h"
#include "platform/KeptWrite.h"
#include "tests/faults/StandIn.h"

namespace brennet::test {
namespace {

using platform::kAnySize;
using platform::OldContent;
using platform::readFile;
using platform::replaceFile;

constexpr char kFolder[] = "/folder";
constexpr char kFile[] = "/folder/f";
constexpr char kSecond[] = "/elsewhere/second";
constexpr char kDamaged[] = "what nobody could make sense of, of which each byte counts";
constexpr char kNew[] = "the defaults";
constexpr char kNext[] = "what the next session saves";
const std::string kOlder[] = {"/folder/f.kept-20010101-000000", "/folder/f.kept-20020101-000000",
                              "/folder/f.kept-20030101-000000"};

struct Setting {
  const char* name;
  void (*prepare)(ModelFileSystem& system);
  bool needsCopy = false;  // if that fails, the save goes on without one
};

const Setting kSettings[] = {
    {"Usual", [](ModelFileSystem&) {}},
    {"InTwoSteps", [](ModelFileSystem& s) { s.nature.twoSteps = true; }},
    {"WhereFoldersAreNotFlushed", [](ModelFileSystem& s) { s.nature.flushesNoFolders = true; }},
    {"WithoutSecondNamesWhereFoldersAreNotFlushed",
     [](ModelFileSystem& s) {
       s.nature.flushesNoFolders = true;
       s.nature.hasLinks = false;
     },
     true},
    {"WithTwoNames", [](ModelFileSystem& s) { s.makeSecondName(kFile, kSecond); }},
    {"WhereNothingTakesItsPlace", [](ModelFileSystem& s) { s.nature.mounts.insert(kFile); }},
    {"OfAnotherOwner", [](ModelFileSystem& s) { s.nature.foreignFiles.insert(kFile); }},
    {"WithoutSecondNames", [](ModelFileSystem& s) { s.nature.hasLinks = false; }, true},
    {"WithoutSecondNamesInPlace",
     [](ModelFileSystem& s) {
       s.nature.hasLinks = false;
       s.nature.mounts.insert(kFile);
     }},
    {"KeptByAProcessThatEnded", [](ModelFileSystem& s) { s.makeSecondName(kFile, kOlder[2]); }},
    {"KeptByAProcessThatEndedInPlace",
     [](ModelFileSystem& s) {
       s.makeSecondName(kFile, kOlder[2]);
       s.nature.mounts.insert(kFile);
     }},
    {"KeptByAProcessThatEndedWithTwoNames",
     [](ModelFileSystem& s) {
       s.makeSecondName(kFile, kOlder[2]);
       s.makeSecondName(kFile, kSecond);
     }},
    {"BusyForAMoment", [](ModelFileSystem& s) { s.nature.busy[kFile] = 3; }},
};

class KeptFilesFaultsTest : public testing::TestWithParam<Setting> {
 protected:
  void begin() {
    in_.reset();
    in_.emplace();
    in_->model.makeFolder(kFolder);
    in_->model.makeFolder("/elsewhere");
    in_->model.makeFile(kFile, kDamaged);
    for (const std::string& name : kOlder) in_->model.makeFile(name, name);
    GetParam().prepare(in_->model);
  }

  [[nodiscard]] std::error_code save() { return replaceFile(kFile, kNew, OldContent::Keep); }

  [[nodiscard]] std::vector<std::string> names() const {
    std::vector<std::string> names;
    std::istringstream lines(in_->model.listing(kFolder));
    for (std::string name; std::getline(lines, name);) names.push_back(name);
    return names;
  }

  [[nodiscard]] bool isAnywhere(const std::string& content) const {
    const std::vector<std::string> all = names();
    return std::any_of(all.begin(), all.end(), [&](const std::string& name) {
      return in_->model.contentOf(name) == content;
    });
  }

  int countCalls() {
    begin();
    in_->faulty.plan(-1, Fault::None);
    EXPECT_FALSE(save());
    EXPECT_EQ(in_->model.contentOf(kFile), kNew);
    checkKeptFiles("without a fault");
    EXPECT_TRUE(isAnywhere(kDamaged));
    EXPECT_EQ(names().size(), 4U) << in_->model.listing(kFolder);
    EXPECT_EQ(in_->model.listing("/private"), "");
    return in_->faulty.calls();
  }

  // Each kept file is an earlier one, or the whole damaged file. If the folder could not be looked
  // through (`isUnseen`), a kept file that is the damaged one by a second name is not recognised,
  // and shows what is written.
  void checkKeptFiles(const std::string& what, bool isUnseen = false) {
    for (const std::string& name : names()) {
      if (!name.starts_with("/folder/f.kept-")) continue;
      const std::string content = in_->model.contentOf(name);
      EXPECT_TRUE(content == kDamaged || content == name || (isUnseen && content == kNew))
          << what << ": " << name << content;
    }
  }

  // A session without faults.
  void checkNextSession(bool mayBeLost, const std::string& what) {
    const bool isUnseen = in_->faulty.faulty() == "list" || in_->faulty.faulty() == "isSameFile";
    in_->model.endPrograms();
    in_->faulty.plan(-1, Fault::None);
    std::string content;
    EXPECT_FALSE(readFile(kFile, content, kAnySize)) << what;
    EXPECT_TRUE(content == kDamaged || content == kNew) << what << ": " << content;
    EXPECT_TRUE(mayBeLost || isAnywhere(kDamaged)) << what << in_->model.listing(kFolder);
    checkKeptFiles(what, isUnseen);
    const OldContent old = content == kDamaged ? OldContent::Keep : OldContent::Drop;
    EXPECT_FALSE(replaceFile(kFile, kNext, old)) << what;
    EXPECT_EQ(in_->model.contentOf(kFile), kNext) << what;
    EXPECT_TRUE(mayBeLost || isAnywhere(kDamaged)) << what << in_->model.listing(kFolder);
    checkKeptFiles(what, isUnseen);
    for (const std::string& name : names()) {
      EXPECT_TRUE(name == kFile || name.starts_with("/folder/f.kept-2")) << what << ": " << name;
    }
    if (old == OldContent::Keep) {
      EXPECT_EQ(names().size(), 4U) << what << in_->model.listing(kFolder);
    }
    EXPECT_EQ(in_->model.listing("/private"), "") << what;
  }

  std::optional<StandIn> in_;
};

constexpr Obstacle kErrors[] = {Obstacle::Other,   Obstacle::Denied, Obstacle::Held,
                                Obstacle::Missing, Obstacle::Exists, Obstacle::Halfway};

TEST_P(KeptFilesFaultsTest, OfOneCallOrAllLoseNothing) {
  const int calls = countCalls();
  for (const Fault fault : {Fault::Fails, Fault::FailsForGood}) {
    for (const Obstacle obstacle : kErrors) {
      for (int call = 0; call < calls; ++call) {
        begin();
        in_->faulty.plan(call, fault, obstacle);
        const std::error_code error = save();
        const std::string what = described(*in_, call) + " fails with " +
                                 std::to_string(static_cast<int>(obstacle)) +
                                 (fault == Fault::Fails ? " once" : " for good");
        const bool mayBeLost = !error && GetParam().needsCopy;
        EXPECT_TRUE(!error || names().size() >= 4) << what << in_->model.listing(kFolder);
        checkNextSession(mayBeLost, what);
        if (HasFailure()) return;
      }
    }
  }
}

// After a failed save, what could be removed again is gone.
TEST_P(KeptFilesFaultsTest, ThatFailTheSaveLeaveTheFolderAsItWas) {
  const int calls = countCalls();
  for (int call = 0; call < calls; ++call) {
    begin();
    in_->faulty.plan(call, Fault::Fails, Obstacle::Other);
    if (!save()) continue;
    EXPECT_EQ(names().size(), 4U) << described(*in_, call) << in_->model.listing(kFolder);
    EXPECT_TRUE(isAnywhere(kOlder[0])) << described(*in_, call);
  }
}

TEST_P(KeptFilesFaultsTest, ThatEndTheProcessLoseNothing) {
  const int calls = countCalls();
  for (const Fault fault : {Fault::EndsBefore, Fault::EndsInside, Fault::EndsAfter}) {
    for (int call = 0; call < calls; ++call) {
      begin();
      in_->faulty.plan(call, fault);
      static_cast<void>(save());
      checkNextSession(false, described(*in_, call) + " is the last");
      if (HasFailure()) return;
    }
  }
}

constexpr unsigned kPowerLosses = 7 * 64;

TEST_P(KeptFilesFaultsTest, ThatTakeThePowerAwayLoseNothing) {
  const int calls = countCalls();
  for (int call = 0; call <= calls; ++call) {
    for (unsigned way = 0; way < kPowerLosses; ++way) {
      begin();
      in_->faulty.plan(call, Fault::EndsInside);
      static_cast<void>(save());
      in_->model.losePower(way);
      checkNextSession(false, described(*in_, call) + ", way " + std::to_string(way));
      if (HasFailure()) return;
    }
  }
}

// Leaves what a process leaves that ends while it writes the file in place.
void tear(ModelFileSystem& system) {
  platform::Patience patience;
  platform::KeptWrite kept(system, patience, Path(kFile));
  platform::OpenFile file(system);
  if (kept.open() || file.open(kFile, OpenFor::Writing)) return;
  EXPECT_FALSE(kept.write(kDamaged, kNext));
  EXPECT_FALSE(file.writeAll(std::string_view(kNext).substr(0, 9)));
}

TEST_P(KeptFilesFaultsTest, PutNothingAsideThatAnotherProcessHasTornMeanwhile) {
  constexpr int kMoreThanAllOpenings = 20;
  for (int opening = 0; opening < kMoreThanAllOpenings; ++opening) {
    begin();
    in_->faulty.plan(-1, Fault::None);
    in_->model.others.beforeOpen = [&, left = opening](const Path&, OpenFor) mutable {
      if (left-- != 0) return;
      tear(in_->model);
    };
    const std::error_code error = save();
    in_->model.others = {};
    checkNextSession(!error && GetParam().needsCopy,
                     "torn before opening " + std::to_string(opening));
    if (HasFailure()) return;
  }
}

TEST(KeptFilesFaultsLongNames, AreNone) {
  for (const bool findsNoLongNames : {false, true}) {
    StandIn in;
    in.model.makeFolder(kFolder);
    in.model.makeFile(kFile, kDamaged);
    in.model.nature.shortNames.insert(kFolder);
    in.model.nature.findsNoLongNames = findsNoLongNames;
    EXPECT_FALSE(replaceFile(kFile, kNew, OldContent::Keep));
    EXPECT_EQ(in.model.contentOf(kFile), kNew);
    EXPECT_EQ(in.model.listing(kFolder), std::string(kFile) + "\n");
  }
}

INSTANTIATE_TEST_SUITE_P(, KeptFilesFaultsTest, testing::ValuesIn(kSettings),
                         [](const auto& setting) { return std::string(setting.param.name); });

}  // namespace
}  // namespace brennet::test
