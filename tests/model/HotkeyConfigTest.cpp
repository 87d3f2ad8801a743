#include "model/HotkeyConfig.h"

#include <gtest/gtest.h>

#include <string>

#include "markup/MarkupDocument.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;

constexpr int kCurrent = HotkeyConfig::kCurrentScheme;

TEST(HotkeyConfigNewConfig, HoldsTheDefaults) {
  const HotkeyConfig config;
  EXPECT_FALSE(config.loaded());
  EXPECT_FALSE(config.enable());
  EXPECT_EQ(config.index(), 0U);
  EXPECT_EQ(config.LastSaveTime(), 0U);
  EXPECT_FALSE(config.blockBuilt());
  for (int n = 0; n < HotkeyConfig::kSchemes; ++n) {
    const HotkeyScheme& scheme = config.scheme(n);
    for (const KeyWord key : scheme.HeroSkillKey) EXPECT_EQ(key, kNoKey);
    for (const KeyWord key : scheme.ItemKey) EXPECT_EQ(key, kNoKey);
    for (const KeyRemap& pair : scheme.HotKey) EXPECT_EQ(pair.raw(), 0xFF00FF00U);
    EXPECT_EQ(scheme.NumComboKeyIndex, -1);
    EXPECT_EQ(scheme.QuickChatIndex, 1U);
    EXPECT_EQ(scheme.ZoomValue, 100);
    for (const auto& phrase : scheme.QuickChat) EXPECT_FALSE(phrase.has_value());
    for (const auto& phrase : scheme.ChatWheel) EXPECT_EQ(phrase, u"");
  }
}

TEST(FixedKeys, AreEncodedAsTheGameKnowsThem) {
  constexpr std::uint16_t kPresets[3][6] = {{0x5104, 0x5704, 0x4504, 0x5204, 0x4404, 0x4604},
                                            {0x5104, 0x5704, 0x4104, 0x5304, 0x5A04, 0x5804},
                                            {0x3104, 0x3204, 0x3304, 0x3404, 0x3504, 0x3604}};
  for (std::size_t preset = 0; preset < 3; ++preset) {
    for (std::size_t slot = 0; slot < 6; ++slot) {
      EXPECT_EQ(kItemPresetKeys[preset][slot].raw(), kPresets[preset][slot]);
    }
  }
  for (unsigned n = 0; n < 8; ++n) {
    EXPECT_EQ(kQuickChatKeySets[0][n].raw(), 0x3104U + n * 0x100U);
    EXPECT_EQ(kQuickChatKeySets[1][n].raw(), 0x7004U + n * 0x100U);
  }
}

// The checked setters that take one key share their rules.
struct KeySetter {
  const char* name;
  bool (HotkeyConfig::*set)(int, KeyWord, bool, int);
  std::vector<int> legal;
  std::vector<int> illegal;
  KeyWord (*get)(const HotkeyScheme&, int);
};

KeyWord itemKey(const HotkeyScheme& scheme, int slotCode) {
  return scheme.ItemKey[*itemSlotIndex(slotCode)];
}
template <auto Keys>
KeyWord keyOf(const HotkeyScheme& scheme, int n) {
  return (scheme.*Keys)[static_cast<std::size_t>(n)];
}

const KeySetter kSetters[] = {
    {"SetHeroSkillKey",
     &HotkeyConfig::SetHeroSkillKey,
     {0, 6, 11},
     {-1, 12, 1000},
     keyOf<&HotkeyScheme::HeroSkillKey>},
    {"SetItemKey",
     &HotkeyConfig::SetItemKey,
     {0x67, 0x68, 0x64, 0x65, 0x61, 0x62},
     {0, 1, 5, 0x60, 0x63, 0x66, 0x69, -1},
     itemKey},
    {"SetMouseKey", &HotkeyConfig::SetMouseKey, {0, 1, 2}, {-1, 3}, keyOf<&HotkeyScheme::MouseKey>},
    {"SetSecretaryKey",
     &HotkeyConfig::SetSecretaryKey,
     {0, 1, 2},
     {-1, 3},
     keyOf<&HotkeyScheme::SecretaryKey>},
};

