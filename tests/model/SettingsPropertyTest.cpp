// Random settings and random blocks keep their promises through saving, loading, filling a block
// and taking one back. The seeds are fixed, so failures can be repeated.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>

#include "markup/MarkupDocument.h"
#include "model/BlockBytes.h"
#include "model/BlockFiller.h"
#include "model/BlockMerger.h"
#include "model/HotkeyConfig.h"
#include "model/KeyConflicts.h"
#include "model/SchemeTransfer.h"
#include "model/SettingTable.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

constexpr int kRounds = 20000;

class RandomSettings {
 public:
  explicit RandomSettings(unsigned seed) : random_(seed) {}

  unsigned below(unsigned bound) {
    return std::uniform_int_distribution<unsigned>(0, bound - 1)(random_);
  }

  // A small choice of keys, so that conflicts are common.
  KeyWord key() {
    constexpr std::uint8_t kKeys[] = {'Q', 'W', 'E', '1', '2', 0x70, 0x71, 0x0D, 0x08, 0xFF};
    return {kKeys[below(std::size(kKeys))], static_cast<std::uint8_t>(below(4) * 2)};
  }

  std::u16string phrase() {
    constexpr char16_t kUnits[] = {u'a', u'<', u'&', u'\u8C22', u'\u4F60', u'\u00E9', u' ', u'"'};
    std::u16string text(below(50), u' ');
    for (char16_t& unit : text) unit = kUnits[below(std::size(kUnits))];
    return text;
  }

  // Does anything that players and hosts can do to a configuration through the checked setters.
  void change(HotkeyConfig& config) {
    const int scheme = static_cast<int>(below(3));
    const int n = static_cast<int>(below(14)) - 1;
    const int slot = kItemSlotCodes[below(kItemSlots)];
    std::u16string text = phrase();
    switch (below(13)) {
      case 0:
        config.SetHeroSkillKey(n, key(), true, scheme);
        break;
      case 1:
        config.SetItemKey(slot, key(), true, scheme);
        break;
      case 2:
        config.SetMouseKey(n, key(), true, scheme);
        break;
      case 3:
        config.SetSecretaryKey(n, key(), true, scheme);
        break;
      case 4:
        config.SetKeyRemap(n, test::remap(key(), key()), true, scheme);
        break;
      case 5:
        config.SetComboKeys(true, scheme, test::keyPair(key(), key()), test::keyPair(key(), key()));
        break;
      case 6:
        config.SetNumComboKeyIndex(static_cast<int>(below(5)) - 1, scheme);
        break;
      case 7:
        config.SetQuickChatIndex(below(3), scheme);
        break;
      case 8:
        config.SetQuickChatPhrase(below(9), text.data(), scheme);
        break;
      case 9:
        config.SetChatWheelPhrase(below(9), text.data(), scheme);
        break;
      case 10:
        config.SetHeroSkillAutocast(n, below(2) == 1, scheme);
        break;
      case 11:
        config.SetItemAutocast(slot, below(2) == 1, scheme);
        break;
      default:
        changeSwitch(*config.editableScheme(scheme));
        break;
    }
    config.setIndex(below(3));
    config.setEnable(below(2) == 1);
  }

  void changeBytes(HotkeyBlock& block) {
    for (unsigned i = 0; i < 8; ++i) {
      bytesOf(block)[below(sizeof(block))] = static_cast<unsigned char>(below(256));
    }
    const auto& skills = std::get<KeyListSetting>(setting(SettingId::HeroSkillKey).kind);
    store16(bytesOf(block), skills.offsets[below(kHeroSkills)], key().raw());
    store16(bytesOf(block), skills.offsets[below(kHeroSkills)], key().raw());
  }

 private:
  void changeSwitch(HotkeyScheme& scheme) {
    scheme.HideUI = static_cast<std::uint8_t>(below(2));
    scheme.ShowFManaFlag = static_cast<std::uint8_t>(below(2));
    scheme.ZoomValue = static_cast<std::uint8_t>(below(256));
  }

  std::mt19937 random_;
};

