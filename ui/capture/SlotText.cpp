#include "ui/capture/SlotText.h"

#include <QCoreApplication>

#include <optional>

#include "model/FixedKeys.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

// A text of a window, translated in the context of that window.
struct WindowText {
  const char* context;
  const char* text;
};

QString translated(const WindowText& text) {
  return QCoreApplication::translate(text.context, text.text);
}

struct SlotName {
  KeySlot first;
  int count;  // how many slots it names; "%1" stands for their numbers, from 1
  WindowText text;
  int step = 1;  // from one of these slots to the next
};

constexpr const char* kBasic = "CHotkeySettingPage";
constexpr const char* kOrrery = "COrrerySettingDlg";
constexpr const char* kAdvanced = "CAdvancedSettingWidget";
constexpr const char* kWheel = "CChatRouletteSettingWidget";

constexpr SlotName kNames[] = {
    {{SettingId::HeroSkillKey, 0},
     kHeroSkills,
     {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "英雄技能 %1")}},
    {{SettingId::ItemKey, 0},
     kItemSlots,
     {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "物品栏 %1")}},
    {{SettingId::MouseKey, 0}, 1, {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "滚轮向上")}},
    {{SettingId::MouseKey, 1}, 1, {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "滚轮中键")}},
    {{SettingId::MouseKey, 2}, 1, {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "滚轮向下")}},
    {{SettingId::SecretaryKey, 0},
     1,
     {kOrrery, QT_TRANSLATE_NOOP("COrrerySettingDlg", "打开/关闭Orrery实时数据")}},
    {{SettingId::SecretaryKey, 1},
     1,
     {kOrrery, QT_TRANSLATE_NOOP("COrrerySettingDlg", "打开/关闭Orrery生涯数据")}},
    {{SettingId::SecretaryKey, 2},
     1,
     {kOrrery, QT_TRANSLATE_NOOP("COrrerySettingDlg", "技能提醒快捷键（Dota）")}},
    {remapSource(0),
     kKeyRemaps,
     {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "自定义改键 %1：按下的键")},
     2},
    {remapDestination(0),
     kKeyRemaps,
     {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "自定义改键 %1：发送的键")},
     2},
    {{SettingId::ComboKey, 0},
     3,
     {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "组合改键：按下的键 %1")}},
    {kComboTarget, 1, {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "组合改键：发送的键")}},
    {{SettingId::ShowFBlood, 0},
     1,
     {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "显示己方血量")}},
    {{SettingId::ShowEBlood, 0},
     1,
     {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "显示敌方血量")}},
    {{SettingId::HotkeyContrl, 0},
     1,
     {kAdvanced, QT_TRANSLATE_NOOP("CAdvancedSettingWidget", "改键开关")}},
    {{SettingId::WinLockMouse, 0},
     1,
     {kBasic, QT_TRANSLATE_NOOP("CHotkeySettingPage", "窗口模式锁定鼠标")}},
    {{SettingId::QuickChatKey, 0},
     1,
     {kAdvanced, QT_TRANSLATE_NOOP("CAdvancedSettingWidget", "快捷喊话")}},
    {{SettingId::ChatWheelkey, 0},
     1,
     {kWheel, QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "聊天轮盘热键")}},
};

// Players know an item by its digit on the keypad.
QString itemDigit(int slot) {
  constexpr int kNumpad0 = 0x60;
  return QString::number(kItemSlotCodes[static_cast<std::size_t>(slot)] - kNumpad0);
}

// The number of the slot among those that the row names; nothing if it is not one of them.
std::optional<int> numberIn(const SlotName& row, KeySlot slot) {
  if (row.first.setting != slot.setting || slot.index < row.first.index) return std::nullopt;
  const int distance = slot.index - row.first.index;
  if (distance % row.step != 0 || distance / row.step >= row.count) return std::nullopt;
  return distance / row.step;
}

QString conflictWords(const char* text) {
  return QCoreApplication::translate("KeyConflict", text);
}

}  // namespace

QString slotText(KeySlot slot) {
  for (const SlotName& row : kNames) {
    const auto number = numberIn(row, slot);
    if (!number) continue;
    QString text = translated(row.text);
    if (row.count == 1) return text;
    return text.arg(slot.setting == SettingId::ItemKey ? itemDigit(*number)
                                                       : QString::number(*number + 1));
  }
  return {};
}

QString conflictText(KeyWord key, const KeyConflict& conflict) {
  const QString text = keyNameText(key);
  switch (conflict.reason) {
    case KeyConflict::Reason::Held:
    case KeyConflict::Reason::SentByItself:
      return conflictWords(QT_TRANSLATE_NOOP("KeyConflict", "%1 已用于%2"))
          .arg(text, slotText(conflict.holder));
    case KeyConflict::Reason::ItemPresetKey:
      return conflictWords(QT_TRANSLATE_NOOP("KeyConflict", "%1 已用于小键盘组合快捷键")).arg(text);
    case KeyConflict::Reason::QuickChatSetKey:
      return conflictWords(QT_TRANSLATE_NOOP("KeyConflict", "%1 已用于快捷喊话")).arg(text);
    case KeyConflict::Reason::CannotBeBound:
      break;
  }
  return conflictWords(QT_TRANSLATE_NOOP("KeyConflict", "%1 不能用作快捷键")).arg(text);
}

QString listText(const QStringList& texts) {
  QString list = texts.value(0);
  for (const QString& text : texts.mid(1)) {
    list = conflictWords(QT_TRANSLATE_NOOP("KeyConflict", "%1；%2")).arg(list, text);
  }
  return list;
}

QString dropReason(const DroppedKey& dropped) {
  if (dropped.conflict) return conflictText(dropped.key, *dropped.conflict);
  return conflictWords(QT_TRANSLATE_NOOP("KeyConflict", "“%1”不是按键"))
      .arg(shortened(toQString(dropped.text)));
}

QString dropReason(const DroppedChoice& dropped) {
  QStringList reasons;
  for (const TakenKey& key : dropped.taken) reasons += conflictText(key.key, key.conflict);
  if (!reasons.isEmpty()) return listText(reasons);
  return conflictWords(QT_TRANSLATE_NOOP("KeyConflict", "没有“%1”这个选项"))
      .arg(shortened(toQString(dropped.text)));
}

QString droppedKeyText(const DroppedKey& dropped, int currentScheme) {
  const QString why = dropReason(dropped);
  const QString what = slotText(dropped.slot);
  if (dropped.scheme == currentScheme) {
    return conflictWords(QT_TRANSLATE_NOOP("KeyConflict", "%1：%2")).arg(what, why);
  }
  return conflictWords(QT_TRANSLATE_NOOP("KeyConflict", "方案%1，%2：%3"))
      .arg(QString::number(dropped.scheme + 1), what, why);
}

}  // namespace brennet