TEST(HotkeyConfigKeySetters, StoreAKeyThatIsFree) {
  for (const KeySetter& setter : kSetters) {
    for (const int n : setter.legal) {
      HotkeyConfig config;
      EXPECT_TRUE((config.*setter.set)(n, kQ, true, kCurrent)) << setter.name << n;
      EXPECT_EQ(setter.get(config.scheme(), n), kQ) << setter.name << n;
    }
  }
}

TEST(HotkeyConfigKeySetters, RefuseANumberOutOfRangeEvenUnchecked) {
  for (const KeySetter& setter : kSetters) {
    for (const int n : setter.illegal) {
      HotkeyConfig config;
      EXPECT_FALSE((config.*setter.set)(n, kQ, true, kCurrent)) << setter.name << n;
      EXPECT_FALSE((config.*setter.set)(n, kQ, false, kCurrent)) << setter.name << n;
      EXPECT_EQ(config.scheme(), HotkeyScheme()) << setter.name << n;
    }
  }
}

TEST(HotkeyConfigKeySetters, RefuseWhatIsTakenOrForbiddenAndKeepTheField) {
  for (const KeySetter& setter : kSetters) {
    const int n = setter.legal.front();
    HotkeyConfig config;
    ASSERT_TRUE((config.*setter.set)(n, kE, true, kCurrent));
    config.editableScheme()->ShowFBlood = kQ;
    ASSERT_TRUE(config.SetNumComboKeyIndex(0));
    for (const KeyWord key :
         {kQ, kAltQ, kAltF1, KeyWord(0x0D, 0), KeyWord(0x08, 0), KeyWord(0x2E, 0), kNoKey}) {
      EXPECT_FALSE((config.*setter.set)(n, key, true, kCurrent)) << setter.name << key.raw();
      EXPECT_EQ(setter.get(config.scheme(), n), kE) << setter.name << key.raw();
    }
  }
}

TEST(HotkeyConfigKeySetters, AcceptTheKeyThatTheFieldHasAlready) {
  for (const KeySetter& setter : kSetters) {
    const int n = setter.legal.front();
    HotkeyConfig config;
    EXPECT_TRUE((config.*setter.set)(n, kNoKey, true, kCurrent)) << setter.name;
    ASSERT_TRUE((config.*setter.set)(n, kQ, true, kCurrent));
    EXPECT_TRUE((config.*setter.set)(n, kQ.with(KeyWord::kQuickCast), true, kCurrent));
    EXPECT_EQ(setter.get(config.scheme(), n), kQ) << "accepted without a change";
  }
}

TEST(HotkeyConfigKeySetters, StoreAnythingUnchecked) {
  for (const KeySetter& setter : kSetters) {
    const int n = setter.legal.front();
    HotkeyConfig config;
    config.editableScheme()->ShowFBlood = kQ;
    EXPECT_TRUE((config.*setter.set)(n, kQ, false, kCurrent)) << setter.name;
    EXPECT_EQ(setter.get(config.scheme(), n), kQ) << setter.name;
    EXPECT_TRUE((config.*setter.set)(n, kNoKey, false, kCurrent)) << setter.name;
    EXPECT_EQ(setter.get(config.scheme(), n), kNoKey) << setter.name;
  }
}

TEST(HotkeyConfigKeySetters, WriteTheSchemeThatTheyAreGiven) {
  HotkeyConfig config;
  ASSERT_TRUE(config.setIndex(1));
  EXPECT_TRUE(config.SetHeroSkillKey(0, kQ, true, 2));
  EXPECT_TRUE(config.SetHeroSkillKey(0, kW, true));
  EXPECT_EQ(config.scheme(0).HeroSkillKey[0], kNoKey);
  EXPECT_EQ(config.scheme(1).HeroSkillKey[0], kW);
  EXPECT_EQ(config.scheme(2).HeroSkillKey[0], kQ);
}

TEST(HotkeyConfigMouseKeys, MayRepeatEachOther) {
  HotkeyConfig config;
  EXPECT_TRUE(config.SetMouseKey(0, kQ, true));
  EXPECT_TRUE(config.SetMouseKey(1, kQ, true));
}

TEST(HotkeyConfigSetHeroSkillKey, RefusesAKeyOfTheChosenPreset) {
  HotkeyConfig config;
  ASSERT_TRUE(config.SetNumComboKeyIndex(0));
  EXPECT_FALSE(config.SetHeroSkillKey(3, kAltQ, true));
  EXPECT_EQ(config.scheme().HeroSkillKey[3], kNoKey);
}

