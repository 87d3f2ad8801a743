#include "ui/capture/SettingText.h"

#include <QCoreApplication>

#include <iterator>
#include <variant>

#include "model/KeySlot.h"
#include "ui/capture/SlotText.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

// What a setting without keys is called; "%1" stands for the number of a phrase, from 1.
struct SettingName {
  SettingId id;
  const char* context;  // of the window that has the same text
  const char* text;
};

constexpr const char* kBasic = "CHotkeySettingPage";
constexpr const char* kNowhere = "SettingText";

constexpr SettingName kNames[] = {
    {SettingId::ZoomValue, kNowhere, QT_TRANSLATE_NOOP("SettingText", "镜头缩放")},
    {SettingId::DisableLWinFlag, kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "禁用左Win键")},
    {SettingId::LockMouseFlag, kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "窗口模式锁定鼠标")},
    {SettingId::ShowFBloodFlag, kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "显示己方血量")},
    {SettingId::ShowEBloodFlag, kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "显示敌方血量")},
    {SettingId::ShowFManaFlag, "COrrerySettingDlg",
     QT_TRANSLATE_NOOP("COrrerySettingDlg", "显示己方蓝量（Dota）")},
    {SettingId::ViewNoDragFlag, kBasic,
     QT_TRANSLATE_NOOP("CHotkeySettingPage", "画面不拉伸（留黑边）")},
    {SettingId::StartJSQFlag, kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "延迟优化")},
    {SettingId::NumComboKeyIndex, kNowhere, QT_TRANSLATE_NOOP("SettingText", "小键盘组合快捷键")},
    {SettingId::QuickChatIndex, kNowhere, QT_TRANSLATE_NOOP("SettingText", "快捷喊话的按键")},
    {SettingId::QuickChat, kNowhere, QT_TRANSLATE_NOOP("SettingText", "快捷喊话短语 %1")},
    {SettingId::ChatWheel, kNowhere, QT_TRANSLATE_NOOP("SettingText", "聊天轮盘短语 %1")},
    {SettingId::HideUI, kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "隐藏游戏内按钮")},
    {SettingId::SkillHeroOnly, kBasic,
     QT_TRANSLATE_NOOP("CHotkeySettingPage", "技能键只对英雄有效")},
    {SettingId::CombokeyHeroOnly, kBasic,
     QT_TRANSLATE_NOOP("CHotkeySettingPage", "自定义改键只对英雄有效")},
    {SettingId::DisableLeftAlt, kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "禁用左Alt键")},
    {SettingId::DisableLeftAltShowHP, kBasic,
     QT_TRANSLATE_NOOP("CHotkeySettingPage", "禁用左Alt键显血")},
};

constexpr const char* kPresets[] = {
    QT_TRANSLATE_NOOP("CHotkeySettingPage", "Num784512  =  Alt+QWERDF"),
    QT_TRANSLATE_NOOP("CHotkeySettingPage", "Num784512  =  Alt+QWASZX"),
    QT_TRANSLATE_NOOP("CHotkeySettingPage", "Num784512  =  Alt+123456"),
};
constexpr const char* kQuickChatKeys[] = {
    QT_TRANSLATE_NOOP("ChatKeySettingWidget", "ALT + 1～8"),
    QT_TRANSLATE_NOOP("ChatKeySettingWidget", "ALT + F1～F8"),
};

QString words(const char* text) {
  return QCoreApplication::translate(kNowhere, text);
}

// The value of a setting that holds no keys.
struct Value {
  const HotkeyScheme& scheme;
  SettingPart part;

  QString operator()(const SwitchSetting& row) const { return onOffText(scheme.*row.field != 0); }
  QString operator()(const ByteSetting& row) const { return QString::number(scheme.*row.field); }
  QString operator()(const PresetSetting& row) const {
    const auto preset = static_cast<std::size_t>(scheme.*row.field);
    if (preset >= std::size(kPresets)) return noneText();
    return QCoreApplication::translate(kBasic, kPresets[preset]).simplified();
  }
  QString operator()(const QuickChatSetSetting& row) const {
    const std::size_t set = scheme.*row.field == 0 ? 0 : 1;
    return QCoreApplication::translate("ChatKeySettingWidget", kQuickChatKeys[set]);
  }
  QString operator()(const PhraseSetting& row) const {
    return phraseText(toQString((scheme.*row.field)[part.index].value_or(std::u16string())));
  }
  QString operator()(const KeyListSetting& row) const {
    const bool isMarked =
        row.autocast != nullptr && row.autocastOf(scheme)[part.index].value_or(false);
    return onOffText(isMarked);
  }
  template <class Keys>
  QString operator()(const Keys&) const {
    return {};
  }
};

QString quoted(const QString& phrase) {
  return words(QT_TRANSLATE_NOOP("SettingText", "“%1”")).arg(phrase);
}

bool isKey(SettingPart part) {
  return !part.isQuickCast && keyCount(part.setting) != 0;
}

}  // namespace

QString settingText(SettingPart part) {
  if (keyCount(part.setting) != 0) {
    const KeySlot slot{part.setting, part.index};
    if (!part.isQuickCast) return slotText(slot);
    const char* const mark = QT_TRANSLATE_NOOP("CHotkeySettingPage", "%1 快捷施法");
    return QCoreApplication::translate(kBasic, mark).arg(slotText(slot));
  }
  for (const SettingName& row : kNames) {
    if (row.id != part.setting) continue;
    const QString text = QCoreApplication::translate(row.context, row.text);
    const bool isOneOfMany = std::holds_alternative<PhraseSetting>(setting(row.id).kind);
    return isOneOfMany ? text.arg(part.index + 1) : text;
  }
  return {};
}

QString valueText(const HotkeyScheme& scheme, SettingPart part) {
  if (isKey(part)) {
    const KeyWord key = keyAt(scheme, {part.setting, part.index});
    return key.isSet() ? keyNameText(key) : noneText();
  }
  return std::visit(Value{scheme, part}, setting(part.setting).kind);
}

QString wholeValueText(const HotkeyScheme& scheme, SettingPart part) {
  const auto* const row = std::get_if<PhraseSetting>(&setting(part.setting).kind);
  const auto* const phrase = row == nullptr ? nullptr : &(scheme.*row->field)[part.index];
  if (phrase == nullptr || phrase->value_or(std::u16string()).empty()) {
    return valueText(scheme, part);
  }
  return quoted(toQString(**phrase));
}

QString onOffText(bool isOn) {
  return isOn ? words(QT_TRANSLATE_NOOP("SettingText", "开"))
              : words(QT_TRANSLATE_NOOP("SettingText", "关"));
}

QString noneText() {
  return words(QT_TRANSLATE_NOOP("SettingText", "无"));
}

QString phraseText(const QString& phrase) {
  return phrase.isEmpty() ? noneText() : quoted(shortened(phrase));
}

QString changeText(const QString& what, const QString& before, const QString& after) {
  return words(QT_TRANSLATE_NOOP("SettingText", "%1：%2 → %3")).arg(what, before, after);
}

}  // namespace brennet
