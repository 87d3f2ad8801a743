#include "ui/capture/FeatureKeys.h"

namespace brennet {
namespace {

struct FeatureKey {
  std::u16string_view objectName;
  KeyWord HotkeyScheme::*key;
};
constexpr FeatureKey kFeatureKeys[] = {
    {u"edtShowFBlood", &HotkeyScheme::ShowFBlood},
    {u"edtShowEBlood", &HotkeyScheme::ShowEBlood},
    {u"edtHotkeyContrl", &HotkeyScheme::HotkeyContrl},
    {u"edtWinLockMouse", &HotkeyScheme::WinLockMouse},
    {u"edtQuickChatKey", &HotkeyScheme::QuickChatKey},
    {u"edtChatWheelKey", &HotkeyScheme::ChatWheelkey},
};

}  // namespace

std::optional<KeySetting> featureKeyOf(std::u16string_view objectName) {
  for (const FeatureKey& row : kFeatureKeys) {
    if (objectName == row.objectName) return KeySetting{KeySetting::Kind::Single, 0, row.key};
  }
  return std::nullopt;
}

}  // namespace brennet