TEST(HotkeyConfigSetKeyRemap, ChecksTheDestinationOnly) {
  HotkeyConfig config;
  ASSERT_TRUE(config.SetHeroSkillKey(0, kQ, true));
  EXPECT_TRUE(config.SetKeyRemap(0, remap(kQ, kW), true));
  EXPECT_EQ(config.scheme().HotKey[0].raw(), remap(kQ, kW));
  EXPECT_FALSE(config.SetKeyRemap(1, remap(kE, kQ), true)) << "Q is a hero skill";
  EXPECT_FALSE(config.SetKeyRemap(1, remap(kE, kW), true)) << "W is sent already";
  EXPECT_EQ(config.scheme().HotKey[1].raw(), 0xFF00FF00U);
}

TEST(HotkeyConfigSetKeyRemap, StoresANewSourceForTheSameDestination) {
  HotkeyConfig config;
  ASSERT_TRUE(config.SetKeyRemap(5, remap(kQ, kW), true));
  EXPECT_TRUE(config.SetKeyRemap(5, remap(kE, kW), true));
  EXPECT_EQ(config.scheme().HotKey[5].raw(), remap(kE, kW));
  EXPECT_TRUE(config.SetKeyRemap(4, remap(kR, kNoKey), true));
  EXPECT_EQ(config.scheme().HotKey[4].raw(), remap(kR, kNoKey));
}

TEST(HotkeyConfigSetKeyRemap, RefusesNumbersOutOfRange) {
  HotkeyConfig config;
  for (const int n : {-1, 6, 100}) {
    EXPECT_FALSE(config.SetKeyRemap(n, remap(kQ, kW), true)) << n;
    EXPECT_FALSE(config.SetKeyRemap(n, remap(kQ, kW), false)) << n;
  }
}

struct ComboRow {
  const char* name;
  ComboKeys stored;
  ComboKeys offered;
  bool accepted;
};

TEST(HotkeyConfigSetComboKeys, ChecksThemTogether) {
  const ComboRow kRows[] = {
      {"a free D", {}, {kW, kE, kNoKey, kR}, true},
      {"D taken by a skill", {}, {kW, kE, kNoKey, kQ}, false},
      {"D no key, as stored", {}, {kW, kE, kNoKey, kNoKey}, true},
      {"D no key, another stored", {kW, kE, kNoKey, kR}, {kW, kE, kNoKey, kNoKey}, false},
      {"B is D and free", {}, {kW, kR, kNoKey, kR}, false},
      {"C is D and free", {}, {kW, kE, kR, kR}, false},
      {"A is D", {}, {kR, kE, kNoKey, kR}, true},
      {"B is D, but D is stored, so B is not free", {kW, kE, kNoKey, kR}, {kE, kR, kW, kR}, true},
      {"the same D with other sources", {kW, kE, kNoKey, kR}, {kE, kW, kQ, kR}, true},
  };
  for (const ComboRow& row : kRows) {
    HotkeyConfig config;
    config.editableScheme()->ComboKey = row.stored;
    config.editableScheme()->HeroSkillKey[0] = kQ;
    const ComboKeys& keys = row.offered;
    EXPECT_EQ(config.SetComboKeys(true, kCurrent, keyPair(keys.Key_A, keys.Key_B),
                                  keyPair(keys.Key_C, keys.Key_D)),
              row.accepted)
        << row.name;
    EXPECT_EQ(config.scheme().ComboKey, row.accepted ? row.offered : row.stored) << row.name;
  }
}

TEST(HotkeyConfigSetComboKeys, StoresAnythingUnchecked) {
  HotkeyConfig config;
  config.editableScheme()->HeroSkillKey[0] = kQ;
  EXPECT_TRUE(config.SetComboKeys(false, 0, keyPair(kQ, kQ), keyPair(kQ, kQ)));
  EXPECT_EQ(config.scheme().ComboKey, (ComboKeys{kQ, kQ, kQ, kQ}));
}

TEST(HotkeyConfigSetNumComboKeyIndex, AcceptsTheMapAndThreePresets) {
  HotkeyConfig config;
  for (const std::int32_t mode : {0, 1, 2, -1}) {
    EXPECT_TRUE(config.SetNumComboKeyIndex(mode)) << mode;
    EXPECT_EQ(config.scheme().NumComboKeyIndex, mode);
  }
  for (const std::int32_t mode : {-2, 3, 100}) {
    EXPECT_FALSE(config.SetNumComboKeyIndex(mode)) << mode;
    EXPECT_EQ(config.scheme().NumComboKeyIndex, -1);
  }
}

