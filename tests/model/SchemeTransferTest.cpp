#include "model/SchemeTransfer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/KeyConflicts.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

auto changes(SettingPart part) {
  return testing::Eq(TransferRow{part, {}});
}

// A row that is refused because `holder` has the key.
auto isHeld(SettingPart part, KeyWord key, KeySlot holder) {
  return testing::AllOf(
      Field(&TransferRow::part, part),
      Field(&TransferRow::refusal,
            testing::VariantWith<DroppedKey>(testing::AllOf(
                Field(&DroppedKey::key, key),
                Field(&DroppedKey::conflict,
                      testing::Optional(KeyConflict{KeyConflict::Reason::Held, holder}))))));
}

TEST(SchemeTransfer, OfAnEqualSchemeChangesNothing) {
  HotkeyScheme scheme;
  scheme.HeroSkillKey[3] = kQ;
  scheme.QuickChat[1] = u"gl hf";
  const SchemeTransfer transfer = transferOf(scheme, scheme);
  EXPECT_THAT(transfer.rows, IsEmpty());
  EXPECT_EQ(transfer.result.HeroSkillKey[3], kQ);
  EXPECT_EQ(transfer.result.QuickChat[1], u"gl hf");
}

TEST(SchemeTransfer, TakesOverEveryKindOfSetting) {
  HotkeyScheme source;
  source.HeroSkillKey[2] = kQ;
  source.HeroSkillAutocast[2] = true;
  source.ItemAutocast[1] = true;
  source.HotKey[5] = KeyRemap(kE, kW);
  source.ComboKey = {kQ, kW, kE, kR};
  source.NumComboKeyIndex = 0;
  source.QuickChatIndex = 0;
  source.ShowFBlood = kCtrlQ;
  source.ChatWheel[7] = u" <&> \r\n\t\u8C22 ";
  source.HideUI = 1;
  source.ZoomValue = 120;
  const SchemeTransfer transfer = transferOf({}, source);
  EXPECT_THAT(differencesOf(source, transfer.result), IsEmpty());
  std::vector<SettingPart> parts;
  for (const TransferRow& row : transfer.rows) {
    EXPECT_FALSE(row.isRefused());
    parts.push_back(row.part);
  }
  EXPECT_EQ(parts, differencesOf({}, source));
}

TEST(SchemeTransfer, ClearsWhatTheOtherSchemeLacks) {
  HotkeyScheme current;
  current.HeroSkillKey[0] = kQ;
  current.QuickChat[0] = u"go";
  const SchemeTransfer transfer = transferOf(current, HotkeyScheme());
  EXPECT_THAT(transfer.rows, ElementsAre(changes({SettingId::HeroSkillKey, 0}),
                                         changes({SettingId::QuickChat, 0})));
  EXPECT_THAT(differencesOf({}, transfer.result), IsEmpty());
}

// What blocks a key is the scheme as it becomes, not as it is.
TEST(SchemeTransfer, DoesNotMindTheKeysThatItReplaces) {
  HotkeyScheme current;
  current.HeroSkillKey[0] = kQ;
  HotkeyScheme source;
  source.ItemKey[0] = kQ;
  const SchemeTransfer transfer = transferOf(current, source);
  EXPECT_THAT(transfer.rows,
              ElementsAre(changes({SettingId::HeroSkillKey, 0}), changes({SettingId::ItemKey, 0})));
}

TEST(SchemeTransfer, SaysWhatRefusesAKey) {
  HotkeyScheme source;
  source.HeroSkillKey[0] = kQ;
  source.ShowFBlood = kQ;
  const SchemeTransfer transfer = transferOf({}, source);
  EXPECT_THAT(transfer.rows, ElementsAre(changes({SettingId::HeroSkillKey, 0}),
                                         isHeld({SettingId::ShowFBlood}, kQ,
                                                KeySlot{SettingId::HeroSkillKey, 0})));
  EXPECT_FALSE(transfer.result.ShowFBlood.isSet());
}

// The key that was there goes all the same: one row says both.
TEST(SchemeTransfer, HasOneRowForAKeyThatGoesAndIsRefused) {
  HotkeyScheme current;
  current.ShowFBlood = kW;
  HotkeyScheme source;
  source.HeroSkillKey[0] = kQ;
  source.ShowFBlood = kQ;
  const SchemeTransfer transfer = transferOf(current, source);
  ASSERT_EQ(transfer.rows.size(), 2U);
  EXPECT_THAT(transfer.rows[1],
              isHeld({SettingId::ShowFBlood}, kQ, KeySlot{SettingId::HeroSkillKey, 0}));
}

// A refused remap loses both keys; the reason stands with the one that is sent.
TEST(SchemeTransfer, SaysOfARemapWhichKeyIsRefused) {
  HotkeyScheme current;
  current.HotKey[1] = KeyRemap(kE, kR);
  HotkeyScheme source;
  source.HeroSkillKey[0] = kQ;
  source.HotKey[1] = KeyRemap(kW, kQ);
  EXPECT_THAT(transferOf(current, source).rows,
              ElementsAre(changes({SettingId::HeroSkillKey, 0}),
                          changes({SettingId::HotKey, remapSource(1).index}),
                          isHeld({SettingId::HotKey, remapDestination(1).index}, kQ,
                                 KeySlot{SettingId::HeroSkillKey, 0})));
}

TEST(SchemeTransfer, SaysWhatRefusesAChoice) {
  const struct {
    SettingId setting;
    void (*choose)(HotkeyScheme&);
    KeyWord key;
  } kRows[] = {
      {SettingId::NumComboKeyIndex, [](HotkeyScheme& scheme) { scheme.NumComboKeyIndex = 1; },
       kItemPresetKeys[1][3]},
      {SettingId::QuickChatIndex, [](HotkeyScheme& scheme) { scheme.QuickChatIndex = 0; },
       kQuickChatKeySets[0][7]},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(static_cast<int>(row.setting));
    HotkeyScheme source;
    source.HeroSkillKey[4] = row.key;
    row.choose(source);
    const SchemeTransfer transfer = transferOf({}, source);
    const KeyConflict conflict{KeyConflict::Reason::Held, {SettingId::HeroSkillKey, 4}};
    EXPECT_THAT(transfer.rows,
                ElementsAre(changes({SettingId::HeroSkillKey, 4}),
                            testing::AllOf(Field(&TransferRow::part, SettingPart{row.setting}),
                                           Field(&TransferRow::refusal,
                                                 testing::VariantWith<DroppedChoice>(Field(
                                                     &DroppedChoice::taken,
                                                     ElementsAre(TakenKey{row.key, conflict})))))));
    EXPECT_EQ(transfer.result.NumComboKeyIndex, HotkeyScheme::kItemKeysFromMap);
    EXPECT_EQ(transfer.result.QuickChatIndex, 1U);
  }
}

TEST(SchemeTransfer, SaysOfAChoiceThatThereIsNone) {
  HotkeyScheme source;
  source.NumComboKeyIndex = 7;
  const SchemeTransfer transfer = transferOf({}, source);
  ASSERT_EQ(transfer.rows.size(), 1U);
  const auto* const dropped = std::get_if<DroppedChoice>(&transfer.rows[0].refusal);
  ASSERT_NE(dropped, nullptr);
  EXPECT_EQ(dropped->text, u"7");
  EXPECT_THAT(dropped->taken, IsEmpty());
}

}  // namespace
}  // namespace brennet
