// What the tool tips of the buttons say about a step.

#include "ui/history/StepText.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "tests/gameside/dota7/Dota7Test.h"
#include "ui/history/EditHistory.h"

namespace brennet::test {
namespace {

class UndoStepText : public Dota7Test {
 protected:
  UndoStepText() {
    EXPECT_TRUE(
        english_.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&english_);
    registry.set(kDota7ControlPath, u"HPatrolKeyCodeC", platform::dwordValue('P'));
    manager.beginRun();
    settings.load();
  }

  std::string noted(const QString& title = {}) {
    EXPECT_TRUE(history.note(title));
    return stepText(*history.undoable()).toStdString();
  }

  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme(0);
  EditHistory history{config, manager};

 private:
  QTranslator english_;
};

TEST_F(UndoStepText, SaysWhatAValueWasAndIs) {
  scheme.HeroSkillKey[0] = KeyWord('Q', KeyWord::kAlt);
  EXPECT_EQ(noted(), "Hero skill 1: none → Alt + Q");
  scheme.HeroSkillKey[0] = kNoKey;
  EXPECT_EQ(noted(), "Hero skill 1: Alt + Q → none");
}

TEST_F(UndoStepText, HasALineForEachChange) {
  scheme.ShowFManaFlag = 1;
  scheme.ShowFBloodFlag = 1;
  EXPECT_EQ(noted(), "Show ally health bars: off → on\nShow ally mana (DotA): off → on");
}

TEST_F(UndoStepText, CountsWhatIsTooMuch) {
  for (auto& mark : scheme.HeroSkillAutocast) mark = true;
  const std::string text = noted();
  EXPECT_EQ(text.find("Hero skill 1: quick cast: off → on\n"), 0U) << text;
  EXPECT_NE(text.find("\nHero skill 4: quick cast: off → on\nand 8 more"), std::string::npos)
      << text;
}

TEST_F(UndoStepText, BeginsWithTheTitle) {
  scheme.HideUI = 1;
  EXPECT_EQ(noted(QStringLiteral("Clear settings")),
            "Clear settings\nHide in-game buttons: off → on");
}

TEST_F(UndoStepText, NamesTheGroupsAndTheMainSwitch) {
  config.setIndex(2);
  EXPECT_EQ(noted(), "Setting group: 1 → 3");
  config.setIndex(9);
  EXPECT_EQ(noted(), "Setting group: 3 → none");
  config.setEnable(true);
  EXPECT_EQ(noted(), "Use hotkeys: off → on");
}

TEST_F(UndoStepText, IsEmptyForWhatNobodySees) {
  scheme.QuickChat[0].emplace();
  EXPECT_FALSE(history.note());
}

// Long texts are shortened, and spaces are put together.
TEST_F(UndoStepText, NamesWhatLooksTheSame) {
  scheme.QuickChat[0] = u"all middle missing, go back now";
  EXPECT_TRUE(history.note());
  scheme.QuickChat[0] = u"all middle missing, go back soon";
  EXPECT_EQ(noted(), "Quick-chat phrase 1");
  scheme.QuickChat[0] = u"go b";
  EXPECT_TRUE(history.note());
  scheme.QuickChat[0] = u"go  b ";
  EXPECT_EQ(noted(), "Quick-chat phrase 1");
  settings.setPhrase(dota7Phrases()[0], u"all middle missing, go back now");
  EXPECT_TRUE(history.note());
  settings.setPhrase(dota7Phrases()[0], u"all middle missing, go back soon");
  EXPECT_EQ(noted(), "Quick chat 1");
}

TEST_F(UndoStepText, NamesKeysOfDota7) {
  ASSERT_TRUE(settings.storeKey(field(u"edt_HStopKey"), key('S', Dota7Key::kAlt)));
  EXPECT_EQ(noted(), "Stop: none → ALT + S");
  settings.setCast(Dota7Cast::Quick);
  ASSERT_TRUE(settings.storeKey(field(u"edt_HMoveKeyC"), key('M')));
  EXPECT_EQ(noted(), "Move (quick cast): none → M");
}

TEST_F(UndoStepText, LeavesOutWhatReadsTheSame) {
  settings.setOn(dota7Switches()[0], false);
  settings.setPhrase(dota7Phrases()[0], u"", true);
  settings.clearKey(field(u"edt_HHoldKey"));
  EXPECT_FALSE(history.note()) << "values that were missing are empty now";
}

// As where the text of a key was damaged, but not its code.
TEST_F(UndoStepText, NamesAKeyOfWhichOnlyTheCodeHasChanged) {
  registry.set(kDota7ControlPath, u"HPatrolKeyC", bytesValue(" Q"));
  settings.load();
  ASSERT_TRUE(settings.storeKey(field(u"edt_HPatrolKeyC"), key('Q')));
  EXPECT_EQ(noted(), "Patrol");
}

TEST_F(UndoStepText, NamesSwitchesAndPhrasesOfDota7) {
  settings.setOn(dota7Switches()[3], true);
  EXPECT_EQ(noted(), "Double click casts automatically: off → on");
  settings.setPhrase(dota7Phrases()[0], u"go\u4E2D");
  settings.setPhrase(dota7Phrases()[15], u"glhf");
  EXPECT_EQ(noted(), "Quick chat 1: none → “go中”\nMessage 1 at the start: none → “glhf”");
}

}  // namespace
}  // namespace brennet::test
