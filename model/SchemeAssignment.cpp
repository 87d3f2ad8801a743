#include "model/SchemeAssignment.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "model/KeyAssignment.h"
#include "model/SettingTable.h"

namespace brennet {
namespace {

// Copies a setting as it is, without the quick-cast marks of its keys.
struct Copy {
  HotkeyScheme& target;
  const HotkeyScheme& source;

  void operator()(const KeyListSetting& row) const {
    std::ranges::copy(row.keysOf(source), row.keys(target).begin());
  }
  template <class Row>
  void operator()(const Row& row) const {
    target.*row.field = source.*row.field;
  }
};

// Copies a setting with its marks, and a choice only if the keys copied so far allow it.
struct Assign : Copy {
  using Copy::operator();

  void operator()(const KeyListSetting& row) const {
    Copy::operator()(row);
    if (row.autocast == nullptr) return;
    std::ranges::copy(row.autocastOf(source), row.autocast(target).begin());
  }
  void operator()(const PresetSetting& row) const { choosePreset(target, source.*row.field); }
  void operator()(const QuickChatSetSetting& row) const {
    chooseQuickChatKeys(target, source.*row.field);
  }
  void operator()(const PhraseSetting& row) const {
    Copy::operator()(row);
    fillAbsent(target.*row.field);
  }
};

}  // namespace

void assignScheme(HotkeyScheme& target, const HotkeyScheme& source) {
  HotkeyScheme result = target;
  for (const Setting& row : kSettings) std::visit(Assign{{result, source}}, row.kind);
  target = std::move(result);
}

void resetScheme(HotkeyScheme& scheme) {
  const HotkeyScheme defaults;
  for (const Setting& row : kSettings) {
    if (row.onReset == OnReset::Default) std::visit(Copy{scheme, defaults}, row.kind);
  }
}

}  // namespace brennet
