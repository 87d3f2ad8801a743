// The table of the DotA 7 values, compared with lists that rules make from their names.

#include "gameside/dota7/Dota7Values.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>

namespace brennet {
namespace {

using Names = std::set<std::u16string>;

std::u16string numbered(const std::u16string& before, int number, const std::u16string& after) {
  const std::string digits = std::to_string(number);
  return before + std::u16string(digits.begin(), digits.end()) + after;
}

// The text values of CONTROL.
Names controlTexts() {
  Names names = {u"HMoveKeyC",  u"HAttackKeyC",  u"HPatrolKeyC", u"HTeleportKeyC",
                 u"HMoveKeyQC", u"HAttackKeyQC", u"HPatrolKeyQC"};
  for (const char16_t* const action :
       {u"Hold", u"Stop", u"MenuAbilityLearn", u"MenuTalentLearn", u"SelectMainHero",
        u"SelectHero2", u"SelectHero3", u"SelectHero4", u"SelectHero5", u"SelectCourier",
        u"SelectAllUnits", u"SelectAllOtherUnits", u"SelectCircleOfPower", u"Scoreboard",
        u"GlyphButton"}) {
    names.insert(std::u16string(u"H").append(action).append(u"Key"));
  }
  for (int slot = 0; slot < 6; ++slot) {
    names.insert(numbered(u"ItemKeyC", slot, u""));
    names.insert(numbered(u"ItemKeyQC", slot, u""));
  }
  for (const int position : {2, 4, 5, 7, 8, 11}) {
    names.insert(numbered(u"OrderKeyC", position, u""));
    names.insert(numbered(u"HAC", position + 1, u"Key"));
  }
  return names;
}

Names phrasesTexts() {
  Names names;
  for (int row = 0; row < 15; ++row) names.insert(numbered(u"HQuickChatHot", row, u"Key"));
  return names;
}

// The name of a code value is that of its text value, with "Code" after "Key".
std::u16string codeOf(std::u16string_view text) {
  std::u16string code(text);
  return code.insert(code.find(u"Key") + 3, u"Code");
}

Names textsBelow(std::u16string_view keyPath) {
  Names names;
  for (const Dota7KeyField& field : dota7KeyFields()) {
    if (field.keyPath != keyPath) continue;
    for (const Dota7Cast cast : {Dota7Cast::Normal, Dota7Cast::Quick}) {
      const bool isNew = names.insert(std::u16string(field.values(cast).text)).second;
      EXPECT_TRUE(isNew || !field.followsCast()) << "two fields edit one value";
    }
  }
  return names;
}

TEST(Dota7Values, HaveEveryKeyOnce) {
  EXPECT_EQ(controlTexts().size(), 46U);
  EXPECT_EQ(textsBelow(kDota7ControlPath), controlTexts());
  EXPECT_EQ(textsBelow(kDota7PhrasesPath), phrasesTexts());
}

TEST(Dota7Values, NameTheCodeAfterTheText) {
  for (const Dota7KeyField& field : dota7KeyFields()) {
    for (const Dota7Cast cast : {Dota7Cast::Normal, Dota7Cast::Quick}) {
      EXPECT_EQ(field.values(cast).code, codeOf(field.values(cast).text));
    }
  }
}

// The first and the last value of each group of fields, and how many there are.
TEST(Dota7Values, ComeInGroups) {
  struct Row {
    std::span<const Dota7KeyField> fields;
    std::size_t count;
    std::u16string_view first, last;
  };
  const Row kRows[] = {
      {dota7UnitKeys(), 18, u"HMoveKeyC", u"HGlyphButtonKey"},
      {dota7ItemKeys(), 7, u"ItemKeyC0", u"HTeleportKeyC"},
      {dota7SkillKeys(Dota7Cast::Normal), 6, u"OrderKeyC2", u"OrderKeyC7"},
      {dota7SkillKeys(Dota7Cast::Quick), 6, u"HAC3Key", u"HAC8Key"},
      {dota7ChatKeys(), 15, u"HQuickChatHot0Key", u"HQuickChatHot14Key"},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(row.fields.size(), row.count);
    EXPECT_EQ(row.fields.front().normal.text, row.first);
    EXPECT_EQ(row.fields.back().normal.text, row.last);
  }
}

// Fields are named after their values, except those below.
std::u16string objectNameOf(const std::u16string& text) {
  static const std::map<std::u16string, std::u16string> others = {
      {u"HTeleportKeyC", u"edt_ItemKeyHTeleportKeyC"},
      {u"HAC3Key", u"edtHACSkill_3"},
      {u"HAC5Key", u"edtHACSkill_5"},
      {u"HAC6Key", u"edtHACSkill_6"},
      {u"HAC8Key", u"edtHACSkill_8"},
      {u"HAC9Key", u"edtHACSkill_9"},
      {u"HAC12Key", u"edtHACSkill_12"},
      {u"OrderKeyC2", u"edtOrderSkill_2"},
      {u"OrderKeyC4", u"edtOrderSkill_4"},
      {u"OrderKeyC5", u"edtOrderSkill_5"},
      {u"OrderKeyC7", u"edtOrderSkill_7"},
      {u"OrderKeyC8", u"edtOrderSkill_8"},
      {u"OrderKeyC11", u"edtOrderSkill_11"}};
  const auto other = others.find(text);
  return other != others.end() ? other->second : u"edt_" + text;
}

TEST(Dota7Values, AreFoundByTheObjectNameOfTheirField) {
  for (const Dota7KeyField& field : dota7KeyFields()) {
    EXPECT_EQ(field.objectName, objectNameOf(std::u16string(field.normal.text)));
    EXPECT_EQ(findDota7KeyField(field.objectName), &field);
  }
  EXPECT_EQ(findDota7KeyField(u"edt_HMoveKeyQC"), nullptr);
  EXPECT_EQ(findDota7KeyField(u""), nullptr);
}

TEST(Dota7Values, ComeInTwosForNineFields) {
  const Names expected = {u"HMoveKeyQC", u"HAttackKeyQC", u"HPatrolKeyQC",
                          u"ItemKeyQC0", u"ItemKeyQC1",   u"ItemKeyQC2",
                          u"ItemKeyQC3", u"ItemKeyQC4",   u"ItemKeyQC5"};
  Names quick;
  for (const Dota7KeyField& field : dota7KeyFields()) {
    if (!field.followsCast()) {
      EXPECT_EQ(field.values(Dota7Cast::Quick), field.normal);
      continue;
    }
    quick.insert(std::u16string(field.quick.text));
    const std::u16string normal(field.normal.text);
    EXPECT_EQ(field.quick.text, std::u16string(normal).insert(normal.rfind(u'C'), u"Q"));
  }
  EXPECT_EQ(quick, expected);
}

TEST(Dota7Values, HaveFourSwitches) {
  Names names;
  for (const Dota7Switch& row : dota7Switches()) {
    EXPECT_EQ(row.objectName, u"chk_" + std::u16string(row.valueName));
    EXPECT_EQ(findDota7Switch(row.objectName), &row);
    names.insert(std::u16string(row.valueName));
  }
  EXPECT_EQ(names, (Names{u"SLegacyKeys", u"SCtrlLearnAbility", u"LegacyOnlyQuickCast",
                          u"SDoubleClickHero"}));
}

TEST(Dota7Values, HaveThirtyPhrases) {
  Names expected;
  for (int row = 0; row < 15; ++row) {
    expected.insert(numbered(u"SQuickChatString", row, u""));
    expected.insert(numbered(u"SOnStartString", row, u""));
  }
  Names names;
  for (const Dota7Phrase& row : dota7Phrases()) {
    EXPECT_EQ(row.objectName, u"edt_" + std::u16string(row.valueName));
    EXPECT_EQ(findDota7Phrase(row.objectName), &row);
    names.insert(std::u16string(row.valueName));
  }
  EXPECT_EQ(names, expected);
}

TEST(Dota7Values, AreToldFromAllOthers) {
  for (const Dota7KeyField& field : dota7KeyFields()) {
    const bool isOfPhrases = field.keyPath == kDota7PhrasesPath;
    for (const Dota7Cast cast : {Dota7Cast::Normal, Dota7Cast::Quick}) {
      for (const std::u16string_view name : {field.values(cast).text, field.values(cast).code}) {
        EXPECT_EQ(isDota7Value(kDota7PhrasesPath, name), isOfPhrases);
        EXPECT_EQ(isDota7Value(kDota7ControlPath, name), !isOfPhrases);
      }
    }
  }
  for (const Dota7Switch& row : dota7Switches()) {
    EXPECT_TRUE(isDota7Value(kDota7ControlPath, row.valueName));
    EXPECT_FALSE(isDota7Value(kDota7PhrasesPath, row.valueName));
  }
  for (const Dota7Phrase& row : dota7Phrases()) {
    EXPECT_TRUE(isDota7Value(kDota7PhrasesPath, row.valueName));
    EXPECT_FALSE(isDota7Value(kDota7ControlPath, row.valueName));
  }
  for (const std::u16string_view name : {u"", u"HStopKeyCode ", u"hstopkeycode", u"Another"}) {
    EXPECT_FALSE(isDota7Value(kDota7ControlPath, name));
  }
  EXPECT_FALSE(isDota7Value(kDota7Path, u"HStopKeyCode"));
}

}  // namespace
}  // namespace brennet
