// Runs of the dialog that do not end, and what the next one does about them. A manager that goes
// out of scope leaves behind what a killed process would.

#include <memory>
#include <string>
#include <vector>

#include "gameside/dota7/Dota7Journal.h"
#include "platform/Checksum.h"
#include "platform/OpenFile.h"
#include "tests/gameside/dota7/Dota7Test.h"

namespace brennet::test {
namespace {

using platform::dwordValue;
using platform::RegFile;

class Dota7JournalTest : public Dota7Test {
 protected:
  Dota7JournalTest() {
    registry.createKey(kDota7Path);
    registry.set(kDota7ControlPath, u"HStopKeyCode", dwordValue('S'));
    registry.set(kDota7ControlPath, u"HStopKey", bytesValue("S"));
    registry.set(kDota7PhrasesPath, u"SOnStartString0", bytesValue("go"));
    before = registry.content();
  }
  ~Dota7JournalTest() override {
    // Where a user has only one registry, journals of a failed test would disturb the next one.
    for (const char number : {'0', '1', '2', '3', '4', '5', '6', '7'}) {
      platform::PrivateFile file;
      const std::string name = nameOf(number);
      if (file.isThere(name) && file.take(name)) static_cast<void>(file.clear());
    }
  }

  static std::string nameOf(char number) {
    std::string name = "dota7-";
    platform::appendDigits(platform::checksum(platform::registryIdentity()), name);
    return name + "-" + number + ".undo";
  }
  static bool isAnyThere() {
    const platform::PrivateFile file;
    for (const char number : {'0', '1', '2', '3', '4', '5', '6', '7'}) {
      if (file.isThere(nameOf(number))) return true;
    }
    return false;
  }

  using Manager = Dota7KeyInfoManager;

  static std::unique_ptr<Manager> newRun() {
    auto begun = std::make_unique<Manager>();
    begun->beginRun();
    begun->settings().load();
    return begun;
  }
  // Changes values that exist and values that do not.
  static void edit(Manager& in, int code = 'T') {
    EXPECT_TRUE(in.settings().storeKey(field(u"edt_HStopKey"), key(code)));
    in.settings().setOn(*findDota7Switch(u"chk_SLegacyKeys"), true);
    in.settings().setPhrase(*findDota7Phrase(u"edt_SOnStartString0"), u"new");
  }

