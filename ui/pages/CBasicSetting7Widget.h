#pragma once

#include <QWidget>

#include <memory>
#include <span>
#include <vector>

#include "ui/capture/CaptureFields.h"
#include "ui/capture/EditControl.h"
#include "ui/pages/PresetBoxes.h"
#include "ui/pages/SettingPage.h"
#include "ui/pages/SwitchBoxes.h"

namespace Ui {
class CHotkeySettingPage;
}
namespace brennet {
class SchemeMarks;
}
class COrrerySettingDlg;
class QGridLayout;
class QPushButton;

// The basic page: the keys of hero skills, items, remaps and the mouse wheel, the switches of the
// game, and the buttons that open the other windows. Each change is in the current scheme at once.
class CBasicSetting7Widget : public QWidget, public brennet::SettingPage {
  Q_OBJECT

 public:
  // `config` outlives the page.
  CBasicSetting7Widget(brennet::HotkeyConfig& config, QWidget* parent);
  ~CBasicSetting7Widget() override;

  // Here and in the Orrery window.
  void showSettings() override;
  // Clears everything that the page shows, and whatever else a reset clears, in the current scheme.
  void clearSettings() override;
  // Resets the current scheme and puts the recommended keys into it (RecommendedScheme.h).
  void useRecommended();

  // Whether the page has the button for the DotA 7 mode.
  void setDota7Offered(bool offered);

  // Has the controls marked whose settings have changed since the dialog opened.
  void mark(const brennet::SchemeMarks& marks);

  // Leads the player to the field of a key or the box of a preset, here or in the Orrery window.
  // Does nothing if there is none.
  void leadTo(brennet::KeySlot slot);

  // Which setting the field of this name edits; writes a trace line.
  bool getEditControlTypeByParseName(const QString& name, brennet::EditControl& control) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 signals:
  void showHotKeySettingDlg();
  void showDota7SettingDlg();
  void showTalkSettingDlg();
  void showOrrerySettingDlg();

 public slots:
  void onToggled_DisableLWin(bool bChecked);
  void onToggled_LockMouse(bool bChecked);
  void onToggled_ShowFriendBlood(bool bChecked);
  void onToggled_ShowFirendMana(bool bChecked);
  void onToggled_ShowEnimiesBlood(bool bChecked);
  void onToggled_KeepNoStretch(bool bChecked);
  void onToggled_DelayOptimization(bool bChecked);
  void onToggled_GroupKey1(bool bChecked);
  void onToggled_GroupKey2(bool bChecked);
  void onToggled_GroupKey3(bool bChecked);
  void onToggled_HideUI(bool bChecked);
  void onToggled_checkBox_Skill_Hero(bool bChecked);
  void onToggled_checkBox_KeyModify_Hero(bool bChecked);
  void onToggled_checkBox_DisableLeftAlt(bool bChecked);
  void onToggled_checkBox_DisableLeftAltShowHP(bool bChecked);
  void onClickedHotKeySettingBtn();
  void onClickedDota7SettingBtn();
  void onClickedTalkSettingBtn();
  // Shows the Orrery window, or hides it.
  void onClickedOrrerySettingBtn();
  void onClickedHeroSkillAutocastButton();
  void onClickedHeroSKillAutocastSetAll();
  void onClickedHeroSkillAutocastClearAll();
  void onClickedItemAutocastButton();

 private:
  struct Option;
  static std::span<const Option> options();

  void buildRows();
  void enableEdits();
  void addOption(QGridLayout& grid, int number, const Option& option);
  void connectSwitches();
  void connectButtons();
  void refreshMarks();
  void setSkillMarks(bool on);

  brennet::HotkeyConfig& config_;
  std::unique_ptr<Ui::CHotkeySettingPage> form_;
  std::unique_ptr<COrrerySettingDlg> orrery_;
  brennet::CaptureFields fields_;
  brennet::SwitchBoxes switches_;
  brennet::PresetBoxes presets_;
  std::vector<QPushButton*> skillMarks_;
  std::vector<QPushButton*> itemMarks_;
};
