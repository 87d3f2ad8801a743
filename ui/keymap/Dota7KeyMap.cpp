#include "ui/keymap/Dota7KeyMap.h"

#include <QCoreApplication>

#include <optional>

#include "gameside/dota7/Dota7Settings.h"
#include "ui/capture/Dota7FieldText.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

QString words(const char* text) {
  return QCoreApplication::translate("KeyMapWindow", text);
}

// The keys of a group, numbered from 1 on the map.
template <class Group>
void addGroup(const Dota7Settings& settings, const Group& group, KeyKind kind, const char* tag,
              const char* where, KeyMap& map) {
  int number = 0;
  for (const Dota7KeyField& field : group) {
    ++number;
    const Dota7Key key = settings.key(field);
    if (key.code == 0) continue;
    std::uint8_t modifiers = 0;
    if (key.modifier == Dota7Key::kCtrl) modifiers = KeyWord::kCtrl;
    if (key.modifier == Dota7Key::kAlt) modifiers = KeyWord::kAlt;
    map.push_back({.press = {static_cast<MapCode>(key.code), modifiers},
                   .kind = kind,
                   .tag = words(tag).arg(number),
                   .key = toQString(settings.keyText(field)),
                   .what = dota7FieldText(field),
                   .where = words(where),
                   .target = &field});
  }
}

constexpr const char* kSkillTag = QT_TRANSLATE_NOOP("KeyMapWindow", "技%1");
constexpr const char* kItemTag = QT_TRANSLATE_NOOP("KeyMapWindow", "物%1");
constexpr const char* kOrderTag = QT_TRANSLATE_NOOP("KeyMapWindow", "令%1");
constexpr const char* kChatTag = QT_TRANSLATE_NOOP("KeyMapWindow", "话%1");
constexpr const char* kMain = QT_TRANSLATE_NOOP("KeyMapWindow", "主窗口");
constexpr const char* kChat = QT_TRANSLATE_NOOP("KeyMapWindow", "快捷喊话设置");

}  // namespace

KeyMap keyMapOf(const Dota7Settings& settings) {
  KeyMap map;
  addGroup(settings, dota7UnitKeys(), KeyKind::Option, kOrderTag, kMain, map);
  addGroup(settings, dota7ItemKeys(), KeyKind::Item, kItemTag, kMain, map);
  for (const Dota7Cast cast : {Dota7Cast::Normal, Dota7Cast::Quick}) {
    addGroup(settings, dota7SkillKeys(cast), KeyKind::HeroSkill, kSkillTag, kMain, map);
  }
  addGroup(settings, dota7ChatKeys(), KeyKind::Chat, kChatTag, kChat, map);
  return map;
}

}  // namespace brennet
