#include "model/SchemeDifferences.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/model/KeyPlaces.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(SchemeDifferences, AreNoneBetweenEqualSchemes) {
  HotkeyScheme scheme;
  scheme.HeroSkillKey[3] = kQ;
  EXPECT_THAT(differencesOf(scheme, scheme), IsEmpty());
}

TEST(SchemeDifferences, NameTheSlotOfEachKey) {
  for (const KeyPlace& place : kGuardedPlaces) {
    HotkeyScheme after;
    place.put(after, kAltQ);
    EXPECT_THAT(differencesOf({}, after),
                ElementsAre(SettingPart{place.slot.setting, place.slot.index}))
        << place.name;
  }
}

TEST(SchemeDifferences, TellAKeyFromItsMark) {
  HotkeyScheme after;
  after.ItemKey[2] = kQ;
  after.ItemAutocast[2] = true;
  EXPECT_THAT(differencesOf({}, after), ElementsAre(SettingPart{SettingId::ItemKey, 2},
                                                    SettingPart{SettingId::ItemKey, 2, true}));
}

TEST(SchemeDifferences, GoByWhatPlayersSee) {
  HotkeyScheme after;
  after.HeroSkillAutocast[0] = false;
  after.QuickChat[0] = u"";
  EXPECT_NE(after, HotkeyScheme());
  EXPECT_THAT(differencesOf({}, after), IsEmpty());
}

TEST(SchemeDifferences, AreInTheOrderOfTheSettings) {
  HotkeyScheme after;
  after.HideUI = 1;
  after.ChatWheel[7] = u"gg";
  after.QuickChatIndex = 0;
  after.NumComboKeyIndex = 2;
  after.ComboKey.Key_D = kQ;
  EXPECT_THAT(
      differencesOf({}, after),
      ElementsAre(SettingPart{SettingId::ComboKey, 3}, SettingPart{SettingId::NumComboKeyIndex},
                  SettingPart{SettingId::QuickChatIndex}, SettingPart{SettingId::ChatWheel, 7},
                  SettingPart{SettingId::HideUI}));
}

}  // namespace
}  // namespace brennet
