#include "ui/capture/Dota7FieldText.h"

#include <QCoreApplication>

#include <iterator>
#include <optional>

namespace brennet {
namespace {

// The keys for units, in the order of the fields.
constexpr const char* kUnits[] = {
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "移动"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "保持原地"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "停止"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "巡逻"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "攻击"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "技能学习"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "天赋学习"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "选择主英雄"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "选择英雄2"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "选择英雄3"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "选择英雄4"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "选择英雄5"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "选择信使"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "选择所有单位"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "选择其他单位"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "选择能量圈"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "计分板"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "激活防御符文"),
};
static_assert(std::size(kUnits) == kDota7UnitKeys);

// The switches, in their order.
constexpr const char* kSwitches[] = {
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "使用默认技能按键"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "按CTRL+技能键学技能"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "在鼠标当前位置快速施法"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "双击自动施法"),
};
static_assert(std::size(kSwitches) == kDota7Switches);

QString pageText(const char* text) {
  return QCoreApplication::translate("CDotA7BasicSetting", text);
}

// The number of a row in a group, from 0; nothing if it is not one of them.
template <class Group>
std::optional<int> numberIn(const Group& group, const typename Group::element_type& field) {
  const auto distance = &field - group.data();
  if (distance < 0 || distance >= static_cast<std::ptrdiff_t>(group.size())) return std::nullopt;
  return static_cast<int>(distance);
}

QString itemText(int number) {
  const bool isWayHome = number + 1 == static_cast<int>(kDota7ItemKeys);
  if (isWayHome) return pageText(QT_TRANSLATE_NOOP("CDotA7BasicSetting", "回程"));
  return pageText(QT_TRANSLATE_NOOP("CDotA7BasicSetting", "物品栏 %1")).arg(number + 1);
}

}  // namespace

QString dota7FieldText(const Dota7KeyField& field) {
  if (const auto number = numberIn(dota7UnitKeys(), field)) return pageText(kUnits[*number]);
  if (const auto number = numberIn(dota7ItemKeys(), field)) return itemText(*number);
  if (const auto number = numberIn(dota7SkillKeys(Dota7Cast::Normal), field)) {
    return pageText(QT_TRANSLATE_NOOP("CDotA7BasicSetting", "英雄技能 %1（一般）"))
        .arg(*number + 1);
  }
  if (const auto number = numberIn(dota7SkillKeys(Dota7Cast::Quick), field)) {
    return pageText(QT_TRANSLATE_NOOP("CDotA7BasicSetting", "英雄技能 %1（快捷施法）"))
        .arg(*number + 1);
  }
  constexpr const char* kChatKey =
      QT_TRANSLATE_NOOP("Dota7ChatKeySettingWidget", "快捷喊话 %1 的按键");
  const int number = numberIn(dota7ChatKeys(), field).value_or(0);
  return QCoreApplication::translate("Dota7ChatKeySettingWidget", kChatKey).arg(number + 1);
}

QString dota7SwitchText(const Dota7Switch& row) {
  return pageText(kSwitches[numberIn(dota7Switches(), row).value_or(0)]);
}

QString dota7PhraseText(const Dota7Phrase& row) {
  constexpr const char* kQuick = QT_TRANSLATE_NOOP("Dota7ChatKeySettingWidget", "快捷喊话 %1");
  constexpr const char* kAtStart = QT_TRANSLATE_NOOP("Dota7ChatKeySettingWidget", "开局喊话 %1");
  const auto quick = numberIn(dota7QuickChatPhrases(), row);
  const int number = quick ? *quick : numberIn(dota7StartPhrases(), row).value_or(0);
  return QCoreApplication::translate("Dota7ChatKeySettingWidget", quick ? kQuick : kAtStart)
      .arg(number + 1);
}

bool isDota7ChatKey(const Dota7KeyField& field) {
  return numberIn(dota7ChatKeys(), field).has_value();
}

QString dota7FieldTextElsewhere(const Dota7KeyField& field) {
  const char* const way = isDota7ChatKey(field)
                              ? QT_TRANSLATE_NOOP("KeyHolder", "%1（在“快捷喊话设置”中）")
                              : QT_TRANSLATE_NOOP("KeyHolder", "%1（在主窗口中）");
  return QCoreApplication::translate("KeyHolder", way).arg(dota7FieldText(field));
}

}  // namespace brennet
