#include "ui/capture/RefusalText.h"

#include <QCoreApplication>
#include <QStringList>

#include "model/CardPositions.h"
#include "model/KeyUses.h"
#include "ui/capture/SlotText.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

constexpr const char* kRows[] = {
    QT_TRANSLATE_NOOP("KeyHolder", "上排"),
    QT_TRANSLATE_NOOP("KeyHolder", "中排"),
    QT_TRANSLATE_NOOP("KeyHolder", "下排"),
};
constexpr const char* kColumns[] = {
    QT_TRANSLATE_NOOP("KeyHolder", "第一个"),
    QT_TRANSLATE_NOOP("KeyHolder", "第二个"),
    QT_TRANSLATE_NOOP("KeyHolder", "第三个"),
    QT_TRANSLATE_NOOP("KeyHolder", "第四个"),
};

QString words(const char* text) {
  return QCoreApplication::translate("KeyHolder", text);
}

// A place in the window `to`, and how to get there if that is not the one that the player sees.
QString fromWindow(const QString& place, KeyWindow to, KeyWindow from) {
  if (to == from) return place;
  switch (to) {
    case KeyWindow::Main:
      return words(QT_TRANSLATE_NOOP("KeyHolder", "%1（在主窗口中）")).arg(place);
    case KeyWindow::Orrery:
      return words(QT_TRANSLATE_NOOP("KeyHolder", "%1（在“Orrery设置”中）")).arg(place);
    case KeyWindow::QuickChat:
      return words(QT_TRANSLATE_NOOP("KeyHolder", "%1（在“快捷喊话”中）")).arg(place);
    case KeyWindow::None:
      break;
  }
  return words(QT_TRANSLATE_NOOP("KeyHolder", "%1（没有窗口显示它；“清空设置”可将其移除）"))
      .arg(place);
}

// A key of a set, in the window where the set is chosen.
QString choiceText(const KeyConflict& conflict) {
  const int number = conflict.holder.index;
  if (conflict.reason == KeyConflict::Reason::QuickChatSetKey) {
    return words(QT_TRANSLATE_NOOP("KeyHolder", "快捷喊话第 %1 句")).arg(number + 1);
  }
  constexpr int kNumpad0 = 0x60;
  const int digit = kItemSlotCodes[static_cast<std::size_t>(number)] - kNumpad0;
  return words(QT_TRANSLATE_NOOP("KeyHolder", "小键盘组合快捷键 %1，小键盘 %2"))
      .arg(conflict.choice + 1)
      .arg(digit);
}

}  // namespace

QString placeText(KeySlot slot) {
  QString name = slotText(slot);
  if (slot.setting != SettingId::HeroSkillKey) return name;
  const CardPosition place = kCommandCard[slot.index];
  return words(QT_TRANSLATE_NOOP("KeyHolder", "%1（%2，%3）"))
      .arg(name, words(kRows[place.row]), words(kColumns[place.column]));
}

QString keyLine(const QString& key, const QString& what) {
  return words(QT_TRANSLATE_NOOP("KeyHolder", "%1：%2")).arg(key, what);
}

QString noKeyLine(const QString& what) {
  return words(QT_TRANSLATE_NOOP("KeyHolder", "%1：没有按键")).arg(what);
}

QString alsoLine(const QString& what) {
  return words(QT_TRANSLATE_NOOP("KeyHolder", "也用于：%1")).arg(what);
}

QString pasteLine(const QString& key) {
  return keyLine(
      key, words(QT_TRANSLATE_NOOP("KeyHolder", "在游戏聊天中用于粘贴；聊天轮盘的热键已移除")));
}

KeyWindow windowOf(KeySlot slot) {
  switch (slot.setting) {
    case SettingId::SecretaryKey:
      return KeyWindow::Orrery;
    case SettingId::QuickChatIndex:
      return KeyWindow::QuickChat;
    case SettingId::HotkeyContrl:
    case SettingId::QuickChatKey:
    case SettingId::ChatWheelkey:
      return KeyWindow::None;
    default:
      return KeyWindow::Main;
  }
}

QString holderText(const KeyConflict& conflict, KeyWindow from) {
  using Reason = KeyConflict::Reason;
  if (conflict.reason == Reason::CannotBeBound) {
    return words(QT_TRANSLATE_NOOP("KeyHolder", "不能用作快捷键"));
  }
  const bool isChoice =
      conflict.reason == Reason::ItemPresetKey || conflict.reason == Reason::QuickChatSetKey;
  return fromWindow(isChoice ? choiceText(conflict) : placeText(conflict.holder),
                    windowOf(conflict.holder), from);
}

QString fieldText(const HotkeyScheme& scheme, KeySlot slot) {
  const QString place = placeText(slot);
  const KeyWord key = keyAt(scheme, slot);
  if (!key.isSet()) return noKeyLine(place);
  QStringList lines(keyLine(keyNameText(key), place));
  for (const KeySlot other : usesOf(scheme, key)) {
    if (other == slot) continue;
    lines += alsoLine(fromWindow(placeText(other), windowOf(other), windowOf(slot)));
  }
  return lines.join(QLatin1Char('\n'));
}

QString refusalText(const Refusal& refusal, KeyWindow from) {
  QStringList lines;
  for (const KeyConflict& reason : refusal.reasons) {
    lines += keyLine(keyNameText(refusal.key), holderText(reason, from));
  }
  if (isPaste(refusal.key)) lines += pasteLine(keyNameText(refusal.key));
  return lines.join(QLatin1Char('\n'));
}

QString refusalText(const std::vector<TakenKey>& taken, KeyWindow from) {
  QStringList lines;
  for (const TakenKey& key : taken)
    lines += keyLine(keyNameText(key.key), holderText(key.conflict, from));
  return lines.join(QLatin1Char('\n'));
}

}  // namespace brennet
