// Steps, undone and done again, without a window.

#include "ui/history/EditHistory.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <variant>

#include "model/KeySlot.h"
#include "model/SettingTable.h"
#include "tests/gameside/dota7/Dota7Test.h"

namespace brennet::test {
namespace {

class OpenedSettings : public Dota7Test {
 protected:
  OpenedSettings() {
    config.editableScheme(0)->HeroSkillKey[0] = KeyWord('Q', 0);
    manager.beginRun();
    settings.load();
  }

  HotkeyConfig config;
};

class UndoHistory : public OpenedSettings {
 protected:
  EditHistory history{config, manager};
};

TEST_F(UndoHistory, IsEmptyAtFirst) {
  EXPECT_FALSE(history.note());
  EXPECT_EQ(history.undoable(), nullptr);
  EXPECT_EQ(history.redoable(), nullptr);
  EXPECT_EQ(history.undo(), nullptr);
  EXPECT_EQ(history.redo(), nullptr);
}

TEST_F(UndoHistory, HasAStepForWhatChangedSinceTheLast) {
  config.editableScheme(0)->HeroSkillKey[0] = KeyWord('W', 0);
  config.editableScheme(0)->HideUI = 1;
  EXPECT_TRUE(history.note());
  EXPECT_FALSE(history.note());
  config.setEnable(true);
  EXPECT_TRUE(history.note());
  ASSERT_NE(history.undo(), nullptr);
  EXPECT_FALSE(config.enable());
  EXPECT_EQ(config.scheme(0).HeroSkillKey[0], KeyWord('W', 0));
  ASSERT_NE(history.undo(), nullptr);
  EXPECT_EQ(config.scheme(0).HeroSkillKey[0], KeyWord('Q', 0));
  EXPECT_EQ(config.scheme(0).HideUI, 0);
  EXPECT_EQ(history.undo(), nullptr);
  ASSERT_NE(history.redo(), nullptr);
  ASSERT_NE(history.redo(), nullptr);
  EXPECT_TRUE(config.enable());
  EXPECT_EQ(history.redo(), nullptr);
}

// What players cannot see differs in the file all the same: it goes with the step before it, or
// with the first one.
TEST_F(UndoHistory, BringsBackWhatWasNeverSet) {
  HotkeyScheme& scheme = *config.editableScheme(0);
  scheme.QuickChat[0].emplace();
  EXPECT_FALSE(history.note()) << "there is nothing to see";
  scheme.LockMouseFlag = 1;
  EXPECT_TRUE(history.note());
  scheme.HeroSkillAutocast[0] = false;
  EXPECT_FALSE(history.note());
  ASSERT_NE(history.undo(), nullptr);
  EXPECT_FALSE(scheme.QuickChat[0].has_value());
  EXPECT_FALSE(scheme.HeroSkillAutocast[0].has_value());
  ASSERT_NE(history.redo(), nullptr);
  EXPECT_TRUE(scheme.QuickChat[0].has_value());
  EXPECT_TRUE(scheme.HeroSkillAutocast[0].has_value());
}

TEST_F(UndoHistory, MakesNoStepOfWhatNobodySees) {
  config.setEnable(true);
  ASSERT_TRUE(history.note());
  ASSERT_NE(history.undo(), nullptr);
  config.editableScheme(0)->QuickChat[0].emplace();
  EXPECT_FALSE(history.note());
  EXPECT_EQ(history.undoable(), nullptr);
  ASSERT_NE(history.redo(), nullptr) << "what was undone can still be done again";
  EXPECT_TRUE(config.enable());
}

TEST_F(UndoHistory, IsNotNotedFirst) {
  config.setEnable(true);
  ASSERT_NE(history.undo(), nullptr) << "what was not noted yet is a step";
  EXPECT_FALSE(config.enable());
}

TEST_F(UndoHistory, LosesWhatCouldBeDoneAgainByAnotherStep) {
  config.setEnable(true);
  history.note();
  history.undo();
  config.setIndex(2);
  EXPECT_EQ(history.redo(), nullptr);
  EXPECT_TRUE(history.redoable() == nullptr);
  EXPECT_EQ(config.index(), 2U);
}

TEST_F(UndoHistory, KnowsTheGroupOfEachStep) {
  config.setIndex(7);
  history.note();
  config.setIndex(1);
  history.note();
  config.editableScheme()->HideUI = 1;
  history.note();
  history.undo();
  EXPECT_EQ(config.index(), 1U);
  EXPECT_EQ(config.scheme(1).HideUI, 0);
  history.undo();
  EXPECT_EQ(config.index(), 7U);
}

TEST_F(UndoHistory, HasStepsOfTheRegistry) {
  const Dota7KeyField& stop = field(u"edt_HStopKey");
  const platform::RegFile before = registry.content();
  ASSERT_TRUE(settings.storeKey(stop, key('S')));
  config.editableScheme(0)->ChatWheelkey = KeyWord('C', 0);
  EXPECT_TRUE(history.note());
  EXPECT_TRUE(history.undoable()->isDota7());
  history.undo();
  EXPECT_EQ(registry.content(), before);
  EXPECT_EQ(config.scheme(0).ChatWheelkey, kNoKey);
  history.redo();
  EXPECT_EQ(settings.key(stop), key('S'));
  EXPECT_EQ(config.scheme(0).ChatWheelkey, KeyWord('C', 0));
}

// A field shows the key of the cast mode in which the step was made.
TEST_F(UndoHistory, BringsBackTheCastMode) {
  const Dota7KeyField& move = field(u"edt_HMoveKeyC");
  settings.setCast(Dota7Cast::Quick);
  EXPECT_FALSE(history.note()) << "the cast mode is stored nowhere";
  ASSERT_TRUE(settings.storeKey(move, key('M')));
  history.note();
  settings.reset();
  history.note();
  EXPECT_EQ(settings.cast(), Dota7Cast::Normal);
  history.undo();
  EXPECT_EQ(settings.cast(), Dota7Cast::Quick);
  EXPECT_EQ(settings.key(move), key('M'));
  settings.setCast(Dota7Cast::Normal);
  history.undo();
  EXPECT_EQ(settings.cast(), Dota7Cast::Quick);
  EXPECT_EQ(settings.key(move), key(0));
  history.redo();
  history.redo();
  EXPECT_EQ(settings.cast(), Dota7Cast::Normal);
}

TEST_F(UndoHistory, RemembersHowEachGroupWas) {
  config.setIndex(1);
  config.editableScheme(0)->HeroSkillKey[0] = kNoKey;
  EXPECT_EQ(history.openingScheme(), HotkeyScheme());
  config.setIndex(0);
  EXPECT_EQ(history.openingScheme().HeroSkillKey[0], KeyWord('Q', 0));
  config.setIndex(9);
  EXPECT_EQ(history.openingScheme(), HotkeyScheme());
}

TEST_F(UndoHistory, SharesTheSchemesThatStay) {
  config.editableScheme(0)->HideUI = 1;
  history.note();
  const EditStep& step = *history.undoable();
  EXPECT_NE(step.before.schemes[0], step.after.schemes[0]);
  EXPECT_EQ(step.before.schemes[1], step.after.schemes[1]);
}

// Changes as no window makes them, ten thousand times, with undo and redo in between.
class UndoHistorySessions : public OpenedSettings {
 protected:
  static constexpr unsigned kSessions = 10'000;
  static constexpr int kMostChanges = 8;
  static constexpr unsigned kDota7Sessions = 100;  // the registry may be a file

