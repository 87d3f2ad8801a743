#include "ui/capture/KeySetting.h"

#include <gtest/gtest.h>

#include <string>

namespace brennet {
namespace {

using Kind = KeySetting::Kind;
using Outcome = Capture::Outcome;

constexpr KeyWord kQ('Q', 0);
constexpr KeyWord kW('W', 0);
constexpr KeyWord kAltQ('Q', KeyWord::kAlt);
constexpr KeyWord kCtrlV('V', KeyWord::kCtrl);

Capture captured(KeyWord key) {
  return {Outcome::Captured, KeyText(u"shown"), key};
}
const Capture kCleared{Outcome::Cleared, {}, kNoKey};

constexpr KeySetting kHeroSkill3{Kind::HeroSkill, 3};
constexpr KeySetting kSettings[] = {
    kHeroSkill3,
    {Kind::HeroSkill, 11},
    {Kind::Item, 0x67},
    {Kind::Item, 0x62},
    {Kind::RemapSource, 4},
    {Kind::RemapDestination, 4},
    {Kind::Combo, 0},
    {Kind::Combo, 3},
    {Kind::Mouse, 2},
    {Kind::Ledger, 1},
    {Kind::Single, 0, &HotkeyScheme::ShowFBlood},
    {Kind::Single, 0, &HotkeyScheme::WinLockMouse},
};

std::string nameOf(const KeySetting& setting) {
  return std::to_string(static_cast<int>(setting.kind)) + "/" + std::to_string(setting.number);
}

TEST(KeySetting, IsFoundThroughTheNameOfTheField) {
  struct Row {
    std::u16string_view name;
    Kind kind;
    int number;
  };
  constexpr Row kRows[] = {
      {u"edtSkill_1", Kind::HeroSkill, 0},          {u"edtSkill_12", Kind::HeroSkill, 11},
      {u"edtGoodsKey_7", Kind::Item, 0x67},         {u"edtGoodsKey_2", Kind::Item, 0x62},
      {u"edt_skillex_L_1", Kind::RemapSource, 0},   {u"edt_skillex_R_5", Kind::RemapDestination, 4},
      {u"edt_skillex_GROUP_L_2", Kind::Combo, 1},   {u"edt_skillex_GROUP_R_1", Kind::Combo, 3},
      {u"edt_skillex_GROUP_2_L_3", Kind::Combo, 2}, {u"edt_skillex_GROUP_2_R_1", Kind::Combo, 3},
      {u"edtMouseWheelMiddleKey", Kind::Mouse, 1},  {u"edtHotKeyLedgerSkill", Kind::Ledger, 2},
  };
  for (const Row& row : kRows) {
    EditControl control;
    ASSERT_TRUE(getEditControlTypeByParseName(row.name, BasicPage::Current, control));
    const auto setting = settingOf(control);
    ASSERT_TRUE(setting);
    EXPECT_EQ(setting->kind, row.kind);
    EXPECT_EQ(setting->number, row.number);
  }
  EXPECT_FALSE(settingOf(EditControl()));
}

TEST(KeySetting, TakesAFreeKeyAndGivesItUp) {
  for (const KeySetting& setting : kSettings) {
    SCOPED_TRACE(nameOf(setting));
    HotkeyConfig config;
    EXPECT_FALSE(store(captured(kQ), setting, config));
    EXPECT_EQ(keyOf(config, setting), kQ);
    EXPECT_FALSE(store(captured(kQ), setting, config)) << "it has that key already";
    EXPECT_EQ(keyOf(config, setting), kQ);
    EXPECT_FALSE(store(kCleared, setting, config));
    EXPECT_EQ(keyOf(config, setting), kNoKey);
  }
}

// The source of a remap, and A, B and C of a combination, may be keys of something else.
TEST(KeySetting, HasNoKeyAfterARefusal) {
  const KeySetting holder{Kind::Single, 0, &HotkeyScheme::QuickChatKey};
  for (const KeySetting& setting : kSettings) {
    SCOPED_TRACE(nameOf(setting));
    const bool isSource =
        setting.kind == Kind::RemapSource || (setting.kind == Kind::Combo && setting.number == 0);
    HotkeyConfig config;
    ASSERT_FALSE(store(captured(kQ), holder, config));
    ASSERT_FALSE(store(captured(kW), setting, config));
    EXPECT_EQ(store(captured(kQ), setting, config), !isSource);
    EXPECT_EQ(keyOf(config, setting), isSource ? kQ : kNoKey);
    EXPECT_EQ(keyOf(config, holder), kQ);
  }
}

TEST(KeySetting, OfARemapKeepsItsOtherHalf) {
  const KeySetting source{Kind::RemapSource, 1};
  const KeySetting destination{Kind::RemapDestination, 1};
  HotkeyConfig config;
  ASSERT_FALSE(store(captured(kQ), kHeroSkill3, config));
  ASSERT_FALSE(store(captured(kQ), source, config));
  ASSERT_FALSE(store(captured(kW), destination, config));
  EXPECT_TRUE(store(captured(kQ), destination, config));
  EXPECT_EQ(keyOf(config, destination), kNoKey);
  EXPECT_EQ(keyOf(config, source), kQ);
}

TEST(KeySetting, RefusesReservedKeys) {
  HotkeyConfig config;
  ASSERT_TRUE(config.SetNumComboKeyIndex(0));  // Alt+Q, W, E, R, D, F
  EXPECT_TRUE(store(captured(kAltQ), kHeroSkill3, config));
  ASSERT_TRUE(config.SetQuickChatIndex(0));  // Alt+1 to Alt+8
  EXPECT_TRUE(store(captured(KeyWord('1', KeyWord::kAlt)), kHeroSkill3, config));
  EXPECT_EQ(keyOf(config, kHeroSkill3), kNoKey);
}

TEST(KeySetting, LeavesTheChatWheelWithoutAKeyForPaste) {
  for (const bool isKnown : {true, false}) {
    for (const std::uint8_t alt : {std::uint8_t{0}, KeyWord::kAlt}) {
      HotkeyConfig config;
      config.editableScheme()->ChatWheelkey = kW;
      const auto setting = isKnown ? std::optional(kHeroSkill3) : std::nullopt;
      const KeyWord key = kCtrlV.with(alt);
      EXPECT_TRUE(store(captured(key), setting, config));
      EXPECT_EQ(config.scheme().ChatWheelkey, kNoKey);
      EXPECT_EQ(keyOf(config, kHeroSkill3), isKnown ? key : kNoKey) << "stored all the same";
    }
  }
  HotkeyConfig config;
  config.editableScheme()->ChatWheelkey = kW;
  EXPECT_FALSE(store(captured(KeyWord('V', KeyWord::kAlt)), kHeroSkill3, config));
  EXPECT_EQ(config.scheme().ChatWheelkey, kW);
}

TEST(KeySetting, IsLeftAloneByWhatIsOnlyShown) {
  HotkeyConfig config;
  ASSERT_FALSE(store(captured(kQ), kHeroSkill3, config));
  EXPECT_FALSE(store({Outcome::Shown, KeyText(u"CTRL +"), kNoKey}, kHeroSkill3, config));
  EXPECT_FALSE(store({}, kHeroSkill3, config));
  EXPECT_FALSE(store(kCleared, std::nullopt, config));
  EXPECT_FALSE(store(captured(kW), std::nullopt, config));
  EXPECT_EQ(keyOf(config, kHeroSkill3), kQ);
}

TEST(KeySetting, GoesNowhereWhereNoSchemeIsCurrent) {
  HotkeyConfig config;
  ASSERT_TRUE(config.setIndex(5));
  for (const KeySetting& setting : kSettings) {
    EXPECT_TRUE(store(captured(kQ), setting, config)) << nameOf(setting);
    EXPECT_FALSE(store(kCleared, setting, config)) << nameOf(setting);
    EXPECT_EQ(keyOf(config, setting), kNoKey) << nameOf(setting);
  }
  EXPECT_TRUE(store(captured(kCtrlV), std::nullopt, config));
}

}  // namespace
}  // namespace brennet
