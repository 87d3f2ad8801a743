#include "ui/capture/KeySetting.h"

#include "model/KeyAssignment.h"

namespace brennet {
namespace {

using Kind = KeySetting::Kind;

constexpr std::uint8_t kV = 0x56;
constexpr int kNumpad1 = 0x61;

constexpr KeyWord ComboKeys::*kComboKeys[] = {&ComboKeys::Key_A, &ComboKeys::Key_B,
                                              &ComboKeys::Key_C, &ComboKeys::Key_D};
constexpr int kComboTarget = 3;

// How the counters of a name count: settings from 0, inventory slots by the code of their digit.
struct CounterRow {
  std::uint8_t EditControl::*counter;
  Kind kind;
  int first;  // the number of the setting that the counter's 1 stands for
};
constexpr CounterRow kCounters[] = {
    {&EditControl::nSkillIndex, Kind::HeroSkill, 0},
    {&EditControl::nGoodsIndex, Kind::Item, kNumpad1},
    {&EditControl::nSkillExSrcIndex, Kind::RemapSource, 0},
    {&EditControl::nSkillExDstIndex, Kind::RemapDestination, 0},
    // Both group remaps are views of the same combination keys.
    {&EditControl::nSkillGroupSrcIndex, Kind::Combo, 0},
    {&EditControl::nSkillGroupDstIndex, Kind::Combo, kComboTarget},
    {&EditControl::nSkillGroup2SrcIndex, Kind::Combo, 0},
    {&EditControl::nSkillGroup2DstIndex, Kind::Combo, kComboTarget},
    {&EditControl::nMouseWheelIndex, Kind::Mouse, 0},
    {&EditControl::nLedgerIndex, Kind::Ledger, 0},
};

constexpr std::uint32_t halves(KeyWord low, KeyWord high) {
  return low.raw() | static_cast<std::uint32_t>(high.raw()) << 16U;
}

bool setRemap(HotkeyConfig& config, const KeySetting& setting, KeyWord key, bool check) {
  KeyRemap remap = config.scheme().HotKey[static_cast<std::size_t>(setting.number)];
  (setting.kind == Kind::RemapSource ? remap.Src : remap.Dest) = key;
  return config.SetKeyRemap(setting.number, remap.raw(), check);
}

bool setCombo(HotkeyConfig& config, int number, KeyWord key, bool check) {
  ComboKeys keys = config.scheme().ComboKey;
  keys.*kComboKeys[number] = key;
  return config.SetComboKeys(check, HotkeyConfig::kCurrentScheme, halves(keys.Key_A, keys.Key_B),
                             halves(keys.Key_C, keys.Key_D));
}

bool setSingle(HotkeyConfig& config, KeyWord HotkeyScheme::*member, KeyWord key, bool check) {
  HotkeyScheme* const scheme = config.editableScheme();
  if (scheme == nullptr) return false;
  if (check) return assignKey(*scheme, scheme->*member, key);
  scheme->*member = key;
  return true;
}

bool set(HotkeyConfig& config, const KeySetting& setting, KeyWord key, bool check) {
  switch (setting.kind) {
    case Kind::HeroSkill:
      return config.SetHeroSkillKey(setting.number, key, check);
    case Kind::Item:
      return config.SetItemKey(setting.number, key, check);
    case Kind::RemapSource:
    case Kind::RemapDestination:
      return setRemap(config, setting, key, check);
    case Kind::Combo:
      return setCombo(config, setting.number, key, check);
    case Kind::Mouse:
      return config.SetMouseKey(setting.number, key, check);
    case Kind::Ledger:
      return config.SetSecretaryKey(setting.number, key, check);
    case Kind::Single:
      break;
  }
  return setSingle(config, setting.single, key, check);
}

// Whether the key was refused; the setting has no key then.
bool isRefused(HotkeyConfig& config, const KeySetting& setting, KeyWord key) {
  if (set(config, setting, key, true)) return false;
  set(config, setting, kNoKey, false);
  return true;
}

bool isPaste(KeyWord key) {
  return key.virtualKey() == kV && (key.modifiers() & KeyWord::kCtrl) != 0;
}

}  // namespace

std::optional<KeySetting> settingOf(const EditControl& control) {
  for (const CounterRow& row : kCounters) {
    const int counter = control.*row.counter;
    if (counter != 0) return KeySetting{row.kind, counter - 1 + row.first};
  }
  return std::nullopt;
}

KeyWord keyOf(const HotkeyConfig& config, const KeySetting& setting) {
  const HotkeyScheme& scheme = config.scheme();
  const auto n = static_cast<std::size_t>(setting.number);
  KeyWord item;
  switch (setting.kind) {
    case Kind::HeroSkill:
      return scheme.HeroSkillKey[n];
    case Kind::Item:
      return config.GetItemKey(setting.number, &item) ? item : kNoKey;
    case Kind::RemapSource:
      return scheme.HotKey[n].Src;
    case Kind::RemapDestination:
      return scheme.HotKey[n].Dest;
    case Kind::Combo:
      return scheme.ComboKey.*kComboKeys[setting.number];
    case Kind::Mouse:
      return scheme.MouseKey[n];
    case Kind::Ledger:
      return scheme.SecretaryKey[n];
    case Kind::Single:
      break;
  }
  return scheme.*setting.single;
}

bool store(const Capture& capture, const std::optional<KeySetting>& setting, HotkeyConfig& config) {
  if (capture.outcome == Capture::Outcome::Cleared) {
    if (setting) set(config, *setting, kNoKey, false);
    return false;
  }
  if (capture.outcome != Capture::Outcome::Captured) return false;
  const bool refused = setting && isRefused(config, *setting, capture.key);
  if (!isPaste(capture.key)) return refused;
  if (HotkeyScheme* const scheme = config.editableScheme()) scheme->ChatWheelkey = kNoKey;
  return true;
}

}  // namespace brennet