// Every key that must be unique within a scheme.
std::vector<KeyWord> uniqueKeys(const HotkeyScheme& scheme) {
  std::vector<KeyWord> keys(scheme.HeroSkillKey.begin(), scheme.HeroSkillKey.end());
  keys.insert(keys.end(), scheme.ItemKey.begin(), scheme.ItemKey.end());
  keys.insert(keys.end(), scheme.SecretaryKey.begin(), scheme.SecretaryKey.end());
  for (const KeyRemap& remap : scheme.HotKey) keys.push_back(remap.Dest);
  for (const KeyWord key :
       {scheme.ComboKey.Key_D, scheme.ShowFBlood, scheme.ShowEBlood, scheme.HotkeyContrl,
        scheme.WinLockMouse, scheme.QuickChatKey, scheme.ChatWheelkey}) {
    keys.push_back(key);
  }
  return keys;
}

void expectSound(const HotkeyScheme& scheme) {
  const std::vector<KeyWord> keys = uniqueKeys(scheme);
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (!keys[i].isSet()) continue;
    for (std::size_t j = i + 1; j < keys.size(); ++j) {
      ASSERT_FALSE(keys[i].sameKey(keys[j])) << "key " << keys[i].raw() << " is bound twice";
    }
    ASSERT_FALSE(isItemPresetKey(scheme, keys[i])) << keys[i].raw();
    ASSERT_FALSE(isQuickChatKey(scheme, keys[i])) << keys[i].raw();
    for (const int forbidden : {0x0D, 0x08, 0x2E}) {
      ASSERT_NE(keys[i].virtualKey(), forbidden);
    }
  }
  ASSERT_LE(scheme.QuickChatIndex, 1U);
  ASSERT_GE(scheme.NumComboKeyIndex, -1);
  ASSERT_LE(scheme.NumComboKeyIndex, 2);
  for (const Phrases* phrases : {&scheme.QuickChat, &scheme.ChatWheel}) {
    for (const auto& phrase : *phrases) ASSERT_LE(phrase.value_or(u"").size(), kPhraseUnits);
  }
}

void expectSound(const HotkeyConfig& config) {
  for (int n = 0; n < HotkeyConfig::kSchemes; ++n) {
    ASSERT_NO_FATAL_FAILURE(expectSound(config.scheme(n))) << "scheme " << n;
  }
}

bool isIn(const QuickChatKeySet& set, KeyWord key) {
  return std::any_of(set.begin(), set.end(), [key](KeyWord k) { return k.sameKey(key); });
}

// The key of a mouse button may also go to a hero skill or to a quick-chat set later on. But a file
// lists mouse keys after hero skill keys, and while it is read the default set is in force. So a
// load refuses a mouse key that a hero skill has, and one of the default set unless the file
// chooses another set.
void dropRepeatedMouseKeys(HotkeyScheme& scheme) {
  for (KeyWord& mouse : scheme.MouseKey) {
    if (scheme.QuickChatIndex == 1 && isIn(kQuickChatKeySets[1], mouse)) mouse = kNoKey;
    for (const KeyWord skill : scheme.HeroSkillKey) {
      if (skill.isSet() && mouse.sameKey(skill)) mouse = kNoKey;
    }
  }
}

// A load refuses a combination that sends one of its own keys, because nothing has that key yet.
void dropCombinationOfItself(HotkeyScheme& scheme) {
  ComboKeys& combo = scheme.ComboKey;
  const bool repeats =
      combo.Key_D.isSet() && (combo.Key_B.sameKey(combo.Key_D) || combo.Key_C.sameKey(combo.Key_D));
  if (repeats) combo = ComboKeys();
}

// What a load gives back: marks are written for every entry, item marks from the current scheme.
HotkeyScheme asLoaded(const HotkeyConfig& config, int n) {
  HotkeyScheme scheme = config.scheme(n);
  for (auto& mark : scheme.HeroSkillAutocast) mark = mark.value_or(false);
  scheme.ItemAutocast = config.scheme().ItemAutocast;
  for (auto& mark : scheme.ItemAutocast) mark = mark.value_or(false);
  dropRepeatedMouseKeys(scheme);
  dropCombinationOfItself(scheme);
  return scheme;
}

