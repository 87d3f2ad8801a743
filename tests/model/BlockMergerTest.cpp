#include "model/BlockMerger.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>

#include "model/BlockBytes.h"
#include "model/BlockFiller.h"
#include "model/SettingTable.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;

using Edit = std::function<void(HotkeyBlock&)>;

// Fills a block from `config`, changes it as the game would, and merges its first `size` bytes.
bool mergeEdited(HotkeyConfig& config, const Edit& edit, std::size_t size = sizeof(HotkeyBlock)) {
  HotkeyBlock current;
  fillBlock(config, current);
  HotkeyBlock edited = current;
  edit(edited);
  HotkeyBlock returned = current;
  std::memcpy(&returned, &edited, size);
  return mergeBlock(current, returned, size, config);
}

HotkeyConfig configWithKeys() {
  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  scheme.HeroSkillKey[0] = kQ;
  scheme.HeroSkillKey[1] = kW;
  scheme.ItemKey[0] = kE;
  return config;
}

TEST(BlockMerger, FindsNothingInAnUnchangedBlock) {
  HotkeyConfig config = configWithKeys();
  const HotkeyScheme before = config.scheme();
  EXPECT_FALSE(mergeEdited(config, [](HotkeyBlock&) {}));
  EXPECT_EQ(config.scheme(), before);
}

// The bits of the flag word that belong neither to a switch of the table nor to the global one.
std::uint32_t unusedFlags() {
  std::uint32_t used = kEnableFlag;
  for (const Setting& row : kSettings) {
    const auto* const kind = std::get_if<SwitchSetting>(&row.kind);
    if (kind == nullptr || kind->mask == SwitchSetting::kWholeByte) continue;
    used |= std::uint32_t{kind->mask} << 8 * (kind->offset - offsetof(HotkeyBlock, flags));
  }
  return ~used;
}

TEST(BlockMerger, DoesNotLookAtUnusedBytesAndBits) {
  HotkeyConfig config = configWithKeys();
  EXPECT_FALSE(mergeEdited(config, [](HotkeyBlock& block) {
    block.size = 5;
    block.flags |= unusedFlags();
    block.reserved69[3] = 1;
    block.reserved88[3] = 1;
  }));
}

struct FieldRow {
  const char* name;
  Edit edit;
  std::function<void(HotkeyScheme&)> expect;
};

