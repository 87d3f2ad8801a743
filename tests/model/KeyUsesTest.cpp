#include "model/KeyUses.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/model/KeyPlaces.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(KeyUses, AreTheSlotsThatHaveTheKey) {
  for (const KeyPlace& place : kGuardedPlaces) {
    HotkeyScheme scheme;
    place.put(scheme, kAltQ.with(KeyWord::kQuickCast));
    EXPECT_THAT(usesOf(scheme, kAltQ), ElementsAre(place.slot)) << place.name;
    EXPECT_THAT(usesOf(scheme, kQ), IsEmpty()) << place.name;
  }
}

TEST(KeyUses, AreAlsoThoseThatShareIt) {
  HotkeyScheme scheme;
  for (const KeyPlace& place : kSharedPlaces) place.put(scheme, kQ);
  scheme.HeroSkillKey[3] = kQ;
  EXPECT_THAT(usesOf(scheme, kQ),
              testing::UnorderedElementsAre(
                  KeySlot{SettingId::HeroSkillKey, 3}, KeySlot{SettingId::MouseKey, 0},
                  remapSource(0), KeySlot{SettingId::ComboKey, 0}, KeySlot{SettingId::ComboKey, 1},
                  KeySlot{SettingId::ComboKey, 2}));
}

TEST(KeyUses, AreNoneOfNoKey) {
  EXPECT_THAT(usesOf(HotkeyScheme(), kNoKey), IsEmpty());
}

}  // namespace
}  // namespace brennet
