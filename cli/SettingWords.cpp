#include "cli/SettingWords.h"

#include "markup/text/Utf8.h"
#include "model/KeySlot.h"
#include "model/LoadWords.h"

namespace brennet::cli {
namespace {

const char* onOff(bool isOn) {
  return isOn ? "on" : "off";
}

// The value of a setting that holds no keys, or the mark of one that does.
struct Value {
  const HotkeyScheme& scheme;
  SettingPart part;

  std::string operator()(const SwitchSetting& row) const { return onOff(scheme.*row.field != 0); }
  std::string operator()(const ByteSetting& row) const { return std::to_string(scheme.*row.field); }
  std::string operator()(const PresetSetting& row) const {
    const std::int32_t preset = scheme.*row.field;
    if (preset == HotkeyScheme::kItemKeysFromMap) return "own item keys";
    return "item preset " + std::to_string(preset + 1);
  }
  std::string operator()(const QuickChatSetSetting& row) const {
    return scheme.*row.field == 0 ? "Alt+1 to Alt+8" : "Alt+F1 to Alt+F8";
  }
  std::string operator()(const PhraseSetting& row) const {
    const auto& phrase = (scheme.*row.field)[part.index];
    return phrase && !phrase->empty() ? utf8Of(*phrase) : "-";
  }
  std::string operator()(const KeyListSetting& row) const {
    return onOff(row.autocast != nullptr && row.autocastOf(scheme)[part.index].value_or(false));
  }
  template <class Keys>
  std::string operator()(const Keys& /*row*/) const {
    return {};
  }
};

}  // namespace

std::string nameOf(SettingPart part) {
  if (keyCount(part.setting) != 0) {
    return keyName({part.setting, part.index}) + (part.isQuickCast ? ", quick cast" : "");
  }
  const std::string name = utf8Of(setting(part.setting).element);
  const bool isPhrase = std::holds_alternative<PhraseSetting>(setting(part.setting).kind);
  return isPhrase ? name + " " + std::to_string(part.index + 1) : name;
}

std::string valueOf(const HotkeyScheme& scheme, SettingPart part) {
  if (!part.isQuickCast && keyCount(part.setting) != 0) {
    const KeyWord key = keyAt(scheme, {part.setting, part.index});
    return key.isSet() ? nameOrNumber(key) : "-";
  }
  return std::visit(Value{scheme, part}, setting(part.setting).kind);
}

}  // namespace brennet::cli
