#include "model/BlockFiller.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "model/BlockBytes.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;
using testing::Each;
using testing::ElementsAre;

HotkeyBlock filled(HotkeyConfig& config) {
  HotkeyBlock block;
  std::memset(&block, 0xEE, sizeof(block));
  fillBlock(config, block);
  return block;
}

std::uint16_t at(const HotkeyBlock& block, std::size_t offset) {
  return load16(bytesOf(block), offset);
}

TEST(BlockFiller, OfTheDefaultsHasNothingButSizeZoomAndChatKeySet) {
  HotkeyConfig config;
  const HotkeyBlock block = filled(config);
  HotkeyBlock expected{};
  expected.size = 1807;
  expected.zoomValue = 100;
  expected.quickChatIndex = 1;
  EXPECT_EQ(std::memcmp(&block, &expected, sizeof(block)), 0);
  EXPECT_TRUE(config.blockBuilt());
}

struct KeyRow {
  const char* name;
  std::size_t offset;
  KeyWord HotkeyScheme::*key;
};

TEST(BlockFiller, PutsEveryKeyAtItsOffset) {
  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  constexpr std::size_t kSkills[] = {8, 10, 12, 14, 16, 18, 64, 1792, 1794, 1796, 1798, 1800};
  constexpr std::size_t kItems[] = {20, 22, 24, 26, 28, 30};
  constexpr std::size_t kMouse[] = {1136, 1138, 1140};
  constexpr std::size_t kLedger[] = {1146, 38, 66};
  constexpr KeyRow kSingle[] = {
      {"ShowFBlood", 32, &HotkeyScheme::ShowFBlood},
      {"ShowEBlood", 34, &HotkeyScheme::ShowEBlood},
      {"HotkeyContrl", 1144, &HotkeyScheme::HotkeyContrl},
      {"WinLockMouse", 1142, &HotkeyScheme::WinLockMouse},
      {"QuickChatKey", 1148, &HotkeyScheme::QuickChatKey},
      {"ChatWheelkey", 1790, &HotkeyScheme::ChatWheelkey},
  };
  std::uint8_t vk = 0x21;
  std::vector<std::pair<std::size_t, KeyWord>> expected;
  const auto put = [&](std::size_t offset, KeyWord& field) {
    field = KeyWord(vk++, KeyWord::kCtrl);
    expected.emplace_back(offset, field);
  };
  for (std::size_t i = 0; i < 12; ++i) put(kSkills[i], scheme.HeroSkillKey[i]);
  for (std::size_t i = 0; i < 6; ++i) put(kItems[i], scheme.ItemKey[i]);
  for (std::size_t i = 0; i < 3; ++i) put(kMouse[i], scheme.MouseKey[i]);
  for (std::size_t i = 0; i < 3; ++i) put(kLedger[i], scheme.SecretaryKey[i]);
  for (std::size_t i = 0; i < 6; ++i) {
    put(40 + 4 * i, scheme.HotKey[i].Dest);
    put(42 + 4 * i, scheme.HotKey[i].Src);
  }
  put(80, scheme.ComboKey.Key_A);
  put(82, scheme.ComboKey.Key_B);
  put(84, scheme.ComboKey.Key_C);
  put(86, scheme.ComboKey.Key_D);
  for (const KeyRow& row : kSingle) put(row.offset, scheme.*row.key);

  const HotkeyBlock block = filled(config);
  for (const auto& [offset, key] : expected) EXPECT_EQ(at(block, offset), key.raw()) << offset;
  EXPECT_THAT(block.reserved69, Each(0));
  EXPECT_THAT(block.reserved88, Each(0));
}

struct SwitchRow {
  std::uint8_t HotkeyScheme::*field;
  std::size_t offset;
  int value;
};

TEST(BlockFiller, PutsEverySwitchAtItsBitOrByte) {
  constexpr SwitchRow kRows[] = {
      {&HotkeyScheme::DisableLWinFlag, 4, 1},   {&HotkeyScheme::LockMouseFlag, 4, 2},
      {&HotkeyScheme::ShowFBloodFlag, 4, 4},    {&HotkeyScheme::ShowEBloodFlag, 4, 8},
      {&HotkeyScheme::ViewNoDragFlag, 4, 16},   {&HotkeyScheme::StartJSQFlag, 4, 32},
      {&HotkeyScheme::ShowFManaFlag, 4, 128},   {&HotkeyScheme::HideUI, 1802, 1},
      {&HotkeyScheme::SkillHeroOnly, 1803, 1},  {&HotkeyScheme::CombokeyHeroOnly, 1804, 1},
      {&HotkeyScheme::DisableLeftAlt, 1805, 1}, {&HotkeyScheme::DisableLeftAltShowHP, 1806, 1},
  };
  for (const SwitchRow& row : kRows) {
    HotkeyConfig config;
    config.editableScheme()->*row.field = 1;
    HotkeyBlock block = filled(config);
    EXPECT_EQ(bytesOf(block)[row.offset], row.value);
    bytesOf(block)[row.offset] = 0;
    HotkeyConfig defaults;
    const HotkeyBlock expected = filled(defaults);
    EXPECT_EQ(std::memcmp(&block, &expected, sizeof(block)), 0) << row.offset << " alone";
  }
  HotkeyConfig config;
  config.setEnable(true);
  EXPECT_EQ(filled(config).flags, 0x80000000U);
}

