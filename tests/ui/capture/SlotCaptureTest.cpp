#include "ui/capture/SlotCapture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace brennet {
namespace {

using Outcome = Capture::Outcome;

constexpr KeyWord kQ('Q', 0);
constexpr KeyWord kW('W', 0);
constexpr KeyWord kAltQ('Q', KeyWord::kAlt);
constexpr KeyWord kCtrlV('V', KeyWord::kCtrl);

Capture captured(KeyWord key) {
  return {Outcome::Captured, KeyText(u"shown"), key};
}
const Capture kCleared{Outcome::Cleared, {}, kNoKey};

constexpr KeySlot kHeroSkill3{SettingId::HeroSkillKey, 3};
constexpr KeySlot kSlots[] = {
    kHeroSkill3,
    {SettingId::HeroSkillKey, 11},
    {SettingId::ItemKey, 0},
    {SettingId::ItemKey, 5},
    remapSource(4),
    remapDestination(4),
    {SettingId::ComboKey, 0},
    kComboTarget,
    {SettingId::MouseKey, 2},
    {SettingId::SecretaryKey, 1},
    {SettingId::ShowFBlood},
    {SettingId::WinLockMouse},
};

std::string nameOf(KeySlot slot) {
  return std::to_string(static_cast<int>(slot.setting)) + "/" + std::to_string(slot.index);
}

KeyWord keyOf(const HotkeyConfig& config, KeySlot slot) {
  return keyAt(config.scheme(), slot);
}

TEST(SlotCapture, TakesAFreeKeyAndGivesItUp) {
  for (const KeySlot slot : kSlots) {
    SCOPED_TRACE(nameOf(slot));
    HotkeyConfig config;
    EXPECT_FALSE(store(captured(kQ), slot, config));
    EXPECT_EQ(keyOf(config, slot), kQ);
    EXPECT_FALSE(store(captured(kQ), slot, config)) << "it has that key already";
    EXPECT_EQ(keyOf(config, slot), kQ);
    EXPECT_FALSE(store(kCleared, slot, config));
    EXPECT_EQ(keyOf(config, slot), kNoKey);
  }
}

// The source of a remap, and A, B and C of a combination, may be keys of something else.
TEST(SlotCapture, LeavesNoKeyAfterARefusal) {
  const KeySlot holder{SettingId::QuickChatKey};
  for (const KeySlot slot : kSlots) {
    SCOPED_TRACE(nameOf(slot));
    const bool isSource = slot == remapSource(4) || slot == KeySlot{SettingId::ComboKey, 0};
    HotkeyConfig config;
    ASSERT_FALSE(store(captured(kQ), holder, config));
    ASSERT_FALSE(store(captured(kW), slot, config));
    const auto refusal = store(captured(kQ), slot, config);
    ASSERT_EQ(refusal.has_value(), !isSource);
    if (refusal) {
      EXPECT_EQ(refusal->key, kQ);
      EXPECT_THAT(refusal->reasons,
                  testing::ElementsAre(KeyConflict{KeyConflict::Reason::Held, holder}));
    }
    EXPECT_EQ(keyOf(config, slot), isSource ? kQ : kNoKey);
    EXPECT_EQ(keyOf(config, holder), kQ);
  }
}

TEST(SlotCapture, KeepsTheOtherHalfOfARemap) {
  const KeySlot source = remapSource(1);
  const KeySlot destination = remapDestination(1);
  HotkeyConfig config;
  ASSERT_FALSE(store(captured(kQ), kHeroSkill3, config));
  ASSERT_FALSE(store(captured(kQ), source, config));
  ASSERT_FALSE(store(captured(kW), destination, config));
  EXPECT_TRUE(store(captured(kQ), destination, config));
  EXPECT_EQ(keyOf(config, destination), kNoKey);
  EXPECT_EQ(keyOf(config, source), kQ);
}

TEST(SlotCapture, RefusesReservedKeys) {
  HotkeyConfig config;
  ASSERT_TRUE(config.SetNumComboKeyIndex(0));  // Alt+Q, W, E, R, D, F
  EXPECT_TRUE(store(captured(kAltQ), kHeroSkill3, config));
  ASSERT_TRUE(config.SetQuickChatIndex(0));  // Alt+1 to Alt+8
  EXPECT_TRUE(store(captured(KeyWord('1', KeyWord::kAlt)), kHeroSkill3, config));
  EXPECT_EQ(keyOf(config, kHeroSkill3), kNoKey);
}

TEST(SlotCapture, LeavesTheChatWheelWithoutAKeyForPaste) {
  for (const bool isKnown : {true, false}) {
    for (const std::uint8_t alt : {std::uint8_t{0}, KeyWord::kAlt}) {
      HotkeyConfig config;
      config.editableScheme()->ChatWheelkey = kW;
      const auto slot = isKnown ? std::optional(kHeroSkill3) : std::nullopt;
      const KeyWord key = kCtrlV.with(alt);
      EXPECT_TRUE(store(captured(key), slot, config));
      EXPECT_EQ(config.scheme().ChatWheelkey, kNoKey);
      EXPECT_EQ(keyOf(config, kHeroSkill3), isKnown ? key : kNoKey) << "stored all the same";
    }
  }
  HotkeyConfig config;
  config.editableScheme()->ChatWheelkey = kW;
  EXPECT_FALSE(store(captured(KeyWord('V', KeyWord::kAlt)), kHeroSkill3, config));
  EXPECT_EQ(config.scheme().ChatWheelkey, kW);
}

TEST(SlotCapture, StoresNothingOfWhatIsOnlyShown) {
  HotkeyConfig config;
  ASSERT_FALSE(store(captured(kQ), kHeroSkill3, config));
  EXPECT_FALSE(store({Outcome::Shown, KeyText(u"CTRL +"), kNoKey}, kHeroSkill3, config));
  EXPECT_FALSE(store({}, kHeroSkill3, config));
  EXPECT_FALSE(store(kCleared, std::nullopt, config));
  EXPECT_FALSE(store(captured(kW), std::nullopt, config));
  EXPECT_EQ(keyOf(config, kHeroSkill3), kQ);
}

TEST(SlotCapture, GoesNowhereWhereNoSchemeIsCurrent) {
  HotkeyConfig config;
  ASSERT_TRUE(config.setIndex(5));
  for (const KeySlot slot : kSlots) {
    EXPECT_TRUE(store(captured(kQ), slot, config)) << nameOf(slot);
    EXPECT_FALSE(store(kCleared, slot, config)) << nameOf(slot);
    EXPECT_EQ(keyOf(config, slot), kNoKey) << nameOf(slot);
  }
  EXPECT_TRUE(store(captured(kCtrlV), std::nullopt, config));
}

}  // namespace
}  // namespace brennet
