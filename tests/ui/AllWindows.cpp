#include "tests/ui/AllWindows.h"

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/keymap/SchemeKeyMap.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/CBasicSettingWidget.h"
#include "ui/pages/CChatRouletteSettingWidget.h"
#include "ui/pages/CDotA7BasicSetting.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"
#include "ui/pages/KeyMapWindow.h"
#include "ui/pages/SchemeTransferWindow.h"

namespace brennet::test {
namespace {

using Made = std::unique_ptr<QWidget>;

template <class Page>
Made ofScheme(HotkeyConfig& config, Dota7KeyInfoManager& /*manager*/, QWidget* parent) {
  return std::make_unique<Page>(config, parent);
}

template <class Page>
Made ofRegistry(HotkeyConfig& /*config*/, Dota7KeyInfoManager& manager, QWidget* parent) {
  return std::make_unique<Page>(manager, parent);
}

Made orrery(HotkeyConfig& /*config*/, Dota7KeyInfoManager& /*manager*/, QWidget* parent) {
  return std::make_unique<COrrerySettingDlg>(parent);
}

Made keyMap(HotkeyConfig& config, Dota7KeyInfoManager& /*manager*/, QWidget* parent) {
  auto window = std::make_unique<KeyMapWindow>(parent);
  window->setMap(keyMapOf(config.scheme()), false);
  return window;
}

Made transfer(HotkeyConfig& config, Dota7KeyInfoManager& /*manager*/, QWidget* parent) {
  HotkeyScheme source;
  source.HeroSkillKey[0] = KeyWord('Q', 0);
  source.ShowFBlood = KeyWord('Q', 0);
  return std::make_unique<SchemeTransferWindow>(
      QStringLiteral("Copy"), config.scheme(),
      std::vector<SchemeOffer>{{QStringLiteral("2"), transferOf(config.scheme(), source)}}, parent);
}

Made dialog(HotkeyConfig& config, Dota7KeyInfoManager& manager, QWidget* /*parent*/) {
  return std::make_unique<CHotkeySettingDlg>(config, manager);
}

constexpr WindowRow kWindows[] = {
    {"CHotkeySettingPage", ofScheme<CBasicSetting7Widget>},
    {"CBasicSettingWidget", ofScheme<CBasicSettingWidget>},
    {"CAdvancedSettingWidget", ofScheme<CAdvancedSettingWidget>},
    {"CChatRouletteSettingWidget", ofScheme<CChatRouletteSettingWidget>},
    {"ChatKeySettingWidget", ofScheme<ChatKeySettingWidget>},
    {"COrrerySettingDlg", orrery},
    {"CDotA7BasicSetting", ofRegistry<CDotA7BasicSetting>},
    {"Dota7ChatKeySettingWidget", ofRegistry<Dota7ChatKeySettingWidget>},
    {"KeyMapWindow", keyMap, true, false},
    {"SchemeTransferWindow", transfer, true, false},
    {"CHotkeySettingDlg", dialog, false},
};

}  // namespace

std::span<const WindowRow> allWindows() {
  return kWindows;
}

}  // namespace brennet::test
