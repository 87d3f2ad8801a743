#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "model/FixedKeys.h"
#include "model/KeyAssignment.h"
#include "model/KeyConflicts.h"
#include "tests/model/KeyPlaces.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;
using Reason = KeyConflict::Reason;

constexpr KeyWord kAlt8('8', KeyWord::kAlt);

KeyConflict held(KeySlot slot) {
  return {Reason::Held, slot};
}

TEST(Holders, AreTheSettingsThatHaveTheKey) {
  for (const KeyPlace& place : kGuardedPlaces) {
    HotkeyScheme scheme;
    EXPECT_THAT(holdersOf(scheme, kAltQ), IsEmpty()) << place.name;
    place.put(scheme, kAltQ);
    EXPECT_THAT(holdersOf(scheme, kAltQ), ElementsAre(held(place.slot))) << place.name;
    EXPECT_THAT(holdersOf(scheme, kQ), IsEmpty()) << place.name;
    EXPECT_EQ(keyAt(scheme, place.slot), kAltQ) << place.name;
  }
}

TEST(Holders, AreNoneWhereAKeyMayBeTwice) {
  for (const KeyPlace& place : kSharedPlaces) {
    HotkeyScheme scheme;
    place.put(scheme, kAltQ);
    EXPECT_THAT(holdersOf(scheme, kAltQ), IsEmpty()) << place.name;
  }
}

// A block, or a file written by hand, may give one key to several settings.
TEST(Holders, AreAllOfSeveral) {
  HotkeyScheme scheme;
  scheme.ItemKey[4] = kAlt1;
  scheme.HeroSkillKey[2] = kAlt1.with(KeyWord::kQuickCast);
  scheme.HotKey[1].Dest = kAlt1;
  scheme.NumComboKeyIndex = 2;
  scheme.QuickChatIndex = 0;
  EXPECT_THAT(holdersOf(scheme, kAlt1),
              ElementsAre(held({SettingId::HeroSkillKey, 2}), held({SettingId::ItemKey, 4}),
                          held(remapDestination(1)),
                          KeyConflict{Reason::ItemPresetKey, {SettingId::NumComboKeyIndex, 0}, 2},
                          KeyConflict{Reason::QuickChatSetKey, {SettingId::QuickChatIndex, 0}, 0}));
}

TEST(Holders, AreThePresetsThatAreChosen) {
  HotkeyScheme scheme;
  scheme.QuickChatIndex = 1;
  EXPECT_THAT(holdersOf(scheme, kAlt8), IsEmpty());
  EXPECT_THAT(holdersOf(scheme, kAltF1),
              ElementsAre(KeyConflict{Reason::QuickChatSetKey, {SettingId::QuickChatIndex, 0}, 1}));
  scheme.QuickChatIndex = 0;
  EXPECT_THAT(holdersOf(scheme, kAltF1), IsEmpty());
  EXPECT_THAT(holdersOf(scheme, kAlt8),
              ElementsAre(KeyConflict{Reason::QuickChatSetKey, {SettingId::QuickChatIndex, 7}, 0}));
}

TEST(Holders, SayOfAKeyThatIsNeverBoundNothingElse) {
  HotkeyScheme scheme;
  for (const KeyWord key :
       {kNoKey, KeyWord(0x08, 0), KeyWord(0x0D, KeyWord::kCtrl), KeyWord(0x2E, KeyWord::kAlt)}) {
    scheme.HeroSkillKey[0] = key;
    EXPECT_THAT(holdersOf(scheme, key), ElementsAre(KeyConflict{Reason::CannotBeBound}))
        << key.raw();
  }
}