TEST(HotkeyConfigSetNumComboKeyIndex, RefusesAPresetWhoseKeysAreTaken) {
  HotkeyConfig config;
  ASSERT_TRUE(config.SetHeroSkillKey(0, KeyWord('F', KeyWord::kAlt), true));
  EXPECT_FALSE(config.SetNumComboKeyIndex(0));
  EXPECT_TRUE(config.SetNumComboKeyIndex(1));
  ASSERT_TRUE(config.SetNumComboKeyIndex(-1));
  ASSERT_TRUE(config.SetQuickChatIndex(0));
  EXPECT_FALSE(config.SetNumComboKeyIndex(2)) << "Alt+1 to Alt+6 send phrases";
}

TEST(HotkeyConfigSetQuickChatIndex, AcceptsTwoSetsWhoseKeysAreFree) {
  HotkeyConfig config;
  EXPECT_TRUE(config.SetQuickChatIndex(0));
  EXPECT_TRUE(config.SetQuickChatIndex(1));
  EXPECT_FALSE(config.SetQuickChatIndex(2));
  EXPECT_FALSE(config.SetQuickChatIndex(0xFFFFFFFFU));
  ASSERT_TRUE(config.SetNumComboKeyIndex(2));
  EXPECT_FALSE(config.SetQuickChatIndex(0)) << "Alt+1 to Alt+6 are item keys";
  ASSERT_TRUE(config.SetNumComboKeyIndex(-1));
  ASSERT_TRUE(config.SetHeroSkillKey(0, KeyWord('8', KeyWord::kAlt), true));
  EXPECT_FALSE(config.SetQuickChatIndex(0));
  EXPECT_EQ(config.scheme().QuickChatIndex, 1U);
}

TEST(HotkeyConfigPhraseSetters, CutLongTextInTheCallersBufferToo) {
  for (const auto setter : {&HotkeyConfig::SetQuickChatPhrase, &HotkeyConfig::SetChatWheelPhrase}) {
    HotkeyConfig config;
    std::u16string text(50, u'\u8C22');
    EXPECT_TRUE((config.*setter)(7, text.data(), kCurrent));
    EXPECT_EQ(text, std::u16string(42, u'\u8C22') + std::u16string(8, u'\0'));
    const bool isQuickChat = setter == &HotkeyConfig::SetQuickChatPhrase;
    const Phrases& phrases = isQuickChat ? config.scheme().QuickChat : config.scheme().ChatWheel;
    EXPECT_EQ(phrases[7], std::u16string(42, u'\u8C22'));
    std::u16string oneTooLong(43, u'a');
    EXPECT_TRUE((config.*setter)(7, oneTooLong.data(), kCurrent));
    EXPECT_EQ(oneTooLong, std::u16string(42, u'a') + u'\0');
  }
}

TEST(HotkeyConfigPhraseSetters, NeverCutACharacterInTwo) {
  HotkeyConfig config;
  std::u16string text = std::u16string(41, u'a') + u"\U0001F600" + u"b";
  EXPECT_TRUE(config.SetQuickChatPhrase(0, text.data()));
  EXPECT_EQ(config.scheme().QuickChat[0], std::u16string(41, u'a'));
  EXPECT_EQ(text, std::u16string(41, u'a') + std::u16string(3, u'\0'));
}

TEST(HotkeyConfigPhraseSetters, KeepTextOfTheFullLengthAndStoreNullAsEmpty) {
  HotkeyConfig config;
  std::u16string text(42, u'a');
  EXPECT_TRUE(config.SetChatWheelPhrase(0, text.data()));
  EXPECT_EQ(config.scheme().ChatWheel[0], std::u16string(42, u'a'));
  EXPECT_TRUE(config.SetChatWheelPhrase(0, nullptr));
  EXPECT_EQ(config.scheme().ChatWheel[0], u"");
  EXPECT_FALSE(config.SetChatWheelPhrase(8, text.data()));
  EXPECT_FALSE(config.SetQuickChatPhrase(0xFFFFFFFFU, text.data()));
}

