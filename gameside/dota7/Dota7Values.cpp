#include "gameside/dota7/Dota7Values.h"

#include <algorithm>

namespace brennet {
namespace {

// In the order of the pages.
constexpr Dota7KeyField kKeyFields[] = {
    {u"edt_HMoveKeyC",
     kDota7ControlPath,
     {u"HMoveKeyC", u"HMoveKeyCodeC"},
     {u"HMoveKeyQC", u"HMoveKeyCodeQC"}},
    {u"edt_HHoldKey", kDota7ControlPath, {u"HHoldKey", u"HHoldKeyCode"}, {}},
    {u"edt_HStopKey", kDota7ControlPath, {u"HStopKey", u"HStopKeyCode"}, {}},
    {u"edt_HPatrolKeyC",
     kDota7ControlPath,
     {u"HPatrolKeyC", u"HPatrolKeyCodeC"},
     {u"HPatrolKeyQC", u"HPatrolKeyCodeQC"}},
    {u"edt_HAttackKeyC",
     kDota7ControlPath,
     {u"HAttackKeyC", u"HAttackKeyCodeC"},
     {u"HAttackKeyQC", u"HAttackKeyCodeQC"}},
    {u"edt_HMenuAbilityLearnKey",
     kDota7ControlPath,
     {u"HMenuAbilityLearnKey", u"HMenuAbilityLearnKeyCode"},
     {}},
    {u"edt_HMenuTalentLearnKey",
     kDota7ControlPath,
     {u"HMenuTalentLearnKey", u"HMenuTalentLearnKeyCode"},
     {}},
    {u"edt_HSelectMainHeroKey",
     kDota7ControlPath,
     {u"HSelectMainHeroKey", u"HSelectMainHeroKeyCode"},
     {}},
    {u"edt_HSelectHero2Key", kDota7ControlPath, {u"HSelectHero2Key", u"HSelectHero2KeyCode"}, {}},
    {u"edt_HSelectHero3Key", kDota7ControlPath, {u"HSelectHero3Key", u"HSelectHero3KeyCode"}, {}},
    {u"edt_HSelectHero4Key", kDota7ControlPath, {u"HSelectHero4Key", u"HSelectHero4KeyCode"}, {}},
    {u"edt_HSelectHero5Key", kDota7ControlPath, {u"HSelectHero5Key", u"HSelectHero5KeyCode"}, {}},
    {u"edt_HSelectCourierKey",
     kDota7ControlPath,
     {u"HSelectCourierKey", u"HSelectCourierKeyCode"},
     {}},
    {u"edt_HSelectAllUnitsKey",
     kDota7ControlPath,
     {u"HSelectAllUnitsKey", u"HSelectAllUnitsKeyCode"},
     {}},
    {u"edt_HSelectAllOtherUnitsKey",
     kDota7ControlPath,
     {u"HSelectAllOtherUnitsKey", u"HSelectAllOtherUnitsKeyCode"},
     {}},
    {u"edt_HSelectCircleOfPowerKey",
     kDota7ControlPath,
     {u"HSelectCircleOfPowerKey", u"HSelectCircleOfPowerKeyCode"},
     {}},
    {u"edt_HScoreboardKey", kDota7ControlPath, {u"HScoreboardKey", u"HScoreboardKeyCode"}, {}},
    {u"edt_HGlyphButtonKey", kDota7ControlPath, {u"HGlyphButtonKey", u"HGlyphButtonKeyCode"}, {}},
    {u"edt_ItemKeyC0",
     kDota7ControlPath,
     {u"ItemKeyC0", u"ItemKeyCodeC0"},
     {u"ItemKeyQC0", u"ItemKeyCodeQC0"}},
    {u"edt_ItemKeyC1",
     kDota7ControlPath,
     {u"ItemKeyC1", u"ItemKeyCodeC1"},
     {u"ItemKeyQC1", u"ItemKeyCodeQC1"}},
    {u"edt_ItemKeyC2",
     kDota7ControlPath,
     {u"ItemKeyC2", u"ItemKeyCodeC2"},
     {u"ItemKeyQC2", u"ItemKeyCodeQC2"}},
    {u"edt_ItemKeyC3",
     kDota7ControlPath,
     {u"ItemKeyC3", u"ItemKeyCodeC3"},
     {u"ItemKeyQC3", u"ItemKeyCodeQC3"}},
    {u"edt_ItemKeyC4",
     kDota7ControlPath,
     {u"ItemKeyC4", u"ItemKeyCodeC4"},
     {u"ItemKeyQC4", u"ItemKeyCodeQC4"}},
    {u"edt_ItemKeyC5",
     kDota7ControlPath,
     {u"ItemKeyC5", u"ItemKeyCodeC5"},
     {u"ItemKeyQC5", u"ItemKeyCodeQC5"}},
    {u"edt_ItemKeyHTeleportKeyC", kDota7ControlPath, {u"HTeleportKeyC", u"HTeleportKeyCodeC"}, {}},
    {u"edtOrderSkill_2", kDota7ControlPath, {u"OrderKeyC2", u"OrderKeyCodeC2"}, {}},
    {u"edtOrderSkill_5", kDota7ControlPath, {u"OrderKeyC5", u"OrderKeyCodeC5"}, {}},
    {u"edtOrderSkill_8", kDota7ControlPath, {u"OrderKeyC8", u"OrderKeyCodeC8"}, {}},
    {u"edtOrderSkill_11", kDota7ControlPath, {u"OrderKeyC11", u"OrderKeyCodeC11"}, {}},
    {u"edtOrderSkill_4", kDota7ControlPath, {u"OrderKeyC4", u"OrderKeyCodeC4"}, {}},
    {u"edtOrderSkill_7", kDota7ControlPath, {u"OrderKeyC7", u"OrderKeyCodeC7"}, {}},
    {u"edtHACSkill_3", kDota7ControlPath, {u"HAC3Key", u"HAC3KeyCode"}, {}},
    {u"edtHACSkill_6", kDota7ControlPath, {u"HAC6Key", u"HAC6KeyCode"}, {}},
    {u"edtHACSkill_9", kDota7ControlPath, {u"HAC9Key", u"HAC9KeyCode"}, {}},
    {u"edtHACSkill_12", kDota7ControlPath, {u"HAC12Key", u"HAC12KeyCode"}, {}},
    {u"edtHACSkill_5", kDota7ControlPath, {u"HAC5Key", u"HAC5KeyCode"}, {}},
    {u"edtHACSkill_8", kDota7ControlPath, {u"HAC8Key", u"HAC8KeyCode"}, {}},
    {u"edt_HQuickChatHot0Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot0Key", u"HQuickChatHot0KeyCode"},
     {}},
    {u"edt_HQuickChatHot1Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot1Key", u"HQuickChatHot1KeyCode"},
     {}},
    {u"edt_HQuickChatHot2Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot2Key", u"HQuickChatHot2KeyCode"},
     {}},
    {u"edt_HQuickChatHot3Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot3Key", u"HQuickChatHot3KeyCode"},
     {}},
    {u"edt_HQuickChatHot4Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot4Key", u"HQuickChatHot4KeyCode"},
     {}},
    {u"edt_HQuickChatHot5Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot5Key", u"HQuickChatHot5KeyCode"},
     {}},
    {u"edt_HQuickChatHot6Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot6Key", u"HQuickChatHot6KeyCode"},
     {}},
    {u"edt_HQuickChatHot7Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot7Key", u"HQuickChatHot7KeyCode"},
     {}},
    {u"edt_HQuickChatHot8Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot8Key", u"HQuickChatHot8KeyCode"},
     {}},
    {u"edt_HQuickChatHot9Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot9Key", u"HQuickChatHot9KeyCode"},
     {}},
    {u"edt_HQuickChatHot10Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot10Key", u"HQuickChatHot10KeyCode"},
     {}},
    {u"edt_HQuickChatHot11Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot11Key", u"HQuickChatHot11KeyCode"},
     {}},
    {u"edt_HQuickChatHot12Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot12Key", u"HQuickChatHot12KeyCode"},
     {}},
    {u"edt_HQuickChatHot13Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot13Key", u"HQuickChatHot13KeyCode"},
     {}},
    {u"edt_HQuickChatHot14Key",
     kDota7PhrasesPath,
     {u"HQuickChatHot14Key", u"HQuickChatHot14KeyCode"},
     {}},
};
static_assert(std::size(kKeyFields) == kDota7KeyFields);

