#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "model/KeySlot.h"

namespace brennet {

// Which setting a key field of a basic page edits, by its object name: only the counter that the
// name selects is not 0.
struct EditControl {
  std::uint8_t nSkillIndex = 0;           // hero skill, from 1
  std::uint8_t nGoodsIndex = 0;           // inventory slot, by its digit on the numeric keypad
  std::uint8_t nSkillExSrcIndex = 0;      // custom remap, from 1: source
  std::uint8_t nSkillExDstIndex = 0;      // custom remap: target
  std::uint8_t nSkillGroupSrcIndex = 0;   // group remap: source, from 1
  std::uint8_t nSkillGroupDstIndex = 0;   // group remap: target
  std::uint8_t nMouseWheelIndex = 0;      // wheel up, click, down: 1, 2, 3
  std::uint8_t nLedgerIndex = 0;          // Orrery panel: open and close, show data, reminder
  std::uint8_t nSkillGroup2SrcIndex = 0;  // second group remap: source, from 1
  std::uint8_t nSkillGroup2DstIndex = 0;  // second group remap: target

  friend constexpr bool operator==(const EditControl&, const EditControl&) = default;
};

// The older page has seven skills and no second group remap.
enum class BasicPage { Older, Current };

// Fills `control` from the object name of a field. Returns false for a name that selects nothing,
// and for a number that the page does not have; the counter holds that number all the same.
bool getEditControlTypeByParseName(std::u16string_view name, BasicPage page, EditControl& control);

// The key of a scheme that the field of this name edits; nothing if the function above returns
// false.
[[nodiscard]] std::optional<KeySlot> slotOfField(std::u16string_view name, BasicPage page);

}  // namespace brennet
