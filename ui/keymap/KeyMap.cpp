#include "ui/keymap/KeyMap.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

#include "model/KeyConflicts.h"
#include "ui/capture/SlotText.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

QString words(const char* text) {
  return QCoreApplication::translate("KeyMapWindow", text);
}

QString togetherText(const std::vector<MapPress>& keys) {
  QStringList texts;
  for (const MapPress& key : keys) texts += pressText(key);
  return texts.join(QStringLiteral(" + "));
}

// What the key does that a press sends; empty if that is not known here.
QString effectOf(const KeyMap& map, MapPress sent) {
  const auto use = std::find_if(map.begin(), map.end(), [&](const MapUse& each) {
    return each.press == sent && each.reacts && !each.sends;
  });
  return use == map.end() ? QString() : use->what;
}

QString stepOf(const KeyMap& map, const MapUse& use) {
  if (!use.reacts) {
    return words(QT_TRANSLATE_NOOP("KeyMapWindow", "%1：直接按下时无作用（%2）"))
        .arg(use.key, use.what);
  }
  if (!use.sends) return words(QT_TRANSLATE_NOOP("KeyMapWindow", "%1：%2")).arg(use.key, use.what);
  const QString sent = pressText(*use.sends);
  QString step = use.together.empty()
                     ? words(QT_TRANSLATE_NOOP("KeyMapWindow", "%1：%2 → 发送 %3"))
                           .arg(use.key, use.what, sent)
                     : words(QT_TRANSLATE_NOOP("KeyMapWindow", "%1：%2，与 %4 同时按下 → 发送 %3"))
                           .arg(use.key, use.what, sent, togetherText(use.together));
  const QString effect = effectOf(map, *use.sends);
  if (!effect.isEmpty()) {
    step = words(QT_TRANSLATE_NOOP("KeyMapWindow", "%1 → %2")).arg(step, effect);
  }
  return step;
}

bool canBeSet(MapPress press) {
  if (press.code >= kWheelUp) return true;
  const KeyWord key(static_cast<std::uint8_t>(press.code), press.modifiers);
  const auto holders = holdersOf(HotkeyScheme(), key);
  return std::none_of(holders.begin(), holders.end(), [](const KeyConflict& each) {
    return each.reason == KeyConflict::Reason::CannotBeBound;
  });
}

}  // namespace

QString pressText(MapPress press) {
  if (press.code >= kWheelUp) {
    return slotText({SettingId::MouseKey, static_cast<std::uint8_t>(press.code - kWheelUp)});
  }
  const KeyWord key(static_cast<std::uint8_t>(press.code), press.modifiers);
  const QString text = keyText(key);
  return text.isEmpty() ? QString::number(key.raw()) : text;
}

QString pressStory(const KeyMap& map, MapPress press) {
  QStringList steps;
  for (const MapUse& use : map) {
    if (use.press == press) steps += stepOf(map, use);
  }
  if (!steps.isEmpty()) return steps.join(QLatin1Char('\n'));
  return (canBeSet(press) ? words(QT_TRANSLATE_NOOP("KeyMapWindow", "%1：空闲"))
                          : words(QT_TRANSLATE_NOOP("KeyMapWindow", "%1：不能用作快捷键")))
      .arg(pressText(press));
}

QString kindText(KeyKind kind, bool isDota7) {
  switch (kind) {
    case KeyKind::HeroSkill:
      return words(QT_TRANSLATE_NOOP("KeyMapWindow", "英雄技能"));
    case KeyKind::Item:
      return words(QT_TRANSLATE_NOOP("KeyMapWindow", "物品"));
    case KeyKind::RemapPressed:
      return words(QT_TRANSLATE_NOOP("KeyMapWindow", "改键：按下的键"));
    case KeyKind::RemapSent:
      return words(QT_TRANSLATE_NOOP("KeyMapWindow", "改键：发送的键"));
    case KeyKind::Option:
      return isDota7 ? words(QT_TRANSLATE_NOOP("KeyMapWindow", "命令和选择"))
                     : words(QT_TRANSLATE_NOOP("KeyMapWindow", "选项"));
    case KeyKind::Chat:
      return words(QT_TRANSLATE_NOOP("KeyMapWindow", "喊话"));
    case KeyKind::Orrery:
      break;
  }
  return words(QT_TRANSLATE_NOOP("KeyMapWindow", "Orrery"));
}

}  // namespace brennet
