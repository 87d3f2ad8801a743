#include "ui/capture/FeatureKeys.h"

#include <variant>

namespace brennet {
namespace {

constexpr std::u16string_view kPrefix = u"edt";

// The only name that is not spelt like its element.
constexpr std::u16string_view kChatWheelKey = u"edtChatWheelKey";

// The part of `name` behind `start`; nothing if it begins with something else.
std::optional<std::u16string_view> behind(std::u16string_view start, std::u16string_view name) {
  if (!name.starts_with(start)) return std::nullopt;
  return name.substr(start.size());
}

// The index that "_1", "_2" and so on stand for in a list of `count` keys; nothing for other texts.
std::optional<std::uint8_t> indexOf(std::u16string_view rest, std::size_t count) {
  const auto digits = behind(u"_", rest);
  if (!digits || digits->empty() || digits->front() == u'0') return std::nullopt;
  std::size_t number = 0;
  for (const char16_t digit : *digits) {
    if (digit < u'0' || digit > u'9') return std::nullopt;
    number = number * 10 + (digit - u'0');
    if (number > count) return std::nullopt;
  }
  return static_cast<std::uint8_t>(number - 1);
}

}  // namespace

std::optional<KeySlot> featureKeyOf(std::u16string_view objectName) {
  if (objectName == kChatWheelKey) return KeySlot{SettingId::ChatWheelkey};
  const auto name = behind(kPrefix, objectName);
  if (!name) return std::nullopt;
  for (const Setting& row : kSettings) {
    const auto rest = behind(row.element, *name);
    if (!rest) continue;
    if (std::holds_alternative<KeySetting>(row.kind) && rest->empty()) return KeySlot{row.id};
    if (!std::holds_alternative<KeyListSetting>(row.kind)) continue;
    if (const auto index = indexOf(*rest, keyCount(row.id))) return KeySlot{row.id, *index};
  }
  return std::nullopt;
}

}  // namespace brennet
