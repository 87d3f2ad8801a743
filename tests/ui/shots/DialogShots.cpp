// The settings dialog in both of its modes.

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "model/LoadReport.h"
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
std::unique_ptr<CHotkeySettingDlg> makeDialog() {
  static Dota7KeyInfoManager manager;
  auto dialog = std::make_unique<CHotkeySettingDlg>(settings(), manager);
  if (IsDota7) dialog->onSwitchDota7KeySettingDlg();
  return dialog;
}

// After a load that could not use two keys.
std::unique_ptr<QWidget> makeDialogWithNotice() {
  using Reason = KeyConflict::Reason;
  LoadReport report;
  DroppedKey wheel;
  wheel.slot = {SettingId::MouseKey, 0};
  wheel.key = KeyWord('A', 0);
  wheel.conflict = KeyConflict{Reason::Held, {SettingId::HeroSkillKey, 0}};
  DroppedKey skill;
  skill.scheme = 1;
  skill.slot = {SettingId::HeroSkillKey, 3};
  skill.key = KeyWord('3', KeyWord::kAlt);
  skill.conflict = KeyConflict{Reason::QuickChatSetKey, {SettingId::QuickChatIndex, 2}};
  report.droppedKeys = {wheel, skill};
  auto dialog = makeDialog<false>();
  dialog->tellDroppedKeys(report);
  return dialog;
}

// The dialog on a settings file that names a setting group that does not exist.
std::unique_ptr<QWidget> makeDialogWithoutGroup() {
  static HotkeyConfig config;
  static Dota7KeyInfoManager manager;
  config.setIndex(HotkeyConfig::kSchemes);
  return std::make_unique<CHotkeySettingDlg>(config, manager);
}

}  // namespace

QList<Shot> dialogShots() {
  return {{QStringLiteral("dialog"), makeDialog<false>},
          {QStringLiteral("dialog-dota7"), makeDialog<true>},
          {QStringLiteral("dialog-notice"), makeDialogWithNotice},
          {QStringLiteral("dialog-no-group"), makeDialogWithoutGroup}};
}

QList<Shot> scrolledShots() {
  return {{QStringLiteral("dialog"), makeDialog<false>},
          {QStringLiteral("dialog-dota7"), makeDialog<true>}};
}

}  // namespace brennet::shots
