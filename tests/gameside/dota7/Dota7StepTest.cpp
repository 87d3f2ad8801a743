// What a player changed in one step, undone and done again.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/gameside/dota7/Dota7Test.h"

namespace brennet::test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class Dota7StepTest : public Dota7Test {
 protected:
  Dota7StepTest() {
    registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
    registry.set(kDota7ControlPath, u"HStopKey", bytesValue("odd \xFF"));
    manager.beginRun();
    settings.load();
  }

  void press(int code) { ASSERT_TRUE(settings.storeKey(stop_, key(code))); }

  const Dota7KeyField& stop_ = field(u"edt_HStopKey");
};

TEST_F(Dota7StepTest, IsWhatWasWrittenSinceTheLast) {
  EXPECT_THAT(manager.takeStep(), IsEmpty());
  press('Q');
  const Dota7Step step = manager.takeStep();
  ASSERT_THAT(step, SizeIs(2));
  const auto& code = step.at({std::u16string(kDota7ControlPath), u"HStopKeyCode"});
  EXPECT_EQ(code, (Dota7Edit{platform::dwordValue('S'), platform::dwordValue('Q')}));
  EXPECT_THAT(manager.takeStep(), IsEmpty());
}

TEST_F(Dota7StepTest, IsOneForChangesOfOneValue) {
  press('Q');
  press('W');
  const Dota7Step step = manager.takeStep();
  const auto& code = step.at({std::u16string(kDota7ControlPath), u"HStopKeyCode"});
  EXPECT_EQ(code, (Dota7Edit{platform::dwordValue('S'), platform::dwordValue('W')}));
}

TEST_F(Dota7StepTest, LeavesOutWhatIsAgainAsItWas) {
  press('Q');
  static_cast<void>(manager.takeStep());
  press('W');
  press('Q');
  EXPECT_THAT(manager.takeStep(), IsEmpty());
}

TEST_F(Dota7StepTest, IsUndoneToTheByteAndDoneAgain) {
  const platform::RegFile before = registry.content();
  press('Q');
  const platform::RegFile after = registry.content();
  const Dota7Step step = manager.takeStep();
  manager.undo(step);
  EXPECT_EQ(registry.content(), before);
  EXPECT_EQ(settings.key(stop_), key('S'));
  EXPECT_THAT(manager.takeStep(), IsEmpty()) << "an undo is no further step";
  manager.redo(step);
  EXPECT_EQ(registry.content(), after);
  EXPECT_EQ(settings.key(stop_), key('Q'));
}

TEST_F(Dota7StepTest, RemovesValuesThatWereNotThere) {
  const platform::RegFile before = registry.content();
  const Dota7KeyField& move = field(u"edt_HMoveKeyC");
  ASSERT_TRUE(settings.storeKey(move, key('M')));
  settings.setOn(dota7Switches().front(), true);
  settings.setPhrase(dota7Phrases().front(), u"gg");
  const Dota7Step step = manager.takeStep();
  EXPECT_THAT(step, SizeIs(4));
  manager.undo(step);
  EXPECT_EQ(registry.content(), before);
  manager.redo(step);
  EXPECT_EQ(settings.key(move), key('M'));
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

TEST_F(Dota7StepTest, ThatIsUndoneIsNotWrittenWhenThePlayerAccepts) {
  const platform::RegFile before = registry.content();
  press('Q');
  manager.undo(manager.takeStep());
  manager.acceptChanges();
  EXPECT_EQ(registry.content(), before);
}

TEST_F(Dota7StepTest, CanBeCancelledAfterEach) {
  const platform::RegFile before = registry.content();
  press('Q');
  const Dota7Step first = manager.takeStep();
  press('W');
  manager.undo(manager.takeStep());
  EXPECT_EQ(settings.key(stop_), key('Q'));
  manager.undo(first);
  manager.redo(first);
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

TEST_F(Dota7StepTest, EndsWithTheRun) {
  press('Q');
  manager.acceptChanges();
  EXPECT_THAT(manager.takeStep(), IsEmpty());
}

// As another process may have written there in the meantime.
TEST_F(Dota7StepTest, IsUndoneOverWhatSomebodyElseWrote) {
  press('Q');
  const Dota7Step step = manager.takeStep();
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('X'));
  manager.undo(step);
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue('S'));
}

TEST_F(Dota7StepTest, IsSurvivedByTheSettingsAsTheyWere) {
  press('Q');
  settings.setOn(dota7Switches().front(), true);
  settings.setPhrase(dota7Phrases().front(), u"gg");
  static_cast<void>(manager.takeStep());
  const Dota7Settings before = manager.settingsBefore();
  EXPECT_EQ(before.key(stop_), key('S'));
  EXPECT_FALSE(before.isOn(dota7Switches().front()));
  EXPECT_EQ(before.phrase(dota7Phrases().front()), u"");
  EXPECT_EQ(settings.key(stop_), key('Q')) << "what is shown stays";
}

TEST_F(Dota7StepTest, DoesNotCountWhatOthersChanged) {
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('X'));
  EXPECT_EQ(manager.settingsBefore().key(stop_), key('X'));
}

TEST_F(Dota7StepTest, IsAlsoOfTheQuickCastKeys) {
  settings.setCast(Dota7Cast::Quick);
  const Dota7KeyField& move = field(u"edt_HMoveKeyC");
  ASSERT_TRUE(settings.storeKey(move, key('M')));
  const Dota7Settings before = manager.settingsBefore();
  EXPECT_EQ(before.cast(), Dota7Cast::Quick);
  EXPECT_EQ(before.key(move), key(0));
}

}  // namespace
}  // namespace brennet::test
