// The settings dialog in both of its modes.

#include "gameside/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "model/RecommendedScheme.h"
#include "tests/ui/shots/Shots.h"
#include "ui/CHotkeySettingDlg.h"

namespace brennet::shots {
namespace {

HotkeyConfig& settings() {
  static HotkeyConfig config;
  config.setEnable(true);
  HotkeyScheme& scheme = *config.editableScheme();
  recommend(scheme);
  for (std::size_t i = 0; i < 4; ++i) scheme.HeroSkillAutocast[i] = true;
  scheme.MouseKey[0] = KeyWord('T', 0);
  scheme.ShowFBlood = KeyWord(0xDB, 0);
  scheme.ShowEBlood = KeyWord(0xDD, 0);
  scheme.ShowFBloodFlag = 1;
  scheme.ShowEBloodFlag = 1;
  scheme.LockMouseFlag = 1;
  return config;
}

template <bool IsDota7>
std::unique_ptr<QWidget> makeDialog() {
  static Dota7KeyInfoManager manager;
  auto dialog = std::make_unique<CHotkeySettingDlg>(settings(), manager);
  if (IsDota7) dialog->onSwitchDota7KeySettingDlg();
  return dialog;
}

}  // namespace

QList<Shot> dialogShots() {
  return {{QStringLiteral("dialog"), makeDialog<false>},
          {QStringLiteral("dialog-dota7"), makeDialog<true>}};
}

}  // namespace brennet::shots
