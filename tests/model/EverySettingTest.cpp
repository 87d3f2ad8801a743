// A row of the table is all that a setting takes. Each one gets a value that no other has, which
// then counts in files, blocks, copies, resets, comparisons and questions about keys.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "markup/MarkupDocument.h"
#include "model/BlockFiller.h"
#include "model/BlockMerger.h"
#include "model/HotkeyConfig.h"
#include "model/KeyConflicts.h"
#include "model/KeySlot.h"
#include "model/SchemeAssignment.h"
#include "model/SchemeDifferences.h"
#include "model/SchemeReader.h"
#include "model/SchemeWriter.h"
#include "model/SettingTable.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

std::string nameOf(SettingId id) {
  const std::u16string_view element = setting(id).element;
  return {element.begin(), element.end()};
}

std::vector<KeySlot> slotsOf(SettingId id) {
  std::vector<KeySlot> slots;
  for (std::size_t i = 0; i < keyCount(id); ++i)
    slots.push_back({id, static_cast<std::uint8_t>(i)});
  return slots;
}

// A key that no other slot gets. It has no modifier, unlike the keys of fixed choices.
KeyWord keyFor(KeySlot slot) {
  std::size_t number = slot.index;
  for (const Setting& row : kSettings) {
    if (row.id < slot.setting) number += keyCount(row.id);
  }
  return KeyWord(static_cast<std::uint8_t>('0' + number), 0);
}

// Gives a setting a value that no other one has.
struct PutValue {
  HotkeyScheme& scheme;
  SettingId id;

  void operator()(const SwitchSetting& row) const { scheme.*row.field = 1; }
  void operator()(const ByteSetting& row) const {
    scheme.*row.field = static_cast<std::uint8_t>(200U + static_cast<unsigned>(id));
  }
  void operator()(const PresetSetting& row) const { scheme.*row.field = 2; }
  void operator()(const QuickChatSetSetting& row) const { scheme.*row.field = 0; }
  void operator()(const PhraseSetting& row) const {
    for (auto& phrase : scheme.*row.field) {
      phrase = std::u16string(setting(id).element) +
               static_cast<char16_t>(u'0' + (&phrase - (scheme.*row.field).data()));
    }
  }
  void operator()(const KeyListSetting& row) const {
    putKeys();
    if (row.autocast == nullptr) return;
    for (auto& mark : row.autocast(scheme)) mark = true;
  }
  template <class Keys>
  void operator()(const Keys&) const {
    putKeys();
  }

 private:
  void putKeys() const {
    for (const KeySlot slot : slotsOf(id)) storeKey(scheme, slot, keyFor(slot));
  }
};

void put(HotkeyScheme& scheme, SettingId id) {
  std::visit(PutValue{scheme, id}, setting(id).kind);
}

// Sets whatever was never set to its default: files and blocks do not tell the two apart.
HotkeyScheme whole(HotkeyScheme scheme) {
  for (auto& mark : scheme.HeroSkillAutocast) mark = mark.value_or(false);
  for (auto& mark : scheme.ItemAutocast) mark = mark.value_or(false);
  fillAbsent(scheme.QuickChat);
  fillAbsent(scheme.ChatWheel);
  return scheme;
}

HotkeyScheme savedAndLoaded(const HotkeyScheme& scheme) {
  MarkupDocument document;
  document.addElem(u"Scheme");
  writeScheme(document, scheme, scheme);
  MarkupDocument file;
  file.setDoc(document.doc());
  file.findElem(u"Scheme");
  file.intoElem();
  HotkeyScheme loaded;
  static_cast<void>(readScheme(file, loaded));
  return loaded;
}

HotkeyScheme filledAndMerged(const HotkeyScheme& scheme) {
  HotkeyConfig config;
  HotkeyBlock current;
  fillBlock(config, current);
  HotkeyConfig changed;
  *changed.editableScheme() = scheme;
  HotkeyBlock returned;
  fillBlock(changed, returned);
  mergeBlock(current, returned, sizeof(returned), config);
  return config.scheme();
}

class EverySetting : public testing::TestWithParam<SettingId> {
 protected:
  EverySetting() { put(changed_, GetParam()); }

  [[nodiscard]] const Setting& row() const { return setting(GetParam()); }

  const HotkeyScheme defaults_;
  HotkeyScheme changed_;
};

TEST_P(EverySetting, IsCompared) {
  EXPECT_NE(changed_, defaults_);
}

TEST_P(EverySetting, CountsAsADifferenceOfItsOwn) {
  if (GetParam() == SettingId::ComboKey3to1) return;
  const std::vector<SettingPart> parts = differencesOf(defaults_, changed_);
  EXPECT_THAT(parts, testing::Each(testing::Field(&SettingPart::setting, GetParam())));
  EXPECT_GE(parts.size(), std::max<std::size_t>(keyCount(GetParam()), 1));
}

