#include "model/KeyConflicts.h"

#include <gtest/gtest.h>

#include "tests/model/KeyPlaces.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;

TEST(KeyConflictsIsKeyFree, IsFalseForAKeyThatAnythingHas) {
  for (const KeyPlace& place : kGuardedPlaces) {
    HotkeyScheme scheme;
    EXPECT_TRUE(isKeyFree(scheme, kAltQ)) << place.name;
    place.put(scheme, kAltQ);
    EXPECT_FALSE(isKeyFree(scheme, kAltQ)) << place.name;
    EXPECT_TRUE(isKeyFree(scheme, kQ)) << "other modifiers are another key: " << place.name;
    EXPECT_FALSE(isKeyFree(scheme, kAltQ.with(KeyWord::kQuickCast))) << place.name;
  }
}

TEST(KeyConflictsIsKeyFree, IsTrueForAllThatCanBeBoundWhereNothingIs) {
  for (const int preset : {-1, 0, 1, 2}) {
    HotkeyScheme scheme;
    scheme.NumComboKeyIndex = preset;
    for (unsigned raw = 0; raw <= 0xFFFF; ++raw) {
      const KeyWord key(static_cast<std::uint16_t>(raw));
      const std::uint8_t vk = key.virtualKey();
      const bool canBeBound = key.isSet() && vk != 0x08 && vk != 0x0D && vk != 0x2E;
      ASSERT_EQ(isKeyFree(scheme, key), canBeBound) << raw;
    }
  }
}

TEST(KeyConflictsIsKeyFree, DoesNotConsultMouseKeysAndSources) {
  for (const KeyPlace& place : kSharedPlaces) {
    HotkeyScheme scheme;
    place.put(scheme, kQ);
    EXPECT_TRUE(isKeyFree(scheme, kQ)) << place.name;
  }
}

TEST(KeyConflictsIsKeyFree, IsFalseForKeysThatAreNeverBound) {
  const HotkeyScheme scheme;
  constexpr std::uint8_t kForbidden[] = {0xFF, 0x08, 0x2E, 0x0D};
  for (const std::uint8_t vk : kForbidden) {
    EXPECT_FALSE(isKeyFree(scheme, KeyWord(vk, 0))) << int{vk};
    EXPECT_FALSE(isKeyFree(scheme, KeyWord(vk, KeyWord::kAlt))) << int{vk};
  }
}

TEST(KeyConflictsConflictOf, TellsWhyAKeyIsRefused) {
  using Reason = KeyConflict::Reason;
  HotkeyScheme scheme;
  scheme.HeroSkillKey[3] = kQ;
  scheme.NumComboKeyIndex = 2;
  scheme.QuickChatIndex = 1;
  const struct {
    KeySlot slot;
    KeyWord key;
    std::optional<KeyConflict> conflict;
  } kRows[] = {
      {{SettingId::ItemKey, 1}, kW, std::nullopt},
      {{SettingId::ItemKey, 1}, kQ, KeyConflict{Reason::Held, {SettingId::HeroSkillKey, 3}}},
      {{SettingId::MouseKey, 0}, kQ, KeyConflict{Reason::Held, {SettingId::HeroSkillKey, 3}}},
      {{SettingId::HeroSkillKey, 3}, kQ, std::nullopt},
      {remapSource(1), kQ, std::nullopt},
      {remapDestination(1), kQ, KeyConflict{Reason::Held, {SettingId::HeroSkillKey, 3}}},
      {kComboTarget, kQ, KeyConflict{Reason::Held, {SettingId::HeroSkillKey, 3}}},
      {{SettingId::ComboKey3to1, 3}, kQ, KeyConflict{Reason::Held, {SettingId::HeroSkillKey, 3}}},
      {{SettingId::ComboKey, 0}, kQ, std::nullopt},
      {{SettingId::ShowFBlood}, KeyWord(0x0D, 0), KeyConflict{Reason::CannotBeBound}},
      {{SettingId::SecretaryKey},
       KeyWord('3', KeyWord::kAlt),
       KeyConflict{Reason::ItemPresetKey, {SettingId::NumComboKeyIndex, 2}, 2}},
      {{SettingId::SecretaryKey},
       KeyWord(0x77, KeyWord::kAlt),
       KeyConflict{Reason::QuickChatSetKey, {SettingId::QuickChatIndex, 7}, 1}},
      {{SettingId::ZoomValue}, kQ, std::nullopt},
      {{SettingId::HeroSkillKey, 12}, kQ, std::nullopt},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(conflictOf(scheme, row.slot, row.key), row.conflict)
        << static_cast<int>(row.slot.setting) << ' ' << int{row.slot.index};
  }
}