TEST(BlockMerger, TakesEveryFieldThatDiffers) {
  const FieldRow kRows[] = {
      {"zoom", [](HotkeyBlock& b) { b.zoomValue = 140; },
       [](HotkeyScheme& s) { s.ZoomValue = 140; }},
      {"DisableLWinFlag", [](HotkeyBlock& b) { b.flags |= 1; },
       [](HotkeyScheme& s) { s.DisableLWinFlag = 1; }},
      {"ShowFManaFlag", [](HotkeyBlock& b) { b.flags |= 128; },
       [](HotkeyScheme& s) { s.ShowFManaFlag = 1; }},
      {"hero skill 0", [](HotkeyBlock& b) { b.heroSkillKeys0to5[0] = 0x5200; },
       [](HotkeyScheme& s) { s.HeroSkillKey[0] = kR, s.HeroSkillAutocast[0] = false; }},
      {"hero skill 6 with a mark", [](HotkeyBlock& b) { b.heroSkillKey6 = 0x5208; },
       [](HotkeyScheme& s) { s.HeroSkillKey[6] = kR, s.HeroSkillAutocast[6] = true; }},
      {"hero skill 11", [](HotkeyBlock& b) { b.heroSkillKeys7to11[4] = 0x5200; },
       [](HotkeyScheme& s) { s.HeroSkillKey[11] = kR, s.HeroSkillAutocast[11] = false; }},
      {"hero skill cleared", [](HotkeyBlock& b) { b.heroSkillKeys0to5[1] = 0; },
       [](HotkeyScheme& s) { s.HeroSkillKey[1] = kNoKey, s.HeroSkillAutocast[1] = false; }},
      {"item", [](HotkeyBlock& b) { b.itemKeys[5] = 0x520C; },
       [](HotkeyScheme& s) {
         s.ItemKey[5] = KeyWord('R', KeyWord::kAlt), s.ItemAutocast[5] = true;
       }},
      {"remap", [](HotkeyBlock& b) { b.keyRemaps[5] = 0x52005400; },
       [](HotkeyScheme& s) { s.HotKey[5] = KeyRemap(0x52005400); }},
      {"combination", [](HotkeyBlock& b) { b.comboKeys[0] = 0x5200, b.comboKeys[3] = 0x5400; },
       [](HotkeyScheme& s) {
         s.ComboKey = {kR, kNoKey, kNoKey, KeyWord(0x5400)};
       }},
      {"mouse key", [](HotkeyBlock& b) { b.mouseKeys[2] = 0x5200; },
       [](HotkeyScheme& s) { s.MouseKey[2] = kR; }},
      {"Ledger key 0", [](HotkeyBlock& b) { b.ledgerKey0 = 0x5200; },
       [](HotkeyScheme& s) { s.SecretaryKey[0] = kR; }},
      {"Ledger key 2", [](HotkeyBlock& b) { b.ledgerKey2 = 0x5200; },
       [](HotkeyScheme& s) { s.SecretaryKey[2] = kR; }},
      {"ShowFBlood", [](HotkeyBlock& b) { b.showFBlood = 0x5200; },
       [](HotkeyScheme& s) { s.ShowFBlood = kR; }},
      {"ChatWheelkey", [](HotkeyBlock& b) { b.chatWheelKey = 0x5200; },
       [](HotkeyScheme& s) { s.ChatWheelkey = kR; }},
      {"QuickChatIndex", [](HotkeyBlock& b) { b.quickChatIndex = 0; },
       [](HotkeyScheme& s) { s.QuickChatIndex = 0; }},
      {"quick chat", [](HotkeyBlock& b) { b.quickChat[0] = 'x'; },
       [](HotkeyScheme& s) { s.QuickChat[0] = u"x"; }},
      {"chat wheel", [](HotkeyBlock& b) { b.chatWheel[1] = 'y'; },
       [](HotkeyScheme& s) { s.ChatWheel[1] = u"y"; }},
      {"HideUI", [](HotkeyBlock& b) { b.hideUI = 1; }, [](HotkeyScheme& s) { s.HideUI = 1; }},
      {"DisableLeftAltShowHP", [](HotkeyBlock& b) { b.disableLeftAltShowHP = 7; },
       [](HotkeyScheme& s) { s.DisableLeftAltShowHP = 7; }},
  };
  for (const FieldRow& row : kRows) {
    HotkeyConfig config = configWithKeys();
    HotkeyScheme expected = config.scheme();
    row.expect(expected);
    EXPECT_TRUE(mergeEdited(config, row.edit)) << row.name;
    EXPECT_EQ(config.scheme(), expected) << row.name;
    EXPECT_EQ(config.scheme(1), HotkeyScheme()) << row.name;
  }
}

TEST(BlockMerger, TakesTheGlobalSwitch) {
  HotkeyConfig config;
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { b.flags |= kEnableFlag; }));
  EXPECT_TRUE(config.enable());
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { b.flags &= ~kEnableFlag; }));
  EXPECT_FALSE(config.enable());
}

TEST(BlockMerger, SwapsTwoKeys) {
  HotkeyConfig config = configWithKeys();
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) {
    b.heroSkillKeys0to5[0] = kW.raw();
    b.heroSkillKeys0to5[1] = kQ.raw();
  }));
  EXPECT_EQ(config.scheme().HeroSkillKey[0], kW);
  EXPECT_EQ(config.scheme().HeroSkillKey[1], kQ);
}

TEST(BlockMerger, MovesAKeyFromALaterFieldToAnEarlierOne) {
  HotkeyConfig config;
  config.editableScheme()->ChatWheelkey = kQ;
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) {
    b.heroSkillKeys0to5[0] = kQ.raw();
    b.chatWheelKey = 0;
  }));
  EXPECT_EQ(config.scheme().HeroSkillKey[0], kQ);
  EXPECT_EQ(config.scheme().ChatWheelkey, kNoKey);
}