  RegFile before;
};

TEST_F(Dota7JournalTest, AreUndoneByTheNextWhereTheyDidNotEnd) {
  auto run = newRun();
  edit(*run);
  edit(*run, 'U');
  EXPECT_NE(registry.content(), before);
  run.reset();
  EXPECT_TRUE(isAnyThere());
  run = newRun();
  EXPECT_EQ(registry.content(), before);
  EXPECT_EQ(run->settings().key(field(u"edt_HStopKey")), key('S'));
  EXPECT_FALSE(isAnyThere());
}

TEST_F(Dota7JournalTest, AreUndoneByTheNextOfTheSameProcess) {
  manager.beginRun();
  edit(manager);
  manager.beginRun();
  EXPECT_EQ(registry.content(), before);
  EXPECT_FALSE(isAnyThere());
}

TEST_F(Dota7JournalTest, StayWhereTheyWereAccepted) {
  auto run = newRun();
  edit(*run);
  run->acceptChanges();
  EXPECT_FALSE(isAnyThere());
  const RegFile accepted = registry.content();
  EXPECT_NE(accepted, before);
  run = newRun();
  EXPECT_EQ(registry.content(), accepted);
}

TEST_F(Dota7JournalTest, LeaveNothingWhereTheyWereCancelledOrChangedNothing) {
  auto run = newRun();
  edit(*run);
  EXPECT_TRUE(isAnyThere());
  run->cancelChanges();
  EXPECT_FALSE(isAnyThere());
  run->beginRun();
  run->settings().setPhrase(*findDota7Phrase(u"edt_SOnStartString0"), u"go");
  EXPECT_FALSE(isAnyThere());
  run->acceptChanges();
  EXPECT_EQ(registry.content(), before);
}

TEST_F(Dota7JournalTest, LeaveAloneWhatSomebodyElseHasChangedSince) {
  auto run = newRun();
  edit(*run);
  run.reset();
  registry.set(kDota7ControlPath, u"HStopKeyCode", dwordValue('X'));
  run = newRun();
  EXPECT_EQ(control(u"HStopKeyCode"), dwordValue('X'));
  EXPECT_EQ(control(u"HStopKey"), bytesValue("S"));
  EXPECT_EQ(control(u"SLegacyKeys"), std::nullopt);
  EXPECT_EQ(phrases(u"SOnStartString0"), bytesValue("go"));
  EXPECT_FALSE(isAnyThere());
}

TEST_F(Dota7JournalTest, ThatAreUnderWayAreNotUndone) {
  auto run = newRun();
  edit(*run);
  const RegFile edited = registry.content();
  auto other = newRun();
  EXPECT_EQ(registry.content(), edited);
  other->settings().setPhrase(*findDota7Phrase(u"edt_SOnStartString1"), u"other");
  other.reset();  // killed
  run->acceptChanges();
  other = newRun();
  EXPECT_EQ(registry.content(), edited) << "the one that was accepted stays, the other goes";
  EXPECT_FALSE(isAnyThere());
}

TEST_F(Dota7JournalTest, ThatWereKilledTogetherAreUndoneTogether) {
  auto run = newRun();
  auto other = newRun();
  edit(*run);
  other->settings().setPhrase(*findDota7Phrase(u"edt_SOnStartString1"), u"other");
  run.reset();
  other.reset();
  run = newRun();
  EXPECT_EQ(registry.content(), before);
  EXPECT_FALSE(isAnyThere());
}

TEST_F(Dota7JournalTest, ThatCouldNotBeGivenBackAreWhenTheNextBegins) {
  manager.beginRun();
  settings.load();
  edit(manager);
  registry.denyWriting(kDota7ControlPath);
  manager.cancelChanges();
  registry.allowWriting(kDota7ControlPath);
  EXPECT_EQ(control(u"HStopKeyCode"), dwordValue('T'));
  EXPECT_TRUE(isAnyThere());
  manager.beginRun();
  EXPECT_EQ(registry.content(), before);
  EXPECT_FALSE(isAnyThere());
}

// A registry that refuses for a while differs from values that need no undoing.
class Dota7JournalBehindADeniedRun : public Dota7JournalTest {
 protected:
  Dota7JournalBehindADeniedRun() {
    auto killed = newRun();
    edit(*killed);
    killed.reset();
    // The key goes away and comes back, as when somebody restores a part of the registry.
    registry.removeKey(kDota7ControlPath);
    run = newRun();
    EXPECT_EQ(phrases(u"SOnStartString0"), bytesValue("go")) << "that much was possible";
    EXPECT_TRUE(isAnyThere());
    registry.createKey(kDota7ControlPath);
    registry.set(kDota7ControlPath, u"HStopKeyCode", dwordValue('T'));
    registry.set(kDota7ControlPath, u"HStopKey", bytesValue("T"));
    registry.set(kDota7ControlPath, u"SLegacyKeys", dwordValue(1));
    run->refresh();
  }

