#include "ui/capture/FeatureKeys.h"

namespace brennet {
namespace {

struct FeatureKey {
  std::u16string_view objectName;
  KeySlot slot;
};
constexpr FeatureKey kFeatureKeys[] = {
    {u"edtShowFBlood", {SettingId::ShowFBlood}},
    {u"edtShowEBlood", {SettingId::ShowEBlood}},
    {u"edtHotkeyContrl", {SettingId::HotkeyContrl}},
    {u"edtWinLockMouse", {SettingId::WinLockMouse}},
    {u"edtQuickChatKey", {SettingId::QuickChatKey}},
    {u"edtChatWheelKey", {SettingId::ChatWheelkey}},
};

}  // namespace

std::optional<KeySlot> featureKeyOf(std::u16string_view objectName) {
  for (const FeatureKey& row : kFeatureKeys) {
    if (objectName == row.objectName) return row.slot;
  }
  return std::nullopt;
}

}  // namespace brennet
