#include "ui/capture/EditControl.h"

#include <limits>
#include <optional>

namespace brennet {
namespace {

using Counter = std::uint8_t EditControl::*;

// Numbers that a counter accepts, a bit for each.
constexpr unsigned bits(unsigned first, unsigned last) {
  return (2U << last) - (1U << first);
}
constexpr unsigned kGoods = bits(1, 2) | bits(4, 5) | bits(7, 8);

// A name that is `prefix` and one digit.
struct NumberedName {
  std::u16string_view prefix;
  Counter counter;
  unsigned olderPage, currentPage;  // the accepted numbers
};
constexpr NumberedName kNumberedNames[] = {
    {u"edtSkill_", &EditControl::nSkillIndex, bits(1, 7), bits(1, 12)},
    {u"edtGoodsKey_", &EditControl::nGoodsIndex, kGoods, kGoods},
    {u"edt_skillex_L_", &EditControl::nSkillExSrcIndex, bits(1, 5), bits(1, 5)},
    {u"edt_skillex_R_", &EditControl::nSkillExDstIndex, bits(1, 5), bits(1, 5)},
    {u"edt_skillex_GROUP_L_", &EditControl::nSkillGroupSrcIndex, bits(1, 2), bits(1, 2)},
    {u"edt_skillex_GROUP_R_", &EditControl::nSkillGroupDstIndex, bits(1, 1), bits(1, 1)},
    {u"edt_skillex_GROUP_2_L_", &EditControl::nSkillGroup2SrcIndex, 0, bits(1, 3)},
    {u"edt_skillex_GROUP_2_R_", &EditControl::nSkillGroup2DstIndex, 0, bits(1, 1)},
};

// A name that stands for itself.
struct FixedName {
  std::u16string_view name;
  Counter counter;
  std::uint8_t number;
};
constexpr FixedName kFixedNames[] = {
    {u"edtMouseWheelUpKey", &EditControl::nMouseWheelIndex, 1},
    {u"edtMouseWheelMiddleKey", &EditControl::nMouseWheelIndex, 2},
    {u"edtMouseWheelDownKey", &EditControl::nMouseWheelIndex, 3},
    {u"edtOpenCloseLedger", &EditControl::nLedgerIndex, 1},
    {u"edtShowHideLedgerData", &EditControl::nLedgerIndex, 2},
    {u"edtHotKeyLedgerSkill", &EditControl::nLedgerIndex, 3},
};

// The decimal number that `digits` are; 0 when they are no number, or none that a counter holds.
unsigned numberOf(std::u16string_view digits) {
  unsigned number = 0;
  for (const char16_t digit : digits) {
    if (digit < u'0' || digit > u'9') return 0;
    number = number * 10 + (digit - u'0');
    if (number > std::numeric_limits<std::uint8_t>::max()) return 0;
  }
  return number;
}

// What stands behind the last underscore of a name that has something on both sides of one.
std::optional<std::u16string_view> lastPart(std::u16string_view name) {
  while (name.ends_with(u'_')) name.remove_suffix(1);
  const std::size_t underscore = name.find_last_of(u'_');
  if (underscore == std::u16string_view::npos) return std::nullopt;
  return name.substr(underscore + 1);
}

// The digits of a name of the row `row`; empty when it is none of that row.
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

}  // namespace

bool getEditControlTypeByParseName(std::u16string_view name, BasicPage page, EditControl& control) {
  control = {};
  for (const NumberedName& row : kNumberedNames) {
    const unsigned accepted = page == BasicPage::Current ? row.currentPage : row.olderPage;
    if (accepted == 0) continue;
    if (const auto digits = digitsOf(name, row, page)) {
      const unsigned number = numberOf(*digits);
      control.*row.counter = static_cast<std::uint8_t>(number);
      return number < std::numeric_limits<unsigned>::digits && (accepted >> number & 1U) != 0;
    }
  }
  for (const FixedName& row : kFixedNames) {
    if (name == row.name) {
      control.*row.counter = row.number;
      return true;
    }
  }
  return false;
}

}  // namespace brennet
