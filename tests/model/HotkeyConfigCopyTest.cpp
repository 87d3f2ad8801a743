// Resetting, assigning and exchanging configurations.

#include <gtest/gtest.h>

#include "markup/MarkupDocument.h"
#include "model/HotkeyConfig.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;

HotkeyConfig changedConfig() {
  HotkeyConfig config;
  config.setEnable(true);
  config.setIndex(2);
  for (int n = 0; n < HotkeyConfig::kSchemes; ++n) {
    HotkeyScheme& scheme = *config.editableScheme(n);
    scheme.HeroSkillKey[static_cast<std::size_t>(n)] = kQ;
    scheme.HeroSkillAutocast[3] = true;
    scheme.ItemAutocast[4] = false;
    scheme.NumComboKeyIndex = 2;
    scheme.QuickChat[1] = u"gg";
    scheme.ChatWheel[1] = u"wp";
    scheme.DisableLeftAlt = 1;
    scheme.DisableLeftAltShowHP = 1;
    scheme.HideUI = 1;
    scheme.ZoomValue = 130;
  }
  return config;
}

TEST(HotkeyConfigCopyReset, LeavesThreeFieldsAndTheMarksAlone) {
  HotkeyConfig config = changedConfig();
  config.markBlockBuilt();
  config.Reset();
  EXPECT_FALSE(config.enable());
  EXPECT_EQ(config.index(), 0U);
  EXPECT_FALSE(config.blockBuilt());
  for (int n = 0; n < HotkeyConfig::kSchemes; ++n) {
    HotkeyScheme expected;
    expected.QuickChat[1] = u"gg";
    expected.DisableLeftAlt = 1;
    expected.DisableLeftAltShowHP = 1;
    expected.HeroSkillAutocast[3] = true;
    expected.ItemAutocast[4] = false;
    EXPECT_EQ(config.scheme(n), expected);
  }
}

TEST(HotkeyConfigCopyAssignment, CopiesEverythingAndReturnsACopy) {
  const HotkeyConfig source = changedConfig();
  HotkeyConfig target;
  HotkeyConfig copy = (target = source);
  EXPECT_TRUE(target.enable());
  EXPECT_EQ(target.index(), 2U);
  for (int n = 0; n < HotkeyConfig::kSchemes; ++n) {
    HotkeyScheme expected = source.scheme(n);
    for (auto& phrase : expected.QuickChat) phrase = phrase.value_or(u"");
    EXPECT_EQ(target.scheme(n), expected);
    EXPECT_EQ(copy.scheme(n), expected);
  }
  copy.editableScheme(0)->HeroSkillKey[0] = kE;
  EXPECT_EQ(target.scheme(0).HeroSkillKey[0], kQ);
}

TEST(HotkeyConfigCopySwap, ExchangesEverything) {
  HotkeyConfig loaded = changedConfig();
  MarkupDocument document;
  ASSERT_TRUE(loaded.saveTo(document, 77));
  document.resetMainPos();
  ASSERT_TRUE(loaded.loadFrom(document));
  loaded.markBlockBuilt();
  const HotkeyScheme scheme = loaded.scheme(1);

  HotkeyConfig other;
  other.swap(loaded);
  EXPECT_TRUE(other.loaded());
  EXPECT_EQ(other.LastSaveTime(), 77U);
  EXPECT_TRUE(other.enable());
  EXPECT_EQ(other.index(), 2U);
  EXPECT_EQ(other.scheme(1), scheme);
  EXPECT_TRUE(other.blockBuilt());

  EXPECT_FALSE(loaded.loaded());
  EXPECT_EQ(loaded.LastSaveTime(), 0U);
  EXPECT_FALSE(loaded.enable());
  EXPECT_EQ(loaded.index(), 0U);
  EXPECT_EQ(loaded.scheme(1), HotkeyScheme());
  EXPECT_FALSE(loaded.blockBuilt());
}

TEST(HotkeyConfigCopyAssignment, LeavesNoPhraseAndNoMarkOfTheTargetBehind) {
  HotkeyConfig target = changedConfig();
  target = HotkeyConfig();
  EXPECT_EQ(target.scheme(0).QuickChat[1], u"");
  EXPECT_EQ(target.scheme(0).HeroSkillAutocast, AutocastMarks<kHeroSkills>());
  EXPECT_EQ(target.scheme(0).ItemAutocast, AutocastMarks<kItemSlots>());
}

TEST(HotkeyConfigCopyAssignment, RefusesAChoiceThatConflictsWithKeysOfTheTargetThatAreCopiedLater) {
  HotkeyConfig source;
  ASSERT_TRUE(source.SetNumComboKeyIndex(0));
  HotkeyConfig target;
  target.editableScheme(0)->ShowFBlood = kAltQ;
  HotkeyConfig assigned = target;
  assigned = source;
  EXPECT_EQ(assigned.scheme(0).NumComboKeyIndex, -1);
  EXPECT_EQ(assigned.scheme(0).ShowFBlood, kNoKey);

  HotkeyConfig reset = target;
  reset.ResetAndCopyFrom(source);
  EXPECT_EQ(reset.scheme(0).NumComboKeyIndex, 0) << "no stale key refuses the choice";
}

TEST(HotkeyConfigCopyAssignment, RefusesAChoiceThatConflictsWithTheSourcesOwnKeys) {
  HotkeyConfig source;
  source.editableScheme(0)->NumComboKeyIndex = 0;
  source.editableScheme(0)->HeroSkillKey[0] = kAltQ;
  source.editableScheme(1)->QuickChatIndex = 0;
  source.editableScheme(1)->QuickChatKey = kAlt1;
  HotkeyConfig target;
  target.ResetAndCopyFrom(source);
  EXPECT_EQ(target.scheme(0).NumComboKeyIndex, -1);
  EXPECT_EQ(target.scheme(0).HeroSkillKey[0], kAltQ);
  EXPECT_EQ(target.scheme(1).QuickChatIndex, 1U);
}

TEST(HotkeyConfigCopyAssignment, ChecksTheQuickChatSetBeforeTheChatWheelKeyIsCopied) {
  HotkeyConfig source;
  source.editableScheme(0)->QuickChatIndex = 0;
  source.editableScheme(0)->ChatWheelkey = kAlt1;
  HotkeyConfig target;
  target.ResetAndCopyFrom(source);
  EXPECT_EQ(target.scheme(0).QuickChatIndex, 0U);
  EXPECT_EQ(target.scheme(0).ChatWheelkey, kAlt1);
}

TEST(HotkeyConfigCopyAssignment, ToItselfChangesNothing) {
  HotkeyConfig config = changedConfig();
  const HotkeyScheme before = config.scheme(1);
  const HotkeyConfig& same = config;
  config = same;
  config.ResetAndCopyFrom(same);
  EXPECT_EQ(config.scheme(1), before);
  EXPECT_TRUE(config.enable());
}

}  // namespace
}  // namespace brennet