TEST(HotkeyConfigGetters, CopyKeysAndMarks) {
  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  scheme.ShowFBlood = kQ;
  scheme.ShowEBlood = kW;
  scheme.WinLockMouse = kE;
  ASSERT_TRUE(config.SetItemKey(0x62, kR, true));
  KeyWord key;
  EXPECT_TRUE(config.GetShowFBlood(&key));
  EXPECT_EQ(key, kQ);
  EXPECT_TRUE(config.GetShowEBlood(&key));
  EXPECT_EQ(key, kW);
  EXPECT_TRUE(config.GetWinLockMouse(&key));
  EXPECT_EQ(key, kE);
  EXPECT_TRUE(config.GetItemKey(0x62, &key));
  EXPECT_EQ(key, kR);
  EXPECT_FALSE(config.GetItemKey(0x63, &key));
  EXPECT_FALSE(config.GetItemKey(0x62, nullptr));
  EXPECT_FALSE(config.GetShowFBlood(nullptr));

  bool on = true;
  EXPECT_FALSE(config.GetItemAutocast(0x62, &on)) << "never set";
  EXPECT_TRUE(config.SetItemAutocast(0x62, false));
  EXPECT_TRUE(config.GetItemAutocast(0x62, &on));
  EXPECT_FALSE(on);
  EXPECT_FALSE(config.GetItemAutocast(0x63, &on));
  EXPECT_FALSE(config.SetItemAutocast(0x63, true));
  EXPECT_FALSE(config.SetHeroSkillAutocast(12, true));
  EXPECT_FALSE(config.SetHeroSkillAutocast(-1, true));
}

TEST(HotkeyConfigIndexAboveTwo, ReadsAsTheDefaultsAndTakesNoWrites) {
  for (const std::uint32_t index : {3U, 7U, 10U}) {
    HotkeyConfig config;
    ASSERT_TRUE(config.setIndex(index));
    EXPECT_EQ(config.index(), index);
    std::u16string phrase = u"gg";
    EXPECT_FALSE(config.SetHeroSkillKey(0, kQ, false));
    EXPECT_FALSE(config.SetItemKey(0x67, kQ, false));
    EXPECT_FALSE(config.SetMouseKey(0, kQ, false));
    EXPECT_FALSE(config.SetSecretaryKey(0, kQ, false));
    EXPECT_FALSE(config.SetKeyRemap(0, remap(kQ, kW), false));
    EXPECT_FALSE(config.SetComboKeys(false, kCurrent, 0, 0));
    EXPECT_FALSE(config.SetNumComboKeyIndex(0));
    EXPECT_FALSE(config.SetQuickChatIndex(0));
    EXPECT_FALSE(config.SetQuickChatPhrase(0, phrase.data()));
    EXPECT_FALSE(config.SetChatWheelPhrase(0, phrase.data()));
    EXPECT_FALSE(config.SetHeroSkillAutocast(0, true));
    EXPECT_FALSE(config.SetItemAutocast(0x67, true));
    EXPECT_EQ(config.editableScheme(), nullptr);
    EXPECT_EQ(config.scheme(), HotkeyScheme());
    EXPECT_EQ(config.scheme().ZoomValue, 100);
  }
  HotkeyConfig config;
  EXPECT_FALSE(config.setIndex(11));
  EXPECT_FALSE(config.SetHeroSkillKey(0, kQ, true, 3));
  EXPECT_FALSE(config.SetHeroSkillKey(0, kQ, true, -2));
}

TEST(HotkeyConfigLoadScheme, TellsWhetherThereIsOneOfTheNumber) {
  HotkeyConfig config;
  MarkupDocument document;
  ASSERT_TRUE(document.setDoc(u"<KeyInfo_0><ZoomValue>120</ZoomValue></KeyInfo_0>"));
  ASSERT_TRUE(document.findElem(u"KeyInfo_0") && document.intoElem());
  for (const int number : {-1, HotkeyConfig::kSchemes}) {
    EXPECT_FALSE(config.LoadScheme(number, document));
    EXPECT_FALSE(config.SaveScheme(number, document));
  }
  EXPECT_TRUE(config.LoadScheme(2, document));
  EXPECT_EQ(config.scheme(2).ZoomValue, 120);
}

}  // namespace
}  // namespace brennet
