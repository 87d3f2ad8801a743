#include "ui/keymap/SchemeKeyMap.h"

#include <QCoreApplication>

#include <utility>

#include "model/KeyConflicts.h"
#include "model/SettingTable.h"
#include "ui/capture/RefusalText.h"
#include "ui/capture/SlotText.h"

namespace brennet {
namespace {

using Reason = KeyConflict::Reason;

QString words(const char* text) {
  return QCoreApplication::translate("KeyMapWindow", text);
}

QString windowText(KeyWindow window) {
  switch (window) {
    case KeyWindow::Main:
      return words(QT_TRANSLATE_NOOP("KeyMapWindow", "主窗口"));
    case KeyWindow::Orrery:
      return words(QT_TRANSLATE_NOOP("KeyMapWindow", "Orrery设置"));
    case KeyWindow::QuickChat:
      return words(QT_TRANSLATE_NOOP("KeyMapWindow", "快捷喊话"));
    case KeyWindow::None:
      break;
  }
  return words(QT_TRANSLATE_NOOP("KeyMapWindow", "设置文件"));
}

// A use of `key` that is set in `slot`, by itself or as a key of a choice.
MapUse useOf(KeyWord key, KeySlot slot, KeyKind kind, const QString& tag, Reason reason,
             std::uint8_t choice = 0) {
  const KeyWindow window = windowOf(slot);
  return {.press = pressOf(key),
          .kind = kind,
          .tag = tag,
          .key = pressText(pressOf(key)),
          .what = holderText({reason, slot, choice}, window),
          .where = windowText(window),
          .target = slot};
}

MapUse useOf(const HotkeyScheme& scheme, KeySlot slot, KeyKind kind, const char* tag, int number) {
  const QString letters = words(tag);
  return useOf(keyAt(scheme, slot), slot, kind,
               letters.contains(QLatin1String("%1")) ? letters.arg(number) : letters, Reason::Held);
}

// Numbers on the map are those that players see: from 1, and for items the digit on the keypad.
int itemDigit(std::size_t slot) {
  constexpr int kNumpad0 = 0x60;
  return kItemSlotCodes[slot] - kNumpad0;
}

void addSkill(const HotkeyScheme& scheme, KeySlot slot, KeyMap& map) {
  map.push_back(useOf(scheme, slot, KeyKind::HeroSkill, QT_TRANSLATE_NOOP("KeyMapWindow", "技%1"),
                      slot.index + 1));
}

// The game knows the keys of a preset instead, if one is chosen.
void addItem(const HotkeyScheme& scheme, KeySlot slot, KeyMap& map) {
  MapUse use = useOf(scheme, slot, KeyKind::Item, QT_TRANSLATE_NOOP("KeyMapWindow", "物%1"),
                     itemDigit(slot.index));
  use.reacts = chosenItemPreset(scheme) == nullptr;
  map.push_back(std::move(use));
}

// The wheel repeats another key.
void addWheel(const HotkeyScheme& scheme, KeySlot slot, KeyMap& map) {
  const KeyWord sent = keyAt(scheme, slot);
  MapUse use = useOf(sent, slot, KeyKind::RemapPressed, {}, Reason::Held);
  use.sends = use.press;
  use.tag = use.key;
  use.press = {static_cast<MapCode>(kWheelUp + slot.index), 0};
  use.key = pressText(use.press);
  use.what = words(QT_TRANSLATE_NOOP("KeyMapWindow", "鼠标滚轮"));
  map.push_back(std::move(use));
}

void addRemap(const HotkeyScheme& scheme, KeySlot slot, KeyMap& map) {
  const int number = slot.index / 2;
  const KeyRemap& remap = scheme.HotKey[static_cast<std::size_t>(number)];
  if (slot == remapDestination(static_cast<std::size_t>(number))) {
    MapUse use = useOf(scheme, slot, KeyKind::RemapSent, QT_TRANSLATE_NOOP("KeyMapWindow", "→改%1"),
                       number + 1);
    use.reacts = false;
    map.push_back(std::move(use));
    return;
  }
  MapUse use = useOf(scheme, slot, KeyKind::RemapPressed,
                     QT_TRANSLATE_NOOP("KeyMapWindow", "改%1→"), number + 1);
  if (remap.Dest.isSet()) {
    use.sends = pressOf(remap.Dest);
  } else {
    use.reacts = false;
  }
  map.push_back(std::move(use));
}

void addCombination(const HotkeyScheme& scheme, KeySlot slot, KeyMap& map) {
  const bool isSent = slot == kComboTarget;
  MapUse use = useOf(
      scheme, slot, isSent ? KeyKind::RemapSent : KeyKind::RemapPressed,
      isSent ? QT_TRANSLATE_NOOP("KeyMapWindow", "→组") : QT_TRANSLATE_NOOP("KeyMapWindow", "组→"),
      0);
  const KeyWord sent = scheme.ComboKey.Key_D;
  use.reacts = !isSent && sent.isSet();
  if (use.reacts) use.sends = pressOf(sent);
  for (KeySlot other{SettingId::ComboKey}; other != kComboTarget; ++other.index) {
    const KeyWord key = keyAt(scheme, other);
    if (use.reacts && other != slot && key.isSet()) use.together.push_back(pressOf(key));
  }
  map.push_back(std::move(use));
}

void addKey(const HotkeyScheme& scheme, KeySlot slot, KeyMap& map) {
  switch (slot.setting) {
    case SettingId::HeroSkillKey:
      return addSkill(scheme, slot, map);
    case SettingId::ItemKey:
      return addItem(scheme, slot, map);
    case SettingId::MouseKey:
      return addWheel(scheme, slot, map);
    case SettingId::HotKey:
      return addRemap(scheme, slot, map);
    case SettingId::ComboKey:
      return addCombination(scheme, slot, map);
    case SettingId::SecretaryKey:
      map.push_back(useOf(scheme, slot, KeyKind::Orrery, QT_TRANSLATE_NOOP("KeyMapWindow", "览%1"),
                          slot.index + 1));
      return;
    case SettingId::QuickChatKey:
    case SettingId::ChatWheelkey:
      map.push_back(useOf(scheme, slot, KeyKind::Chat, QT_TRANSLATE_NOOP("KeyMapWindow", "话"), 0));
      return;
    default:
      map.push_back(
          useOf(scheme, slot, KeyKind::Option, QT_TRANSLATE_NOOP("KeyMapWindow", "项"), 0));
  }
}

void addPreset(const HotkeyScheme& scheme, KeyMap& map) {
  const ItemPreset* const preset = chosenItemPreset(scheme);
  if (preset == nullptr) return;
  const char* const tag = QT_TRANSLATE_NOOP("KeyMapWindow", "物%1");
  for (std::uint8_t i = 0; i < kItemSlots; ++i) {
    map.push_back(useOf((*preset)[i], {SettingId::NumComboKeyIndex, i}, KeyKind::Item,
                        words(tag).arg(itemDigit(i)), Reason::ItemPresetKey,
                        static_cast<std::uint8_t>(scheme.NumComboKeyIndex)));
  }
}

void addQuickChat(const HotkeyScheme& scheme, KeyMap& map) {
  const char* const tag = QT_TRANSLATE_NOOP("KeyMapWindow", "话%1");
  std::uint8_t number = 0;
  for (const KeyWord key : chosenQuickChatKeys(scheme)) {
    map.push_back(useOf(key, {SettingId::QuickChatIndex, number}, KeyKind::Chat,
                        words(tag).arg(number + 1), Reason::QuickChatSetKey));
    ++number;
  }
}

}  // namespace

KeyMap keyMapOf(const HotkeyScheme& scheme) {
  KeyMap map;
  for (const Setting& row : kSettings) {
    if (row.id == SettingId::ComboKey3to1) continue;  // ComboKey once more
    KeySlot slot{row.id};
    for (const std::size_t count = keyCount(row.id); slot.index < count; ++slot.index) {
      if (keyAt(scheme, slot).isSet()) addKey(scheme, slot, map);
    }
    if (row.id == SettingId::NumComboKeyIndex) addPreset(scheme, map);
    if (row.id == SettingId::QuickChatIndex) addQuickChat(scheme, map);
  }
  return map;
}

}  // namespace brennet
