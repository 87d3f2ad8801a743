#pragma once

#include <QWidget>

#include <memory>

#include "ui/capture/CaptureFields.h"
#include "ui/capture/EditControl.h"
#include "ui/pages/SwitchBoxes.h"

namespace Ui {
class CBasicSettingWidget;
}

// The basic page as it was before the command card had twelve keys: seven skills, one group remap,
// and no buttons for other windows. The dialog still makes it, for hosts that look for it, and
// never shows it.
class CBasicSettingWidget : public QWidget {
  Q_OBJECT

 public:
  // `config` outlives the page.
  CBasicSettingWidget(brennet::HotkeyConfig& config, QWidget* parent);
  ~CBasicSettingWidget() override;

  // Which setting the field of this name edits; writes a trace line.
  bool getEditControlTypeByParseName(const QString& name, brennet::EditControl& control) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 public slots:
  void onToggled_DisableLWin(bool bChecked);
  void onToggled_LockMouse(bool bChecked);
  void onToggled_ShowFriendBlood(bool bChecked);
  void onToggled_ShowFirendMana(bool bChecked);
  void onToggled_ShowEnimiesBlood(bool bChecked);
  void onToggled_KeepNoStretch(bool bChecked);
  void onToggled_DelayOptimization(bool bChecked);

 private:
  void buildRows();
  void connectSwitches();

  std::unique_ptr<Ui::CBasicSettingWidget> form_;
  brennet::CaptureFields fields_;
  brennet::SwitchBoxes switches_;
};
