#include "ui/capture/EditControl.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "ui/capture/FeatureKeys.h"

namespace brennet {
namespace {

struct Row {
  std::u16string name;
  bool isKnown;
  EditControl control;
};

void expectRows(const Row* rows, std::size_t count, BasicPage page) {
  for (std::size_t i = 0; i < count; ++i) {
    EditControl control{.nMouseWheelIndex = 9};
    const std::string name(rows[i].name.begin(), rows[i].name.end());
    EXPECT_EQ(getEditControlTypeByParseName(rows[i].name, page, control), rows[i].isKnown) << name;
    EXPECT_EQ(control, rows[i].control) << name;
  }
}

TEST(EditControl, IsSelectedByTheNameOnBothPages) {
  const Row kRows[] = {
      {u"edtSkill_1", true, {.nSkillIndex = 1}},
      {u"edtSkill_7", true, {.nSkillIndex = 7}},
      {u"edtSkill_0", false, {}},
      {u"edtSkill_", false, {}},
      {u"edtSkill_x", false, {}},
      {u"edtGoodsKey_1", true, {.nGoodsIndex = 1}},
      {u"edtGoodsKey_8", true, {.nGoodsIndex = 8}},
      {u"edtGoodsKey_3", false, {.nGoodsIndex = 3}},
      {u"edtGoodsKey_6", false, {.nGoodsIndex = 6}},
      {u"edtGoodsKey_9", false, {.nGoodsIndex = 9}},
      {u"edtGoodsKey_12", false, {}},
      {u"edt_skillex_L_5", true, {.nSkillExSrcIndex = 5}},
      {u"edt_skillex_L_6", false, {.nSkillExSrcIndex = 6}},
      {u"edt_skillex_R_1", true, {.nSkillExDstIndex = 1}},
      {u"edt_skillex_GROUP_L_2", true, {.nSkillGroupSrcIndex = 2}},
      {u"edt_skillex_GROUP_L_3", false, {.nSkillGroupSrcIndex = 3}},
      {u"edt_skillex_GROUP_R_1", true, {.nSkillGroupDstIndex = 1}},
      {u"edt_skillex_GROUP_R_2", false, {.nSkillGroupDstIndex = 2}},
      {u"edtMouseWheelUpKey", true, {.nMouseWheelIndex = 1}},
      {u"edtMouseWheelMiddleKey", true, {.nMouseWheelIndex = 2}},
      {u"edtMouseWheelDownKey", true, {.nMouseWheelIndex = 3}},
      {u"edtMouseWheelDownKey2", false, {}},
      {u"edtOpenCloseLedger", true, {.nLedgerIndex = 1}},
      {u"edtShowHideLedgerData", true, {.nLedgerIndex = 2}},
      {u"edtHotKeyLedgerSkill", true, {.nLedgerIndex = 3}},
      {u"edtSomethingElse", false, {}},
      {u"EDTSKILL_1", false, {}},
      {u"", false, {}},
  };
  expectRows(kRows, std::size(kRows), BasicPage::Current);
  expectRows(kRows, std::size(kRows), BasicPage::Older);
}

TEST(EditControl, OfTheCurrentPageHasTwelveSkillsAndASecondGroup) {
  const Row kRows[] = {
      {u"edtSkill_12", true, {.nSkillIndex = 12}},
      {u"edtSkill_13", false, {.nSkillIndex = 13}},
      {u"edtSkill_012", true, {.nSkillIndex = 12}},
      {u"edtSkill__8", true, {.nSkillIndex = 8}},
      {u"edtSkill_8_", true, {.nSkillIndex = 8}},
      {u"edtSkill_3_4", true, {.nSkillIndex = 4}},
      {u"edtSkill_256", false, {}},
      {u"edtSkill_4294967297", false, {}},
      {u"edtSkill___", false, {}},
      {u"edt_skillex_GROUP_2_L_3", true, {.nSkillGroup2SrcIndex = 3}},
      {u"edt_skillex_GROUP_2_L_4", false, {.nSkillGroup2SrcIndex = 4}},
      {u"edt_skillex_GROUP_2_R_1", true, {.nSkillGroup2DstIndex = 1}},
  };
  expectRows(kRows, std::size(kRows), BasicPage::Current);
}

TEST(EditControl, OfTheOlderPageHasNeither) {
  const Row kRows[] = {
      {u"edtSkill_8", false, {.nSkillIndex = 8}},
      {u"edtSkill_12", false, {}},
      {u"edt_skillex_GROUP_2_L_1", false, {}},
      {u"edt_skillex_GROUP_2_R_1", false, {}},
  };
  expectRows(kRows, std::size(kRows), BasicPage::Older);
}

TEST(EditControl, HasTheSlotThatTheNameSelects) {
  struct SlotRow {
    std::u16string_view name;
    KeySlot slot;
  };
  constexpr SlotRow kRows[] = {
      {u"edtSkill_1", {SettingId::HeroSkillKey, 0}},
      {u"edtSkill_12", {SettingId::HeroSkillKey, 11}},
      {u"edtGoodsKey_7", {SettingId::ItemKey, 0}},
      {u"edtGoodsKey_2", {SettingId::ItemKey, 5}},
      {u"edt_skillex_L_1", remapSource(0)},
      {u"edt_skillex_R_5", remapDestination(4)},
      {u"edt_skillex_GROUP_L_2", {SettingId::ComboKey, 1}},
      {u"edt_skillex_GROUP_R_1", kComboTarget},
      {u"edt_skillex_GROUP_2_L_3", {SettingId::ComboKey, 2}},
      {u"edt_skillex_GROUP_2_R_1", kComboTarget},
      {u"edtMouseWheelMiddleKey", {SettingId::MouseKey, 1}},
      {u"edtHotKeyLedgerSkill", {SettingId::SecretaryKey, 2}},
  };
  for (const SlotRow& row : kRows) {
    EXPECT_EQ(slotOfField(row.name, BasicPage::Current), row.slot);
  }
  EXPECT_FALSE(slotOfField(u"edtSkill_13", BasicPage::Current));
  EXPECT_FALSE(slotOfField(u"edtGoodsKey_3", BasicPage::Current)) << "it is no inventory slot";
  EXPECT_FALSE(slotOfField(u"edtSkill_8", BasicPage::Older));
  EXPECT_FALSE(slotOfField(u"chatLineEdit_1", BasicPage::Current));
}

TEST(FeatureKeys, HasTheSlotThatTheNameOfItsElementSelects) {
  struct SlotRow {
    std::u16string_view name;
    std::optional<KeySlot> slot;
  };
  constexpr SlotRow kRows[] = {
      {u"edtShowFBlood", KeySlot{SettingId::ShowFBlood}},
      {u"edtShowEBlood", KeySlot{SettingId::ShowEBlood}},
      {u"edtHotkeyContrl", KeySlot{SettingId::HotkeyContrl}},
      {u"edtWinLockMouse", KeySlot{SettingId::WinLockMouse}},
      {u"edtQuickChatKey", KeySlot{SettingId::QuickChatKey}},
      {u"edtChatWheelKey", KeySlot{SettingId::ChatWheelkey}},
      {u"edtMouseKey_1", KeySlot{SettingId::MouseKey, 0}},
      {u"edtHeroSkillKey_12", KeySlot{SettingId::HeroSkillKey, 11}},
      {u"edtHeroSkillKey_13", {}},
      {u"edtHeroSkillKey_0", {}},
      {u"edtHeroSkillKey_01", {}},
      {u"edtHeroSkillKey_4294967297", {}},
      {u"edtHeroSkillKey_1x", {}},
      {u"edtHeroSkillKey_", {}},
      {u"edtHeroSkillKey1", {}},
      {u"edtHeroSkillKey", {}},
      {u"edtShowFBlood_1", {}},
      {u"edtShowFBloodFlag", {}},
      {u"edtHotKey", {}},
      {u"edtComboKey_1", {}},
      {u"edt", {}},
      {u"ShowFBlood", {}},
      {u"", {}},
  };
  for (const SlotRow& row : kRows) {
    EXPECT_EQ(featureKeyOf(row.name), row.slot) << std::string(row.name.begin(), row.name.end());
  }
}

}  // namespace
}  // namespace brennet