TEST(BlockMerger, GivesARefusedKeyToNobody) {
  HotkeyConfig config = configWithKeys();
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) {
    b.heroSkillKeys0to5[1] = kE.raw();  // an item has the key
    b.mouseKeys[0] = kAltF1.raw();      // sends a phrase
    b.showFBlood = 0x0D00;              // Enter
    b.keyRemaps[0] = remap(kR, kE);
    b.comboKeys[3] = kE.raw();
  }));
  const HotkeyScheme& scheme = config.scheme();
  EXPECT_EQ(scheme.HeroSkillKey[1], kNoKey);
  EXPECT_EQ(scheme.ItemKey[0], kE) << "the key of an unchanged field stays";
  EXPECT_EQ(scheme.MouseKey[0], kNoKey);
  EXPECT_EQ(scheme.ShowFBlood, kNoKey);
  EXPECT_EQ(scheme.HotKey[0], KeyRemap());
  EXPECT_EQ(scheme.ComboKey, ComboKeys());
}

TEST(BlockMerger, LetsTheEarlierOfTwoEqualKeysWin) {
  HotkeyConfig config;
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) {
    b.itemKeys[0] = kQ.raw();
    b.heroSkillKeys7to11[4] = kQ.raw();
    b.chatWheelKey = kQ.raw();
  }));
  EXPECT_EQ(config.scheme().HeroSkillKey[11], kQ);
  EXPECT_EQ(config.scheme().ItemKey[0], kNoKey);
  EXPECT_EQ(config.scheme().ChatWheelkey, kNoKey);
}

TEST(BlockMerger, TakesANoKeyOfAnyWritingAsNoKey) {
  for (const int raw : {0x0000, 0x0004, 0x0008, 0xFF00, 0xFF07}) {
    HotkeyConfig config = configWithKeys();
    EXPECT_TRUE(mergeEdited(config, [raw](HotkeyBlock& b) {
      b.heroSkillKeys0to5[0] = static_cast<std::uint16_t>(raw);
    })) << raw;
    EXPECT_EQ(config.scheme().HeroSkillKey[0], kNoKey) << raw;
  }
}

TEST(BlockMerger, ChangesTheMarkAloneWhereOnlyTheMarkDiffers) {
  HotkeyConfig config = configWithKeys();
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { b.heroSkillKeys0to5[0] = 0x5108; }));
  EXPECT_EQ(config.scheme().HeroSkillKey[0], kQ);
  EXPECT_EQ(config.scheme().HeroSkillAutocast[0], true);
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { b.heroSkillKeys0to5[0] = 0x5100; }));
  EXPECT_EQ(config.scheme().HeroSkillKey[0], kQ);
  EXPECT_EQ(config.scheme().HeroSkillAutocast[0], false);
}

TEST(BlockMerger, KeepsItemKeysAndMarksBehindAPreset) {
  HotkeyConfig config;
  ASSERT_TRUE(config.SetItemKey(0x67, kE, true));
  ASSERT_TRUE(config.SetItemAutocast(0x67, true));
  ASSERT_TRUE(config.SetNumComboKeyIndex(0));

  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { b.itemKeys[1] = 0x570C; }));
  EXPECT_EQ(config.scheme().ItemKey[1], kNoKey) << "the mark alone differs";
  EXPECT_EQ(config.scheme().ItemAutocast[1], true);

  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { b.itemKeys[0] = kR.raw(); }));
  EXPECT_EQ(config.scheme().ItemKey[0], kR) << "into the item-key map";
  EXPECT_EQ(config.scheme().ItemAutocast[0], true) << "a preset is delivered without marks";
  EXPECT_EQ(config.scheme().NumComboKeyIndex, 0);
}

TEST(BlockMerger, KeepsTheQuickChatSetWhereItsKeysAreTaken) {
  HotkeyConfig config;
  ASSERT_TRUE(config.SetHeroSkillKey(0, kAlt1, true));
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { b.quickChatIndex = 0; }));
  EXPECT_EQ(config.scheme().QuickChatIndex, 1U);
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { b.quickChatIndex = 0x0101; }));
  EXPECT_EQ(config.scheme().QuickChatIndex, 1U);
}

TEST(BlockMerger, OfASchemeThatIsNoneGoesNowhere) {
  HotkeyConfig config;
  ASSERT_TRUE(config.setIndex(5));
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { b.hideUI = 1; }));
  EXPECT_EQ(config.scheme(), HotkeyScheme());
  for (int n = 0; n < 3; ++n) EXPECT_EQ(config.scheme(n), HotkeyScheme());
}