  std::unique_ptr<Manager> run;
};

TEST_F(Dota7JournalTest, ThatCannotBeUndoneAreSoOneAfterTheOther) {
  auto run = newRun();
  auto other = newRun();
  EXPECT_TRUE(run->settings().storeKey(field(u"edt_HStopKey"), key('T')));
  EXPECT_TRUE(other->settings().storeKey(field(u"edt_HHoldKey"), key('H')));
  run.reset();
  other.reset();
  registry.removeKey(kDota7ControlPath);
  run = newRun();
  registry.set(kDota7ControlPath, u"HStopKeyCode", dwordValue('T'));
  registry.set(kDota7ControlPath, u"HStopKey", bytesValue("T"));
  registry.set(kDota7ControlPath, u"HHoldKeyCode", dwordValue('H'));
  registry.set(kDota7ControlPath, u"HHoldKey", bytesValue("H"));
  run->cancelChanges();
  EXPECT_EQ(control(u"HStopKeyCode"), dwordValue('S'));
  EXPECT_EQ(control(u"HHoldKeyCode"), dwordValue('H')) << "the other one is another run's business";
  run = newRun();
  EXPECT_EQ(registry.content(), before);
  EXPECT_FALSE(isAnyThere());
}

TEST_F(Dota7JournalBehindADeniedRun, GiveBackWhatStoodThereBeforeBoth) {
  edit(*run, 'V');
  run->cancelChanges();
  EXPECT_EQ(registry.content(), before);
  EXPECT_FALSE(isAnyThere());
}

TEST_F(Dota7JournalBehindADeniedRun, ConfirmWhatThePlayerHasSeen) {
  run->settings().setPhrase(*findDota7Phrase(u"edt_SOnStartString0"), u"newer");
  run->acceptChanges();
  const RegFile accepted = registry.content();
  EXPECT_EQ(control(u"HStopKeyCode"), dwordValue('T'));
  EXPECT_FALSE(isAnyThere());
  run = newRun();
  EXPECT_EQ(registry.content(), accepted);
}

TEST_F(Dota7JournalBehindADeniedRun, LeaveBothToTheNextWhereTheyAreKilled) {
  edit(*run, 'V');
  run = nullptr;
  run = newRun();
  EXPECT_EQ(registry.content(), before);
  EXPECT_FALSE(isAnyThere());
}

TEST_F(Dota7JournalTest, PassOverAJournalThatIsDamaged) {
  auto run = newRun();
  edit(*run);
  run.reset();
  const RegFile edited = registry.content();
  {
    platform::PrivateFile file;
    ASSERT_TRUE(file.take(nameOf('0')));
    EXPECT_FALSE(file.write("damaged"));
  }
  run = newRun();
  EXPECT_EQ(registry.content(), edited);
  EXPECT_FALSE(isAnyThere());
  edit(*run, 'U');
  run->cancelChanges();
  EXPECT_EQ(registry.content(), edited);
}

TEST_F(Dota7JournalTest, AreLeftToALaterOneWhereTheJournalCannotBeRead) {
  auto run = newRun();
  edit(*run);
  run.reset();
  const RegFile edited = registry.content();
  {
    platform::FileSystem& system = platform::operatingSystem();
    platform::OpenFile file(system);
    ASSERT_FALSE(file.open(system.privateFolder() / nameOf('0'), platform::OpenFor::Writing));
    ASSERT_FALSE(file.lock(platform::Sharing::Alone));
    run = newRun();
    EXPECT_EQ(registry.content(), edited);
  }
  run = newRun();
  EXPECT_EQ(registry.content(), before);
  EXPECT_FALSE(isAnyThere());
}

TEST_F(Dota7JournalTest, HaveOneJournalForAllThatAResetChanges) {
  auto run = newRun();
  edit(*run);
  run->settings().reset();
  run.reset();
  run = newRun();
  EXPECT_EQ(registry.content(), before);
}

TEST_F(Dota7JournalTest, HaveEightJournalsAtOnce) {
  std::vector<std::unique_ptr<Manager>> runs;
  for (const char number : {'0', '1', '2', '3', '4', '5', '6', '7'}) {
    const std::u16string name =
        u"edt_SOnStartString" + std::u16string(1, static_cast<char16_t>(number));
    EXPECT_FALSE(platform::PrivateFile().isThere(nameOf(number))) << number;
    runs.push_back(newRun());
    runs.back()->settings().setPhrase(*findDota7Phrase(name), u"new");
    EXPECT_TRUE(platform::PrivateFile().isThere(nameOf(number))) << number;
  }
  runs.clear();
  runs.push_back(newRun());
  EXPECT_EQ(registry.content(), before);
  EXPECT_FALSE(isAnyThere());
}

TEST_F(Dota7JournalTest, HaveNoJournalBeforeThereIsAnythingToUndo) {
  Dota7Change change;
  change.keyPath = kDota7ControlPath;
  change.valueName = u"HStopKeyCode";
  change.value = 'S';  // the current one
  manager.writeValue(change);
  EXPECT_FALSE(isAnyThere());
  change.value = 'T';
  manager.writeValue(change);
  EXPECT_TRUE(isAnyThere());
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

TEST_F(Dota7JournalTest, ChangeValuesAlsoWhereThereIsNoRoomForAJournal) {
  platform::PrivateFile files[8];
  for (int i = 0; i < 8; ++i) ASSERT_TRUE(files[i].take(nameOf(static_cast<char>('0' + i))));
  manager.writeValue([] {
    Dota7Change change;
    change.keyPath = kDota7ControlPath;
    change.valueName = u"HStopKeyCode";
    change.value = 'Y';
    return change;
  }());
  EXPECT_EQ(control(u"HStopKeyCode"), dwordValue('Y'));
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

}  // namespace
}  // namespace brennet::test