TEST(Holders, OfTheKeysOfASetAreWhatKeepsItFromBeingChosen) {
  HotkeyScheme scheme;
  scheme.QuickChatIndex = 1;
  scheme.NumComboKeyIndex = 0;
  scheme.HeroSkillKey[5] = KeyWord('2', KeyWord::kAlt);
  scheme.WinLockMouse = KeyWord('2', KeyWord::kAlt);
  scheme.ShowFBlood = kAlt8;
  const TakenKey skill{KeyWord('2', KeyWord::kAlt), held({SettingId::HeroSkillKey, 5})};
  const TakenKey lock{KeyWord('2', KeyWord::kAlt), held({SettingId::WinLockMouse})};
  EXPECT_THAT(takenQuickChatKeys(scheme, 0),
              ElementsAre(skill, lock, TakenKey{kAlt8, held({SettingId::ShowFBlood})}));
  EXPECT_THAT(takenQuickChatKeys(scheme, 1), IsEmpty());
  EXPECT_THAT(takenKeysOfPreset(scheme, 2), ElementsAre(skill, lock));
  EXPECT_THAT(takenKeysOfPreset(scheme, 0), IsEmpty());
}

TEST(Holders, OfASetAreKeysOfTheOtherSetAndNotOfTheOneThatItReplaces) {
  HotkeyScheme scheme;
  scheme.NumComboKeyIndex = 2;
  scheme.QuickChatIndex = 1;
  EXPECT_THAT(takenQuickChatKeys(scheme, 0), testing::SizeIs(6));
  EXPECT_THAT(takenKeysOfPreset(scheme, 1), IsEmpty());
  scheme.NumComboKeyIndex = 0;
  scheme.QuickChatIndex = 0;
  EXPECT_THAT(takenKeysOfPreset(scheme, 2), testing::SizeIs(6));
  EXPECT_THAT(takenQuickChatKeys(scheme, 1), IsEmpty());
}

TEST(Holders, AreNoneOfASetThatDoesNotExist) {
  HotkeyScheme scheme;
  for (const std::int32_t preset : {-1, 3, 1000}) {
    EXPECT_THAT(takenKeysOfPreset(scheme, preset), IsEmpty()) << preset;
  }
  EXPECT_THAT(takenQuickChatKeys(scheme, 2), IsEmpty());
}

// A sample of all keys, in a hundred schemes with random keys, some of which are the same.
TEST(Holders, AgreeWithTheQuestionsThatAreAnsweredByYesAndNo) {
  std::minstd_rand random(15);
  const auto below = [&](unsigned end) { return static_cast<unsigned>(random() % end); };
  for (int round = 0; round < 100; ++round) {
    HotkeyScheme scheme;
    scheme.NumComboKeyIndex = static_cast<int>(below(4)) - 1;
    scheme.QuickChatIndex = below(2);
    for (const KeyPlace& place : kGuardedPlaces) {
      const auto vk = static_cast<std::uint8_t>('1' + below(50));
      place.put(scheme, KeyWord(vk, static_cast<std::uint8_t>(below(4))));
    }
    for (unsigned raw = 0; raw <= 0xFFFF; raw += 1 + below(7)) {
      const KeyWord key(static_cast<std::uint16_t>(raw));
      const auto holders = holdersOf(scheme, key);
      const bool isGuarded = std::any_of(holders.begin(), holders.end(), [](const auto& one) {
        return one.reason == Reason::Held || one.reason == Reason::CannotBeBound;
      });
      ASSERT_EQ(isKeyFree(scheme, key), !isGuarded) << raw;
      ASSERT_EQ(isKeyAssignable(scheme, key), holders.empty()) << raw;
    }
    for (const int preset : {0, 1, 2}) {
      HotkeyScheme changed = scheme;
      ASSERT_EQ(choosePreset(changed, preset), takenKeysOfPreset(scheme, preset).empty());
    }
    for (const unsigned set : {0U, 1U}) {
      HotkeyScheme changed = scheme;
      ASSERT_EQ(chooseQuickChatKeys(changed, set), takenQuickChatKeys(scheme, set).empty());
    }
  }
}

}  // namespace
}  // namespace brennet