// Phrases

void writeArea(HotkeyBlock& block, const std::string& bytes) {
  std::memset(block.chatWheel, 0, sizeof(block.chatWheel));
  std::memcpy(block.chatWheel, bytes.data(), std::min(bytes.size(), sizeof(block.chatWheel)));
}

TEST(BlockMerger, SetsOnlyPhrasesWhoseBytesChanged) {
  HotkeyConfig config;
  const std::u16string longest(42, u'\u8C22');
  for (auto& phrase : config.editableScheme()->ChatWheel) phrase = longest;
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { b.chatWheel[0] = 'x'; }));
  const Phrases& phrases = config.scheme().ChatWheel;
  EXPECT_NE(phrases[0], longest);
  for (std::size_t n = 1; n < kPhrases; ++n) {
    EXPECT_EQ(phrases[n], longest) << n << ": the block may cut it, the scheme keeps it whole";
  }
}

TEST(BlockMerger, CutsReturnedPhrasesBetweenCharacters) {
  std::string chinese;
  for (int i = 0; i < 40; ++i) chinese += "\xE8\xB0\xA2";
  const struct {
    std::string bytes;
    std::u16string phrase;
  } kRows[] = {
      {chinese, std::u16string(33, u'\u8C22')},           // 99 of 100 bytes
      {std::string(100, 'a'), std::u16string(42, u'a')},  // 42 units
      {std::string(41, 'a') + "\xF0\x9F\x98\x80", std::u16string(41, u'a')},
      {"\xFF"
       "a\xE8\xB0",
       u"\uFFFD"
       u"a\uFFFD"},
  };
  for (const auto& row : kRows) {
    HotkeyConfig config;
    EXPECT_TRUE(mergeEdited(config, [&](HotkeyBlock& b) { writeArea(b, row.bytes); }));
    EXPECT_EQ(config.scheme().ChatWheel[0], row.phrase);
  }
}

TEST(BlockMerger, SplitsAnAreaWithoutClosingNuls) {
  HotkeyConfig config;
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { writeArea(b, std::string(640, 'a')); }));
  EXPECT_EQ(config.scheme().ChatWheel[0], std::u16string(42, u'a'));
  EXPECT_EQ(config.scheme().ChatWheel[1], u"");
  EXPECT_EQ(config.scheme().ChatWheelkey, kNoKey);
}

TEST(BlockMerger, LeavesPhrasesAloneThatAShorterRecordDoesNotCarryToTheirEnds) {
  HotkeyConfig config;
  config.editableScheme()->QuickChat[0] = u"hello";
  config.editableScheme()->QuickChat[1] = u"world";
  config.editableScheme()->QuickChat[2] = u"gg";
  const std::size_t area = offsetof(HotkeyBlock, quickChat);
  const auto shorten = [](HotkeyBlock& b) { std::memcpy(b.quickChat, "hi\0xy", 5); };
  EXPECT_TRUE(mergeEdited(config, shorten, area + 5));
  const Phrases& phrases = config.scheme().QuickChat;
  EXPECT_EQ(phrases[0], u"hi");
  EXPECT_EQ(phrases[1], u"world");
  EXPECT_EQ(phrases[2], u"gg");
  for (std::size_t n = 3; n < kPhrases; ++n) EXPECT_EQ(phrases[n].value_or(u""), u"") << n;
}

TEST(BlockMerger, CountsADifferenceBehindTheLastPhrase) {
  HotkeyConfig config;
  EXPECT_TRUE(mergeEdited(config, [](HotkeyBlock& b) { b.quickChat[1000] = 'x'; }));
  EXPECT_EQ(config.scheme(), HotkeyScheme());
}

TEST(BlockMerger, TakesEightPhrasesAndNoMore) {
  HotkeyConfig config;
  const std::string bytes("1\0002\0003\0004\0005\0006\0007\0008\0009\000", 18);
  EXPECT_TRUE(mergeEdited(config, [&](HotkeyBlock& b) { writeArea(b, bytes); }));
  EXPECT_EQ(config.scheme().ChatWheel[0], u"1");
  EXPECT_EQ(config.scheme().ChatWheel[7], u"8");
}

}  // namespace
}  // namespace brennet
