#include "ui/capture/EditControl.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "model/FixedKeys.h"

namespace brennet {
namespace {

using Counter = std::uint8_t EditControl::*;

// The numbers that a counter accepts, one bit for each.
constexpr unsigned bits(unsigned first, unsigned last) {
  return (2U << last) - (1U << first);
}
constexpr unsigned kGoods = bits(1, 2) | bits(4, 5) | bits(7, 8);

// The slot that a number in a name stands for. Numbers count from 1, except those of items, which
// are digits on the numeric keypad.
using SlotOfNumber = KeySlot (*)(std::uint8_t number);

template <SettingId Setting>
constexpr KeySlot nthKey(std::uint8_t number) {
  return {Setting, static_cast<std::uint8_t>(number - 1)};
}
constexpr KeySlot itemOfDigit(std::uint8_t digit) {
  constexpr std::uint16_t kNumpad0 = 0x60;
  const auto item = std::ranges::find(kItemSlotCodes, kNumpad0 + digit) - kItemSlotCodes.begin();
  return {SettingId::ItemKey, static_cast<std::uint8_t>(item)};
}
constexpr KeySlot remapSourceOf(std::uint8_t number) {
  return remapSource(number - 1U);
}
constexpr KeySlot remapDestinationOf(std::uint8_t number) {
  return remapDestination(number - 1U);
}
constexpr KeySlot comboTarget(std::uint8_t /*number*/) {
  return kComboTarget;
}

// Names that are `prefix` and a number.
struct NumberedName {
  std::u16string_view prefix;
  Counter counter;
  unsigned olderPage, currentPage;  // the accepted numbers
  SlotOfNumber slotOf;
};
// Both group remaps are views of the same combination keys.
constexpr auto kComboKey = nthKey<SettingId::ComboKey>;
constexpr NumberedName kNumberedNames[] = {
    {u"edtSkill_", &EditControl::nSkillIndex, bits(1, 7), bits(1, 12),
     nthKey<SettingId::HeroSkillKey>},
    {u"edtGoodsKey_", &EditControl::nGoodsIndex, kGoods, kGoods, itemOfDigit},
    {u"edt_skillex_L_", &EditControl::nSkillExSrcIndex, bits(1, 5), bits(1, 5), remapSourceOf},
    {u"edt_skillex_R_", &EditControl::nSkillExDstIndex, bits(1, 5), bits(1, 5), remapDestinationOf},
    {u"edt_skillex_GROUP_L_", &EditControl::nSkillGroupSrcIndex, bits(1, 2), bits(1, 2), kComboKey},
    {u"edt_skillex_GROUP_R_", &EditControl::nSkillGroupDstIndex, bits(1, 1), bits(1, 1),
     comboTarget},
    {u"edt_skillex_GROUP_2_L_", &EditControl::nSkillGroup2SrcIndex, 0, bits(1, 3), kComboKey},
    {u"edt_skillex_GROUP_2_R_", &EditControl::nSkillGroup2DstIndex, 0, bits(1, 1), comboTarget},
};

// A name that stands for itself.
struct FixedName {
  std::u16string_view name;
  Counter counter;
  std::uint8_t number;
  SlotOfNumber slotOf;
};
constexpr auto kMouseKey = nthKey<SettingId::MouseKey>;
constexpr auto kLedgerKey = nthKey<SettingId::SecretaryKey>;
constexpr FixedName kFixedNames[] = {
    {u"edtMouseWheelUpKey", &EditControl::nMouseWheelIndex, 1, kMouseKey},
    {u"edtMouseWheelMiddleKey", &EditControl::nMouseWheelIndex, 2, kMouseKey},
    {u"edtMouseWheelDownKey", &EditControl::nMouseWheelIndex, 3, kMouseKey},
    {u"edtOpenCloseLedger", &EditControl::nLedgerIndex, 1, kLedgerKey},
    {u"edtShowHideLedgerData", &EditControl::nLedgerIndex, 2, kLedgerKey},
    {u"edtHotKeyLedgerSkill", &EditControl::nLedgerIndex, 3, kLedgerKey},
};

// The value of the decimal `digits`; 0 if they are no number, or one that no counter holds.
unsigned numberOf(std::u16string_view digits) {
  unsigned number = 0;
  for (const char16_t digit : digits) {
    if (digit < u'0' || digit > u'9') return 0;
    number = number * 10 + (digit - u'0');
    if (number > std::numeric_limits<std::uint8_t>::max()) return 0;
  }
  return number;
}

// The part of a name behind its last underscore, not counting those at its end; nothing if there is
// no other one.
std::optional<std::u16string_view> lastPart(std::u16string_view name) {
  while (name.ends_with(u'_')) name.remove_suffix(1);
  const std::size_t underscore = name.find_last_of(u'_');
  if (underscore == std::u16string_view::npos) return std::nullopt;
  return name.substr(underscore + 1);
}

// The digits of `name`; nothing if it is not a name of `row`.
std::optional<std::u16string_view> digitsOf(std::u16string_view name, const NumberedName& row,
                                            BasicPage page) {
  if (!name.starts_with(row.prefix)) return std::nullopt;
  // Only the skills of the current page go beyond nine.
  const bool hasLongNumbers =
      (page == BasicPage::Current ? row.currentPage : row.olderPage) > 0x3FF;
  if (hasLongNumbers) return lastPart(name);
  if (name.size() != row.prefix.size() + 1) return std::nullopt;
  return name.substr(row.prefix.size());
}

// What a name says: the counter that it selects, its number, and the slot if the page has it.
struct Selection {
  Counter counter;
  std::uint8_t number;
  std::optional<KeySlot> slot;
};

std::optional<Selection> selectionOf(std::u16string_view name, BasicPage page) {
  for (const NumberedName& row : kNumberedNames) {
    const unsigned accepted = page == BasicPage::Current ? row.currentPage : row.olderPage;
    if (accepted == 0) continue;
    if (const auto digits = digitsOf(name, row, page)) {
      const auto number = static_cast<std::uint8_t>(numberOf(*digits));
      Selection selection{row.counter, number, {}};
      const bool isAccepted =
          number < std::numeric_limits<unsigned>::digits && (accepted >> number & 1U) != 0;
      if (isAccepted) selection.slot = row.slotOf(number);
      return selection;
    }
  }
  for (const FixedName& row : kFixedNames) {
    if (name == row.name) return Selection{row.counter, row.number, row.slotOf(row.number)};
  }
  return std::nullopt;
}

}  // namespace

bool getEditControlTypeByParseName(std::u16string_view name, BasicPage page, EditControl& control) {
  control = {};
  const std::optional<Selection> selection = selectionOf(name, page);
  if (selection) control.*selection->counter = selection->number;
  return selection && selection->slot;
}

std::optional<KeySlot> slotOfField(std::u16string_view name, BasicPage page) {
  const std::optional<Selection> selection = selectionOf(name, page);
  return selection ? selection->slot : std::nullopt;
}

}  // namespace brennet
