#include "ui/capture/SlotCapture.h"

#include "model/KeyAssignment.h"

namespace brennet {
namespace {

constexpr std::uint8_t kV = 0x56;
constexpr int kNumpad0 = 0x60;

// How the counters of a name count: all from 1.
struct CounterRow {
  std::uint8_t EditControl::*counter;
  SettingId setting;
  int first;  // the index of the slot that the counter's 1 stands for
  int step;
};
constexpr CounterRow kCounters[] = {
    {&EditControl::nSkillIndex, SettingId::HeroSkillKey, 0, 1},
    {&EditControl::nSkillExSrcIndex, SettingId::HotKey, 0, 2},
    {&EditControl::nSkillExDstIndex, SettingId::HotKey, 1, 2},
    // Both group remaps are views of the same combination keys.
    {&EditControl::nSkillGroupSrcIndex, SettingId::ComboKey, 0, 1},
    {&EditControl::nSkillGroupDstIndex, SettingId::ComboKey, kComboTarget.index, 1},
    {&EditControl::nSkillGroup2SrcIndex, SettingId::ComboKey, 0, 1},
    {&EditControl::nSkillGroup2DstIndex, SettingId::ComboKey, kComboTarget.index, 1},
    {&EditControl::nMouseWheelIndex, SettingId::MouseKey, 0, 1},
    {&EditControl::nLedgerIndex, SettingId::SecretaryKey, 0, 1},
};

KeySlot slotAt(SettingId setting, int index) {
  return {setting, static_cast<std::uint8_t>(index)};
}

void clear(HotkeyConfig& config, KeySlot slot) {
  if (HotkeyScheme* const scheme = config.editableScheme()) storeKey(*scheme, slot, kNoKey);
}

// Whether the key was refused; the slot has no key then.
bool isRefused(HotkeyConfig& config, KeySlot slot, KeyWord key) {
  HotkeyScheme* const scheme = config.editableScheme();
  if (scheme != nullptr && assignKey(*scheme, slot, key)) return false;
  clear(config, slot);
  return true;
}

}  // namespace

bool isPaste(KeyWord key) {
  return key.virtualKey() == kV && (key.modifiers() & KeyWord::kCtrl) != 0;
}

void makeRoomForPaste(HotkeyConfig& config) {
  if (HotkeyScheme* const scheme = config.editableScheme()) scheme->ChatWheelkey = kNoKey;
}

std::optional<KeySlot> slotOf(const EditControl& control) {
  if (control.nGoodsIndex != 0) {
    const auto item = itemSlotIndex(kNumpad0 + control.nGoodsIndex);
    return item ? std::optional(slotAt(SettingId::ItemKey, static_cast<int>(*item))) : std::nullopt;
  }
  for (const CounterRow& row : kCounters) {
    const int counter = control.*row.counter;
    if (counter == 0) continue;
    return slotAt(row.setting, row.first + (counter - 1) * row.step);
  }
  return std::nullopt;
}

bool store(const Capture& capture, const std::optional<KeySlot>& slot, HotkeyConfig& config) {
  if (capture.outcome == Capture::Outcome::Cleared) {
    if (slot) clear(config, *slot);
    return false;
  }
  if (capture.outcome != Capture::Outcome::Captured) return false;
  const bool refused = slot && isRefused(config, *slot, capture.key);
  if (!isPaste(capture.key)) return refused;
  makeRoomForPaste(config);
  return true;
}

}  // namespace brennet
