// Whole runs of the dialog on the DotA 7 values, in which any system call fails, or is the last one
// of the process or of the machine. The registry is a file here, which uses the same calls as the
// journal.

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "platform/Files.h"
#include "platform/RegFile.h"
#include "platform/posix/RegistryPath.h"
#include "tests/faults/StandIn.h"
#include "tests/support/FaultPoints.h"
#include "tests/support/ScopedRegistry.h"

namespace brennet::test {
namespace {

using platform::RegFile;

struct Place {
  const char* name;
  void (*prepare)(ModelFileSystem& system, const Path& registry);

  friend void PrintTo(const Place& place, std::ostream* out) { *out << place.name; }
};

const Place kPlaces[] = {
    {"Usual", [](ModelFileSystem&, const Path&) {}},
    {"InTwoSteps", [](ModelFileSystem& s, const Path&) { s.nature.twoSteps = true; }},
    {"NothingNew", [](ModelFileSystem& s,
                      const Path& registry) { s.nature.closedFolders = {registry.parent_path()}; }},
};

using Manager = Dota7KeyInfoManager;

// Existing values, one of another type and length than it should have; some are missing.
RegFile registryOfAPlayer() {
  RegFile content;
  content.createKey(below(kDota7ControlPath));
  content.createKey(below(kDota7PhrasesPath));
  content.set(below(kDota7ControlPath), u"HStopKeyCode", platform::dwordValue('S'));
  content.set(below(kDota7ControlPath), u"HStopKey", {platform::kRegistryBinary, "S"});
  content.set(below(kDota7ControlPath), u"SLegacyKeys", {platform::kRegistryText, "odd"});
  content.set(below(kDota7PhrasesPath), u"SOnStartString3", {platform::kRegistryBinary, "go"});
  content.set(below(kDota7PhrasesPath), u"Another", platform::dwordValue(7));
  return content;
}

// What a player does in one run: changes values that exist and values that do not, one of them
// twice, and undoes all of it, does it again, and goes on.
void edit(Manager& manager) {
  Dota7Settings& settings = manager.settings();
  settings.load();
  EXPECT_TRUE(settings.storeKey(*findDota7KeyField(u"edt_HStopKey"), {'T', Dota7Key::kAlt}));
  settings.setOn(*findDota7Switch(u"chk_SLegacyKeys"), true);
  EXPECT_TRUE(settings.storeKey(*findDota7KeyField(u"edt_HStopKey"), {'U', Dota7Key::kCtrl}));
  const Dota7Step step = manager.takeStep();
  manager.undo(step);
  manager.redo(step);
  settings.setPhrase(*findDota7Phrase(u"edt_SOnStartString3"), u"");
  settings.setPhrase(*findDota7Phrase(u"edt_SQuickChatString0"), u"hello", true);
}

enum class End { Accept, Cancel };

class RegistryFaults : public testing::TestWithParam<Place> {
 protected:
  // A player's registry, and a process without a fault as yet.
  void begin() {
    manager_.reset();
    in_.reset();
    in_.emplace();
    file_ = platform::registryPath();
    in_->model.makeFolder(file_.parent_path());
    in_->model.makeFile(file_, registryOfAPlayer().serialize());
    GetParam().prepare(in_->model, file_);
    manager_ = std::make_unique<Manager>();
  }

  void run(End end) {
    manager_->beginRun();
    edit(*manager_);
    finish(end);
  }
  void finish(End end) {
    if (end == End::Accept) {
      manager_->acceptChanges();
    } else {
      manager_->cancelChanges();
    }
  }

  // The process ends at once, and another one begins.
  void endProcess() {
    in_->faulty.plan(0, Fault::EndsBefore);
    in_->faulty.removeFolder({});
    manager_.reset();
    in_->model.endPrograms();
    in_->faulty.plan(-1, Fault::None);
    manager_ = std::make_unique<Manager>();
  }

  RegFile content() {
    std::string bytes;
    EXPECT_FALSE(platform::readFile(file_, bytes, platform::kAnySize));
    RegFile content;
    EXPECT_TRUE(content.merge(bytes));
    return content;
  }

  // Finds out what the registry becomes without a fault, and how many calls that takes.
  int countCalls(End end) {
    begin();
    in_->faulty.plan(-1, Fault::None);
    run(end);
    const int calls = in_->faulty.calls();
    confirmed_ = content();
    EXPECT_EQ(confirmed_ == old_, end == End::Cancel);
    return calls;
  }

  // The next opening must find the old values, or the confirmed ones.
  void checkNextRun(const RegFile& confirmed, const std::string& what) {
    endProcess();
    manager_->beginRun();
    const RegFile found = content();
    if (found != confirmed) {
      EXPECT_EQ(found, old_) << what;
    }
    checkWholeRun(what);
  }

  // Nothing may take effect later, and one whole run must leave nothing behind.
  void checkWholeRun(const std::string& what) {
    const RegFile found = content();
    edit(*manager_);
    manager_->cancelChanges();
    EXPECT_EQ(content(), found) << what;
    EXPECT_EQ(in_->model.listing("/private"), "") << what;
    EXPECT_EQ(in_->model.listing(file_.parent_path()), file_.generic_string() + "\n") << what;
  }