TEST(BlockFiller, MarksQuickCastInHeroSkillsAndItems) {
  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  scheme.HeroSkillKey[0] = kQ;
  scheme.HeroSkillKey[1] = kW.with(KeyWord::kQuickCast);
  scheme.ItemKey[5] = kAltQ;
  ASSERT_TRUE(config.SetHeroSkillAutocast(0, true));
  ASSERT_TRUE(config.SetHeroSkillAutocast(2, true));
  ASSERT_TRUE(config.SetItemAutocast(0x62, true));
  const HotkeyBlock block = filled(config);
  EXPECT_EQ(block.heroSkillKeys0to5[0], 0x5108);
  EXPECT_EQ(block.heroSkillKeys0to5[1], 0x5700) << "a mark in the key itself is not delivered";
  EXPECT_EQ(block.heroSkillKeys0to5[2], 0) << "no key, no mark";
  EXPECT_EQ(block.itemKeys[5], 0x510C);
}

TEST(BlockFiller, DeliversTheKeysOfAChosenPresetWithoutMarks) {
  HotkeyConfig config;
  ASSERT_TRUE(config.SetItemKey(0x67, kR, true));
  ASSERT_TRUE(config.SetItemAutocast(0x67, true));
  ASSERT_TRUE(config.SetNumComboKeyIndex(1));
  EXPECT_THAT(filled(config).itemKeys, ElementsAre(0x5104, 0x5704, 0x4104, 0x5304, 0x5A04, 0x5804));
}

TEST(BlockFiller, LeavesOutRemapsWithoutBothHalvesAndCombinationsWithoutD) {
  HotkeyConfig config;
  ASSERT_TRUE(config.SetKeyRemap(0, remap(kQ, kNoKey), false));
  ASSERT_TRUE(config.SetKeyRemap(1, remap(kNoKey, kQ), false));
  ASSERT_TRUE(config.SetKeyRemap(2, remap(kQ, kW), false));
  ASSERT_TRUE(config.SetComboKeys(false, -1, keyPair(kQ, kW), keyPair(kE, kNoKey)));
  HotkeyBlock block = filled(config);
  EXPECT_THAT(block.keyRemaps, ElementsAre(0, 0, 0x51005700, 0, 0, 0));
  EXPECT_THAT(block.comboKeys, Each(0));
  ASSERT_TRUE(config.SetComboKeys(false, -1, keyPair(kQ, kNoKey), keyPair(kE, kR)));
  block = filled(config);
  EXPECT_THAT(block.comboKeys, ElementsAre(0x5100, 0, 0x4500, 0x5200)) << "no key is 0";
}

TEST(BlockFiller, AnswersTheDefaultsForASchemeThatIsNone) {
  HotkeyConfig config;
  config.editableScheme(0)->HideUI = 1;
  config.setEnable(true);
  ASSERT_TRUE(config.setIndex(7));
  const HotkeyBlock block = filled(config);
  EXPECT_EQ(block.zoomValue, 100);
  EXPECT_EQ(block.hideUI, 0);
  EXPECT_EQ(block.flags, 0x80000000U);
}

// Phrases

void setPhrase(Phrases& phrases, std::size_t n, const std::u16string& text) {
  phrases[n] = text;
}

TEST(BlockFiller, PacksPhrasesOneBehindTheOther) {
  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  setPhrase(scheme.QuickChat, 0, u"gg");
  setPhrase(scheme.QuickChat, 2, u"\u8C22\U0001F600");
  const HotkeyBlock block = filled(config);
  const std::string expected("gg\0\0\xE8\xB0\xA2\xF0\x9F\x98\x80\0\0\0\0\0\0", 17);
  EXPECT_EQ(std::string(block.quickChat, expected.size()), expected);
  EXPECT_EQ(std::string(block.quickChat + expected.size(), 1024 - expected.size()),
            std::string(1024 - expected.size(), '\0'));
}

TEST(BlockFiller, CutsPhrasesAtTheEndOfTheirAreaBetweenCharacters) {
  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  const std::u16string longest(42, u'\u8C22');
  for (std::size_t n = 0; n < kPhrases; ++n) {
    setPhrase(scheme.QuickChat, n, longest);
    setPhrase(scheme.ChatWheel, n, longest);
  }
  scheme.ChatWheelkey = kQ;
  scheme.HideUI = 1;
  const HotkeyBlock block = filled(config);
  std::string phrase;
  for (int i = 0; i < 42; ++i) phrase += "\xE8\xB0\xA2";
  const std::string whole = phrase + std::string(1, '\0');

  // Eight times 127 bytes fit into the quick-chat area.
  const std::string quickChat(block.quickChat, sizeof(block.quickChat));
  EXPECT_EQ(quickChat.find_last_not_of('\0'), 8 * whole.size() - 2);

  // Five fit into the chat wheel's; 5 bytes are left for the sixth phrase and three NULs.
  const std::string chatWheel(block.chatWheel, sizeof(block.chatWheel));
  EXPECT_EQ(chatWheel, whole + whole + whole + whole + whole + std::string(5, '\0'));
  EXPECT_EQ(block.chatWheelKey, kQ.raw());
  EXPECT_EQ(block.hideUI, 1);
}

TEST(BlockFiller, KeepsAClosingNulForEveryPhrase) {
  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  for (std::size_t n = 0; n < kPhrases; ++n) {
    setPhrase(scheme.ChatWheel, n, std::u16string(42, n < 4 ? u'\u8C22' : u'\u00E9'));
  }
  const HotkeyBlock block = filled(config);
  const std::string area(block.chatWheel, sizeof(block.chatWheel));
  EXPECT_EQ(std::count(area.begin(), area.end(), '\0'), 8);
  // 4 * 127 + 85 bytes; of the remaining 47, three are the NULs of phrases 5 to 7.
  const std::size_t sixth = 4 * 127 + 85;
  EXPECT_EQ(area.substr(sixth).find('\0'), 44U);
}

}  // namespace
}  // namespace brennet