TEST(KeyConflictsConflictOf, FindsACombinationThatSendsItself) {
  using Reason = KeyConflict::Reason;
  const KeyConflict sendsB{Reason::SentByItself, {SettingId::ComboKey, 1}};
  const KeyConflict sendsC{Reason::SentByItself, {SettingId::ComboKey, 2}};
  HotkeyScheme scheme;
  EXPECT_EQ(conflictOf(scheme, ComboKeys{kQ, kW, kE, kW}), sendsB);
  EXPECT_EQ(conflictOf(scheme, ComboKeys{kQ, kW, kE, kE}), sendsC);
  EXPECT_EQ(conflictOf(scheme, ComboKeys{kQ, kW, kE, kQ}), std::nullopt);
  scheme.ComboKey = {kQ, kW, kNoKey, kNoKey};
  EXPECT_EQ(conflictOf(scheme, kComboTarget, kW), sendsB);
}

TEST(KeyConflictsIsItemPresetKey, KnowsTheSixKeysOfTheChosenPreset) {
  constexpr const char* kKeys[] = {"QWERDF", "QWASZX", "123456"};
  for (std::int32_t preset = 0; preset < kItemPresets; ++preset) {
    HotkeyScheme scheme;
    for (const char* key = kKeys[preset]; *key != '\0'; ++key) {
      const KeyWord word(static_cast<std::uint8_t>(*key), KeyWord::kAlt);
      EXPECT_FALSE(isItemPresetKey(scheme, word)) << "nothing is chosen";
      scheme.NumComboKeyIndex = preset;
      EXPECT_TRUE(isItemPresetKey(scheme, word)) << preset << *key;
      EXPECT_FALSE(isItemPresetKey(scheme, word.without(KeyWord::kAlt))) << preset << *key;
      scheme.NumComboKeyIndex = HotkeyScheme::kItemKeysFromMap;
    }
  }
}

TEST(KeyConflictsIsQuickChatKey, KnowsTheEightKeysOfTheChosenSet) {
  HotkeyScheme scheme;
  scheme.QuickChatIndex = 0;
  for (std::uint8_t n = 0; n < 8; ++n) {
    const KeyWord digit(static_cast<std::uint8_t>('1' + n), KeyWord::kAlt);
    const KeyWord function(static_cast<std::uint8_t>(0x70 + n), KeyWord::kAlt);
    scheme.QuickChatIndex = 0;
    EXPECT_TRUE(isQuickChatKey(scheme, digit));
    EXPECT_FALSE(isQuickChatKey(scheme, function));
    for (const std::uint32_t other : {1U, 2U, 77U}) {
      scheme.QuickChatIndex = other;
      EXPECT_FALSE(isQuickChatKey(scheme, digit)) << other;
      EXPECT_TRUE(isQuickChatKey(scheme, function)) << other;
    }
  }
  EXPECT_FALSE(isQuickChatKey(scheme, KeyWord('9', KeyWord::kAlt)));
}

TEST(KeyConflictsIsKeyUsed, LooksAtEverythingThatIsPressed) {
  for (const KeyPlace& place : kGuardedPlaces) {
    if (std::string_view(place.name) == "remap destination") continue;
    HotkeyScheme scheme;
    EXPECT_FALSE(isKeyUsed(scheme, 'Q')) << place.name;
    place.put(scheme, kAltQ);
    EXPECT_TRUE(isKeyUsed(scheme, 'Q')) << place.name << ": modifiers do not matter";
    EXPECT_FALSE(isKeyUsed(scheme, 'W')) << place.name;
  }
  HotkeyScheme wheel;
  wheel.MouseKey.back() = kQ;
  EXPECT_TRUE(isKeyUsed(wheel, 'Q'));
}

TEST(KeyConflictsIsKeyUsed, CountsTheSourceOfARemapWhoseDestinationIsSet) {
  HotkeyScheme scheme;
  scheme.HotKey[2].Src = kQ;
  EXPECT_FALSE(isKeyUsed(scheme, 'Q'));
  scheme.HotKey[2].Dest = kW;
  EXPECT_TRUE(isKeyUsed(scheme, 'Q'));
  EXPECT_FALSE(isKeyUsed(scheme, 'W')) << "the destination is sent, not pressed";
}

TEST(KeyConflictsIsKeyUsed, TakesThePresetInThePlaceOfTheItemKeys) {
  HotkeyScheme scheme;
  scheme.ItemKey[0] = kR;
  EXPECT_TRUE(isKeyUsed(scheme, 'R'));
  scheme.NumComboKeyIndex = 1;
  EXPECT_FALSE(isKeyUsed(scheme, 'R'));
  EXPECT_TRUE(isKeyUsed(scheme, 'Z'));
}

TEST(KeyConflictsIsKeyUsed, IsFalseForNoKey) {
  EXPECT_FALSE(isKeyUsed(HotkeyScheme(), 0xFF));
}

}  // namespace
}  // namespace brennet
