#include "model/SchemeDifferences.h"

#include <cstddef>
#include <string_view>
#include <variant>

#include "model/KeySlot.h"

namespace brennet {
namespace {

std::u16string_view phraseOf(const std::optional<std::u16string>& phrase) {
  return phrase ? std::u16string_view(*phrase) : std::u16string_view();
}

// Whether the value of a setting differs. Keys are compared without this.
struct Compare {
  const HotkeyScheme& before;
  const HotkeyScheme& after;
  SettingPart part;

  bool operator()(const KeyListSetting& row) const {
    if (!part.isQuickCast || row.autocast == nullptr) return false;
    return row.autocastOf(before)[part.index].value_or(false) !=
           row.autocastOf(after)[part.index].value_or(false);
  }
  bool operator()(const PhraseSetting& row) const {
    return phraseOf((before.*row.field)[part.index]) != phraseOf((after.*row.field)[part.index]);
  }
  template <class Row>
  bool operator()(const Row& row) const {
    return before.*row.field != after.*row.field;
  }
};

// How many values a setting has, quick-cast marks aside.
std::size_t valueCount(const Setting& row) {
  if (const std::size_t keys = keyCount(row.id); keys != 0) return keys;
  return std::holds_alternative<PhraseSetting>(row.kind) ? kPhrases : 1;
}

bool hasMarks(const Setting& row) {
  const auto* const list = std::get_if<KeyListSetting>(&row.kind);
  return list != nullptr && list->autocast != nullptr;
}

}  // namespace

bool differsIn(SettingPart part, const HotkeyScheme& before, const HotkeyScheme& after) {
  if (!part.isQuickCast && keyCount(part.setting) != 0) {
    const KeySlot slot{part.setting, part.index};
    return keyAt(before, slot) != keyAt(after, slot);
  }
  return std::visit(Compare{before, after, part}, setting(part.setting).kind);
}

std::vector<SettingPart> partsOfScheme() {
  std::vector<SettingPart> parts;
  for (const Setting& row : kSettings) {
    if (row.id == SettingId::ComboKey3to1) continue;
    const std::size_t count = valueCount(row);
    for (std::size_t i = 0; i < count; ++i) {
      const auto index = static_cast<std::uint8_t>(i);
      parts.push_back({row.id, index});
      if (hasMarks(row)) parts.push_back({row.id, index, true});
    }
  }
  return parts;
}

std::vector<SettingPart> differencesOf(const HotkeyScheme& before, const HotkeyScheme& after) {
  std::vector<SettingPart> parts = partsOfScheme();
  std::erase_if(parts, [&](SettingPart part) { return !differsIn(part, before, after); });
  return parts;
}

}  // namespace brennet