constexpr Dota7Switch kSwitches[] = {
    {u"chk_SLegacyKeys", u"SLegacyKeys"},
    {u"chk_SCtrlLearnAbility", u"SCtrlLearnAbility"},
    {u"chk_LegacyOnlyQuickCast", u"LegacyOnlyQuickCast"},
    {u"chk_SDoubleClickHero", u"SDoubleClickHero"},
};
static_assert(std::size(kSwitches) == kDota7Switches);

// The quick-chat rows, then those sent when a game starts.
constexpr Dota7Phrase kPhrases[] = {
    {u"edt_SQuickChatString0", u"SQuickChatString0"},
    {u"edt_SQuickChatString1", u"SQuickChatString1"},
    {u"edt_SQuickChatString2", u"SQuickChatString2"},
    {u"edt_SQuickChatString3", u"SQuickChatString3"},
    {u"edt_SQuickChatString4", u"SQuickChatString4"},
    {u"edt_SQuickChatString5", u"SQuickChatString5"},
    {u"edt_SQuickChatString6", u"SQuickChatString6"},
    {u"edt_SQuickChatString7", u"SQuickChatString7"},
    {u"edt_SQuickChatString8", u"SQuickChatString8"},
    {u"edt_SQuickChatString9", u"SQuickChatString9"},
    {u"edt_SQuickChatString10", u"SQuickChatString10"},
    {u"edt_SQuickChatString11", u"SQuickChatString11"},
    {u"edt_SQuickChatString12", u"SQuickChatString12"},
    {u"edt_SQuickChatString13", u"SQuickChatString13"},
    {u"edt_SQuickChatString14", u"SQuickChatString14"},
    {u"edt_SOnStartString0", u"SOnStartString0"},
    {u"edt_SOnStartString1", u"SOnStartString1"},
    {u"edt_SOnStartString2", u"SOnStartString2"},
    {u"edt_SOnStartString3", u"SOnStartString3"},
    {u"edt_SOnStartString4", u"SOnStartString4"},
    {u"edt_SOnStartString5", u"SOnStartString5"},
    {u"edt_SOnStartString6", u"SOnStartString6"},
    {u"edt_SOnStartString7", u"SOnStartString7"},
    {u"edt_SOnStartString8", u"SOnStartString8"},
    {u"edt_SOnStartString9", u"SOnStartString9"},
    {u"edt_SOnStartString10", u"SOnStartString10"},
    {u"edt_SOnStartString11", u"SOnStartString11"},
    {u"edt_SOnStartString12", u"SOnStartString12"},
    {u"edt_SOnStartString13", u"SOnStartString13"},
    {u"edt_SOnStartString14", u"SOnStartString14"},
};
static_assert(std::size(kPhrases) == kDota7Phrases);