  int number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }

  void changeScheme(HotkeyScheme& scheme) {
    const auto id = static_cast<SettingId>(number(static_cast<int>(kSettingCount)));
    const auto value = static_cast<std::uint8_t>(number(3));
    if (const std::size_t keys = keyCount(id); keys != 0) {
      const auto index = static_cast<std::uint8_t>(number(static_cast<int>(keys)));
      storeKey(scheme, {id, index}, KeyWord(value, KeyWord::kAlt));
    }
    if (const auto* const row = std::get_if<SwitchSetting>(&setting(id).kind)) {
      scheme.*row->field = value;
    }
    if (const auto* const row = std::get_if<PhraseSetting>(&setting(id).kind)) {
      auto& phrase = (scheme.*row->field)[static_cast<std::size_t>(number(kPhrases))];
      phrase.reset();
      if (value != 0) phrase.emplace(value - 1U, u'x');
    }
    auto& mark = scheme.HeroSkillAutocast[static_cast<std::size_t>(number(kHeroSkills))];
    mark = value == 0 ? std::nullopt : std::optional(value == 1);
  }

  void changeDota7() {
    const auto& fields = dota7KeyFields();
    const Dota7KeyField& row = fields[static_cast<std::size_t>(number(4))];
    if (number(3) == 0) settings.setCast(number(2) == 0 ? Dota7Cast::Quick : Dota7Cast::Normal);
    if (number(9) == 0) return settings.reset();
    if (number(2) == 0) return settings.clearKey(row);
    static_cast<void>(settings.storeKey(row, key('A' + number(5))));
  }

  void change(bool dota7Too) {
    switch (number(dota7Too ? 8 : 6)) {
      case 0:
        return config.setEnable(number(2) == 0);
      case 1:
        static_cast<void>(config.setIndex(static_cast<std::uint32_t>(number(11))));
        return;
      case 2:
        static_cast<void>(number(2) == 0 ? history.undo() : history.redo());
        return;
      case 3:
      case 4:
      case 5:
        return changeScheme(*config.editableScheme(number(HotkeyConfig::kSchemes)));
      default:
        return changeDota7();
    }
  }

  // All that steps can change.
  struct State {
    bool enable;
    std::uint32_t index;
    std::array<HotkeyScheme, HotkeyConfig::kSchemes> schemes;

    friend bool operator==(const State&, const State&) = default;
  };
  [[nodiscard]] State state() const {
    return {
        config.enable(), config.index(), {config.scheme(0), config.scheme(1), config.scheme(2)}};
  }

  EditHistory history{config, manager};
  std::mt19937 random_;
};

TEST_F(UndoHistorySessions, LeadBackToTheOpeningState) {
  const State opening = state();
  const platform::RegFile openingRegistry = registry.content();
  for (unsigned session = 0; session < kSessions; ++session) {
    SCOPED_TRACE(session);
    random_.seed(session);
    const bool playsDota7 = session < kDota7Sessions;
    for (int changes = number(kMostChanges); changes >= 0; --changes) {
      change(playsDota7);
      if (number(3) != 0) history.note();
    }
    history.note();
    const bool isLast = history.redoable() == nullptr;
    const State closing = state();
    while (history.undo() != nullptr) continue;
    ASSERT_TRUE(state() == opening);
    while (history.redo() != nullptr) continue;
    ASSERT_TRUE(!isLast || state() == closing);
    while (history.undo() != nullptr) continue;
    ASSERT_TRUE(state() == opening);
    if (playsDota7) {
      ASSERT_EQ(registry.content(), openingRegistry);
    }
  }
}

}  // namespace
}  // namespace brennet::test