TEST(SettingsPropertyOfFiles, SurviveSavingAndLoading) {
  RandomSettings random(20261120);
  HotkeyConfig config;
  for (int round = 0; round < kRounds; ++round) {
    random.change(config);
    ASSERT_NO_FATAL_FAILURE(expectSound(config)) << "round " << round;
    if (round % 20 != 0) continue;
    MarkupDocument document;
    ASSERT_TRUE(config.saveTo(document, static_cast<std::uint32_t>(round)));
    MarkupDocument reread;
    ASSERT_TRUE(reread.setDoc(document.doc()));
    HotkeyConfig loaded;
    ASSERT_TRUE(loaded.loadFrom(reread));
    for (int n = 0; n < HotkeyConfig::kSchemes; ++n) {
      ASSERT_EQ(loaded.scheme(n), asLoaded(config, n)) << "round " << round << ", scheme " << n;
    }
    ASSERT_EQ(loaded.enable(), config.enable());
    ASSERT_EQ(loaded.index(), config.index());
    ASSERT_EQ(loaded.LastSaveTime(), static_cast<std::uint32_t>(round));
  }
}

TEST(SettingsPropertyOfFiles, SurviveACopyByResetAndAssignment) {
  RandomSettings random(7);
  HotkeyConfig config;
  HotkeyConfig copy;
  for (int round = 0; round < kRounds; ++round) {
    random.change(config);
    copy.ResetAndCopyFrom(config);
    for (int n = 0; n < HotkeyConfig::kSchemes; ++n) {
      HotkeyScheme expected = config.scheme(n);
      for (auto& phrase : expected.QuickChat) phrase = phrase.value_or(u"");
      ASSERT_EQ(copy.scheme(n), expected) << "round " << round;
    }
  }
}

TEST(SettingsPropertyOfTransfers, BringWhatALoadWouldBring) {
  RandomSettings random(15);
  HotkeyConfig config;
  for (int round = 0; round < kRounds; ++round) {
    random.change(config);
    if (round % 20 != 0) continue;
    const HotkeyScheme& current = config.scheme(0);
    HotkeyConfig ofSource;
    *ofSource.editableScheme() = config.scheme(1);
    const SchemeTransfer transfer = transferOf(current, config.scheme(1));
    ASSERT_EQ(transfer.result, asLoaded(ofSource, 0)) << "round " << round;

    std::vector<SettingPart> changed;
    for (const TransferRow& row : transfer.rows) {
      if (differsIn(row.part, current, transfer.result)) changed.push_back(row.part);
      ASSERT_EQ(row.isRefused(), differsIn(row.part, config.scheme(1), transfer.result))
          << "round " << round << ", setting " << static_cast<int>(row.part.setting);
    }
    ASSERT_EQ(changed, differencesOf(current, transfer.result)) << "round " << round;
  }
}

TEST(SettingsPropertyOfBlocks, LeaveTheSettingsSoundWhenTheyAreTakenBack) {
  RandomSettings random(42);
  HotkeyConfig config;
  for (int round = 0; round < kRounds; ++round) {
    random.change(config);
    HotkeyBlock current;
    fillBlock(config, current);
    ASSERT_FALSE(mergeBlock(current, current, sizeof(current), config));

    HotkeyBlock returned = current;
    random.changeBytes(returned);
    mergeBlock(current, returned, sizeof(returned), config);
    ASSERT_NO_FATAL_FAILURE(expectSound(config)) << "round " << round;

    // A delivered block is stable: handing it back changes nothing.
    HotkeyBlock again;
    fillBlock(config, again);
    ASSERT_EQ(again.size, sizeof(again));
    ASSERT_FALSE(mergeBlock(again, again, sizeof(again), config));
  }
}

TEST(SettingsPropertyOfBlocks, OfAnySizeAreMergedAsAPrefix) {
  RandomSettings random(4711);
  HotkeyConfig config;
  for (int round = 0; round < kRounds; ++round) {
    random.change(config);
    HotkeyBlock current;
    fillBlock(config, current);
    HotkeyBlock changed = current;
    random.changeBytes(changed);
    HotkeyBlock returned = current;
    const std::size_t size = random.below(sizeof(returned) + 1);
    std::memcpy(&returned, &changed, size);
    const bool differs = std::memcmp(&returned, &current, sizeof(returned)) != 0;
    const bool merged = mergeBlock(current, returned, size, config);
    ASSERT_TRUE(differs || !merged) << "round " << round;
  }
}

}  // namespace
}  // namespace brennet
