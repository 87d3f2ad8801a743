#include "model/KeyConflicts.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;

struct Place {
  const char* name;
  std::function<void(HotkeyScheme&, KeyWord)> put;
};

const Place kTakenPlaces[] = {
    {"first hero skill", [](HotkeyScheme& s, KeyWord k) { s.HeroSkillKey.front() = k; }},
    {"last hero skill", [](HotkeyScheme& s, KeyWord k) { s.HeroSkillKey.back() = k; }},
    {"first item", [](HotkeyScheme& s, KeyWord k) { s.ItemKey.front() = k; }},
    {"last item", [](HotkeyScheme& s, KeyWord k) { s.ItemKey.back() = k; }},
    {"remap destination", [](HotkeyScheme& s, KeyWord k) { s.HotKey.back().Dest = k; }},
    {"combination key D", [](HotkeyScheme& s, KeyWord k) { s.ComboKey.Key_D = k; }},
    {"first Ledger key", [](HotkeyScheme& s, KeyWord k) { s.SecretaryKey.front() = k; }},
    {"last Ledger key", [](HotkeyScheme& s, KeyWord k) { s.SecretaryKey.back() = k; }},
    {"ShowFBlood", [](HotkeyScheme& s, KeyWord k) { s.ShowFBlood = k; }},
    {"ShowEBlood", [](HotkeyScheme& s, KeyWord k) { s.ShowEBlood = k; }},
    {"HotkeyContrl", [](HotkeyScheme& s, KeyWord k) { s.HotkeyContrl = k; }},
    {"WinLockMouse", [](HotkeyScheme& s, KeyWord k) { s.WinLockMouse = k; }},
    {"QuickChatKey", [](HotkeyScheme& s, KeyWord k) { s.QuickChatKey = k; }},
    {"ChatWheelkey", [](HotkeyScheme& s, KeyWord k) { s.ChatWheelkey = k; }},
};

const Place kIgnoredPlaces[] = {
    {"mouse key", [](HotkeyScheme& s, KeyWord k) { s.MouseKey.front() = k; }},
    {"remap source", [](HotkeyScheme& s, KeyWord k) { s.HotKey.front().Src = k; }},
    {"combination key A", [](HotkeyScheme& s, KeyWord k) { s.ComboKey.Key_A = k; }},
    {"combination key B", [](HotkeyScheme& s, KeyWord k) { s.ComboKey.Key_B = k; }},
    {"combination key C", [](HotkeyScheme& s, KeyWord k) { s.ComboKey.Key_C = k; }},
};

TEST(IsKeyFree, IsFalseForAKeyThatAnythingHas) {
  for (const Place& place : kTakenPlaces) {
    HotkeyScheme scheme;
    EXPECT_TRUE(isKeyFree(scheme, kAltQ)) << place.name;
    place.put(scheme, kAltQ);
    EXPECT_FALSE(isKeyFree(scheme, kAltQ)) << place.name;
    EXPECT_TRUE(isKeyFree(scheme, kQ)) << "other modifiers are another key: " << place.name;
    EXPECT_FALSE(isKeyFree(scheme, kAltQ.with(KeyWord::kQuickCast))) << place.name;
  }
}

TEST(IsKeyFree, DoesNotConsultMouseKeysAndSources) {
  for (const Place& place : kIgnoredPlaces) {
    HotkeyScheme scheme;
    place.put(scheme, kQ);
    EXPECT_TRUE(isKeyFree(scheme, kQ)) << place.name;
  }
}

TEST(IsKeyFree, IsFalseForKeysThatAreNeverBound) {
  const HotkeyScheme scheme;
  constexpr std::uint8_t kForbidden[] = {0xFF, 0x08, 0x2E, 0x0D};
  for (const std::uint8_t vk : kForbidden) {
    EXPECT_FALSE(isKeyFree(scheme, KeyWord(vk, 0))) << int{vk};
    EXPECT_FALSE(isKeyFree(scheme, KeyWord(vk, KeyWord::kAlt))) << int{vk};
  }
}

TEST(IsItemPresetKey, KnowsTheSixKeysOfTheChosenPreset) {
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

TEST(IsQuickChatKey, KnowsTheEightKeysOfTheChosenSet) {
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

TEST(IsKeyUsed, LooksAtEverythingThatIsPressed) {
  for (const Place& place : kTakenPlaces) {
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

TEST(IsKeyUsed, CountsTheSourceOfARemapWhoseDestinationIsSet) {
  HotkeyScheme scheme;
  scheme.HotKey[2].Src = kQ;
  EXPECT_FALSE(isKeyUsed(scheme, 'Q'));
  scheme.HotKey[2].Dest = kW;
  EXPECT_TRUE(isKeyUsed(scheme, 'Q'));
  EXPECT_FALSE(isKeyUsed(scheme, 'W')) << "the destination is sent, not pressed";
}

TEST(IsKeyUsed, TakesThePresetInThePlaceOfTheItemKeys) {
  HotkeyScheme scheme;
  scheme.ItemKey[0] = kR;
  EXPECT_TRUE(isKeyUsed(scheme, 'R'));
  scheme.NumComboKeyIndex = 1;
  EXPECT_FALSE(isKeyUsed(scheme, 'R'));
  EXPECT_TRUE(isKeyUsed(scheme, 'Z'));
}

TEST(IsKeyUsed, IsFalseForNoKey) {
  EXPECT_FALSE(isKeyUsed(HotkeyScheme(), 0xFF));
}

}  // namespace
}  // namespace brennet
