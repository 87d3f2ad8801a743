// The settings dialog in both of its modes.

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

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

// After some steps, of which the last one was undone.
std::unique_ptr<QWidget> makeDialogWithSteps() {
  static Dota7KeyInfoManager manager;
  static HotkeyConfig config;
  config.ResetAndCopyFrom(settings());
  auto dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
  dialog->show();
  for (const char* const name :
       {"chkHideUI", "chkGroupKey1", "btn_skillcast_5", "btn_goods_cast_7", "chkDisableLWin"}) {
    auto& box = *dialog->findChild<QAbstractButton*>(QLatin1String(name));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &press);
    QCoreApplication::sendEvent(&box, &release);
  }
  for (const char* const name : {"edtSkill_2", "edt_skillex_L_1"}) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_T, Qt::NoModifier, 0, 0x54, 0);
    QCoreApplication::sendEvent(dialog->findChild<QLineEdit*>(QLatin1String(name)), &press);
  }
  QCoreApplication::processEvents();
  dialog->findChild<QPushButton*>(QStringLiteral("btnUndo"))->click();
  return dialog;
}

}  // namespace

QList<Shot> dialogShots() {
  return {{QStringLiteral("dialog"), makeDialog<false>},
          {QStringLiteral("dialog-dota7"), makeDialog<true>},
          {QStringLiteral("dialog-steps"), makeDialogWithSteps},
          {QStringLiteral("dialog-notice"), makeDialogWithNotice},
          {QStringLiteral("dialog-no-group"), makeDialogWithoutGroup}};
}

QList<Shot> scrolledShots() {
  return {{QStringLiteral("dialog"), makeDialog<false>},
          {QStringLiteral("dialog-dota7"), makeDialog<true>}};
}

}  // namespace brennet::shots