  ScopedRegistry registry_;
  Path file_;
  std::optional<StandIn> in_;
  std::unique_ptr<Manager> manager_;
  const RegFile old_ = registryOfAPlayer();
  RegFile confirmed_;
};

constexpr long kSomeCalls = 40;
constexpr End kEnds[] = {End::Accept, End::Cancel};

TEST_P(RegistryFaults, ThatEndTheProcessLeaveTheOldOrTheConfirmedValues) {
  for (const End end : kEnds) {
    const int calls = countCalls(end);
    for (const Fault fault : {Fault::EndsBefore, Fault::EndsInside, Fault::EndsAfter}) {
      for (const long call : faultPoints(calls, kSomeCalls)) {
        begin();
        in_->faulty.plan(static_cast<int>(call), fault);
        run(end);
        checkNextRun(confirmed_, described(*in_, static_cast<int>(call)));
        if (HasFailure()) return;
      }
    }
  }
}

TEST_P(RegistryFaults, OfACancelledRunLeaveTheOldValues) {
  const int calls = countCalls(End::Cancel);
  for (const Fault fault : {Fault::Fails, Fault::FailsForGood}) {
    for (const Obstacle obstacle : {Obstacle::Other, Obstacle::Denied}) {
      for (const long call : faultPoints(calls, kSomeCalls)) {
        begin();
        in_->faulty.plan(static_cast<int>(call), fault, obstacle);
        run(End::Cancel);
        checkNextRun(old_, described(*in_, static_cast<int>(call)) +
                               (fault == Fault::Fails ? " once" : " for good"));
        if (HasFailure()) return;
      }
    }
  }
}

// What could not be written is not confirmed either. One failure does not undo what was confirmed.
TEST_P(RegistryFaults, OfAnAcceptedRunLeaveWhatWasWritten) {
  const int calls = countCalls(End::Accept);
  for (const Fault fault : {Fault::Fails, Fault::FailsForGood}) {
    for (const Obstacle obstacle : {Obstacle::Other, Obstacle::Denied}) {
      for (const long call : faultPoints(calls, kSomeCalls)) {
        begin();
        in_->faulty.plan(static_cast<int>(call), fault, obstacle);
        run(End::Accept);
        in_->faulty.plan(-1, Fault::None);
        const RegFile written = content();
        const std::string what = described(*in_, static_cast<int>(call));
        checkNextRun(written, what);
        if (fault == Fault::Fails) {
          EXPECT_EQ(content(), written) << what;
        }
        if (HasFailure()) return;
      }
    }
  }
}

constexpr long kPowerLosses = 7 * 64;
constexpr long kSomePowerLosses = 8;

TEST_P(RegistryFaults, ThatTakeThePowerAwayLeaveTheOldOrTheConfirmedValues) {
  for (const End end : kEnds) {
    const int calls = countCalls(end);
    for (const long call : faultPoints(calls + 1, kSomeCalls)) {
      for (const long way : faultPoints(kPowerLosses, kSomePowerLosses)) {
        begin();
        in_->faulty.plan(static_cast<int>(call), Fault::EndsAfter);
        run(end);
        const std::string what =
            described(*in_, static_cast<int>(call)) + ", way " + std::to_string(way);
        in_->faulty.plan(0, Fault::EndsBefore);
        in_->model.losePower(static_cast<unsigned>(way));
        checkNextRun(confirmed_, what);
        if (call == calls) {
          EXPECT_EQ(content(), confirmed_) << "what was confirmed stays; " << what;
        }
        if (HasFailure()) return;
      }
    }
  }
}

// The next run is disturbed as well: while it undoes what it found, and with some faults until its
// end.
TEST_P(RegistryFaults, OfTheNextRunLeaveTheOldValuesToTheOneBehindIt) {
  begin();
  manager_->beginRun();
  edit(*manager_);
  endProcess();
  in_->faulty.plan(-1, Fault::None);
  manager_->beginRun();
  const int calls = in_->faulty.calls();
  for (const Fault fault : {Fault::Fails, Fault::FailsForGood, Fault::EndsBefore, Fault::EndsInside,
                            Fault::EndsAfter}) {
    for (const long call : faultPoints(calls, kSomeCalls)) {
      for (const End end : kEnds) {
        begin();
        manager_->beginRun();
        edit(*manager_);
        endProcess();
        in_->faulty.plan(static_cast<int>(call), fault);
        manager_->beginRun();
        finish(end);
        const bool isSeen = end == End::Accept && !in_->faulty.hasEnded();
        const std::string what = described(*in_, static_cast<int>(call));
        in_->faulty.plan(-1, Fault::None);
        checkNextRun(isSeen ? content() : old_, what);
        if (HasFailure()) return;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, RegistryFaults, testing::ValuesIn(kPlaces),
                         [](const auto& place) { return std::string(place.param.name); });

}  // namespace
}  // namespace brennet::test