template <class Row>
const Row* find(std::span<const Row> rows, std::u16string_view objectName) {
  const auto row = std::find_if(rows.begin(), rows.end(),
                                [&](const Row& r) { return r.objectName == objectName; });
  return row == rows.end() ? nullptr : &*row;
}

}  // namespace

std::span<const Dota7KeyField> dota7KeyFields() {
  return kKeyFields;
}
std::span<const Dota7KeyField, kDota7UnitKeys> dota7UnitKeys() {
  return std::span(kKeyFields).subspan<0, kDota7UnitKeys>();
}
std::span<const Dota7KeyField, kDota7ItemKeys> dota7ItemKeys() {
  return std::span(kKeyFields).subspan<kDota7UnitKeys, kDota7ItemKeys>();
}
std::span<const Dota7KeyField, kDota7SkillKeys> dota7SkillKeys(Dota7Cast cast) {
  constexpr std::size_t kFirst = kDota7UnitKeys + kDota7ItemKeys;
  const auto both = std::span(kKeyFields).subspan<kFirst, 2 * kDota7SkillKeys>();
  return cast == Dota7Cast::Normal ? both.first<kDota7SkillKeys>() : both.last<kDota7SkillKeys>();
}
std::span<const Dota7KeyField, kDota7ChatKeys> dota7ChatKeys() {
  return std::span(kKeyFields).last<kDota7ChatKeys>();
}
std::span<const Dota7Phrase, kDota7ChatKeys> dota7QuickChatPhrases() {
  return std::span(kPhrases).first<kDota7ChatKeys>();
}
std::span<const Dota7Phrase, kDota7ChatKeys> dota7StartPhrases() {
  return std::span(kPhrases).last<kDota7ChatKeys>();
}
std::span<const Dota7Switch> dota7Switches() {
  return kSwitches;
}
std::span<const Dota7Phrase> dota7Phrases() {
  return kPhrases;
}

const Dota7KeyField* findDota7KeyField(std::u16string_view objectName) {
  return find(dota7KeyFields(), objectName);
}
const Dota7Switch* findDota7Switch(std::u16string_view objectName) {
  return find(dota7Switches(), objectName);
}
const Dota7Phrase* findDota7Phrase(std::u16string_view objectName) {
  return find(dota7Phrases(), objectName);
}

bool isDota7Value(std::u16string_view keyPath, std::u16string_view name) {
  if (name.empty()) return false;
  const auto isOfPair = [&](const Dota7ValuePair& pair) {
    return pair.text == name || pair.code == name;
  };
  const auto isOfKey = [&](const Dota7KeyField& row) {
    return row.keyPath == keyPath && (isOfPair(row.normal) || isOfPair(row.quick));
  };
  const auto isOfRow = [&](const auto& row) { return row.valueName == name; };
  return std::ranges::any_of(kKeyFields, isOfKey) ||
         (keyPath == kDota7ControlPath && std::ranges::any_of(kSwitches, isOfRow)) ||
         (keyPath == kDota7PhrasesPath && std::ranges::any_of(kPhrases, isOfRow));
}

}  // namespace brennet