TEST_P(EverySetting, IsSavedAndLoaded) {
  EXPECT_EQ(whole(savedAndLoaded(changed_)), whole(changed_));
}

TEST_P(EverySetting, GoesIntoTheBlockAndBackUnlessItsRowSaysNot) {
  if (row().blockRank == kNotInBlock) return;
  EXPECT_EQ(whole(filledAndMerged(changed_)), whole(changed_));
}

TEST_P(EverySetting, IsCopied) {
  HotkeyScheme copy;
  assignScheme(copy, changed_);
  EXPECT_EQ(whole(copy), whole(changed_));
}

TEST_P(EverySetting, IsResetAsItsRowSays) {
  HotkeyScheme expected = row().onReset == OnReset::Stays ? changed_ : defaults_;
  expected.HeroSkillAutocast = changed_.HeroSkillAutocast;
  expected.ItemAutocast = changed_.ItemAutocast;
  HotkeyScheme scheme = changed_;
  resetScheme(scheme);
  EXPECT_EQ(scheme, expected);
}

// In a remap or combination, only the keys that are sent are guarded.
TEST_P(EverySetting, HasItsKeysForItselfAsItsRowSays) {
  if (row().role == KeyRole::None) return;
  std::size_t guarded = 0;
  for (const KeySlot slot : slotsOf(GetParam())) {
    if (isKeyFree(changed_, keyFor(slot))) continue;
    ++guarded;
    EXPECT_THAT(holdersOf(changed_, keyFor(slot)),
                testing::Contains(KeyConflict{KeyConflict::Reason::Held, slot}));
  }
  const bool isRemap = std::holds_alternative<RemapSetting>(row().kind);
  const bool isCombo = std::holds_alternative<ComboSetting>(row().kind);
  const std::size_t own = isCombo ? 1 : keyCount(GetParam()) / (isRemap ? 2 : 1);
  EXPECT_EQ(guarded, row().role == KeyRole::Guarded ? own : 0U)
      << "say KeyRole::Guarded in the row of " << nameOf(GetParam())
      << " in model/SettingTable.h, or what else its keys are";
}

// A remap uses the keys that are pressed, a combination the one that is sent.
TEST_P(EverySetting, UsesItsKeysAsItsRowSays) {
  std::size_t used = 0;
  for (const KeySlot slot : slotsOf(GetParam())) {
    used += isKeyUsed(changed_, keyFor(slot).virtualKey()) ? 1U : 0U;
  }
  const bool isRemap = std::holds_alternative<RemapSetting>(row().kind);
  const bool isCombo = std::holds_alternative<ComboSetting>(row().kind);
  const std::size_t own = isCombo ? 1 : keyCount(GetParam()) / (isRemap ? 2 : 1);
  EXPECT_EQ(used, own) << "give the row of " << nameOf(GetParam())
                       << " in model/SettingTable.h a KeyRole";
}

INSTANTIATE_TEST_SUITE_P(, EverySetting, testing::ValuesIn(kLoadOrder),
                         [](const auto& suite) { return nameOf(suite.param); });

// All of them except the preset, which a block replaces with the item keys.
TEST(EverySettingTable, StayApart) {
  HotkeyScheme scheme;
  for (const Setting& row : kSettings) {
    if (row.id != SettingId::NumComboKeyIndex) put(scheme, row.id);
  }
  EXPECT_EQ(savedAndLoaded(scheme), scheme);
  HotkeyScheme inBlock;
  for (const SettingId id : kBlockOrder) put(inBlock, id);
  EXPECT_EQ(whole(filledAndMerged(inBlock)), whole(inBlock));
  HotkeyScheme copy;
  assignScheme(copy, scheme);
  EXPECT_EQ(copy, scheme);
}

// Converts to any member.
struct AnyMember {
  template <class Member>
  operator Member() const;  // NOLINT(google-explicit-constructor): used in aggregates
};

template <class Type, class... Members>
consteval std::size_t countMembers() {
  if constexpr (requires { Type{Members()..., AnyMember()}; }) {
    return countMembers<Type, Members..., AnyMember>();
  } else {
    return sizeof...(Members);
  }
}

struct AddressesOf {
  HotkeyScheme& scheme;
  std::set<const void*>& found;

  void operator()(const KeyListSetting& row) const {
    found.insert(row.keys(scheme).data());
    if (row.autocast != nullptr) found.insert(row.autocast(scheme).data());
  }
  template <class Row>
  void operator()(const Row& row) const {
    found.insert(&(scheme.*row.field));
  }
};

TEST(EverySettingTable, HaveARowForEachMemberOfTheScheme) {
  HotkeyScheme scheme;
  std::set<const void*> found;
  for (const Setting& row : kSettings) std::visit(AddressesOf{scheme, found}, row.kind);
  EXPECT_EQ(found.size(), countMembers<HotkeyScheme>())
      << "give the new member of HotkeyScheme a row of its own in model/SettingTable.h";
}

}  // namespace
}  // namespace brennet
