#include "ui/pages/CBasicSettingWidget.h"

#include <QCoreApplication>
#include <QLineEdit>

#include "ui/capture/TabOrder.h"
#include "ui/pages/BasicCapture.h"
#include "ui/pages/Form.h"
#include "ui/pages/KeyRows.h"
#include "ui_CBasicSettingWidget.h"

using brennet::HotkeyScheme;

namespace {

constexpr int kSkills = 7;

}  // namespace

CBasicSettingWidget::CBasicSettingWidget(brennet::HotkeyConfig& config, QWidget* parent)
    : QWidget(parent),
      form_(brennet::formOn<Ui::CBasicSettingWidget>(*this)),
      fields_(brennet::basicCapturePage(brennet::BasicPage::Older, *this), config),
      switches_(config) {
  buildRows();
  brennet::setTabOrderOfLayouts(*this);
  connectSwitches();
  fields_.install(*this, *this);
  fields_.refresh();
  switches_.refresh();
}

CBasicSettingWidget::~CBasicSettingWidget() = default;

void CBasicSettingWidget::buildRows() {
  const brennet::KeyRowTexts texts = {
      .skill = tr("英雄技能 %1"),
      .item = tr("物品栏 %1"),
      .quickCast = {},
      .castToolTip = {},
      .remapSource = tr("自定义技能 %1：按下的键"),
      .remapTarget = tr("自定义技能 %1：发送的键"),
      .groupSource = tr("组合改键：按下的键 %1"),
      .groupTarget = tr("组合改键：发送的键"),
  };
  brennet::addSkillRows(*form_->laySkills, kSkills, texts);
  brennet::addItemRows(*form_->layItems, texts);
  brennet::addRemapRows(*form_->layRemaps, texts);
  brennet::addGroupRow(*form_->layGroupRemap, QStringLiteral("edt_skillex_GROUP"), 2, texts);
}

void CBasicSettingWidget::connectSwitches() {
  using Page = CBasicSettingWidget;
  const auto add = [this](QCheckBox* box, brennet::SwitchBoxes::Switch field,
                          void (Page::*slot)(bool)) {
    switches_.add(*box, field);
    connect(box, &QCheckBox::toggled, this, slot);
  };
  const auto& form = *form_;
  add(form.chkDisableLWin, &HotkeyScheme::DisableLWinFlag, &Page::onToggled_DisableLWin);
  add(form.chkLockMouse, &HotkeyScheme::LockMouseFlag, &Page::onToggled_LockMouse);
  add(form.chkShowFriendBlood, &HotkeyScheme::ShowFBloodFlag, &Page::onToggled_ShowFriendBlood);
  add(form.chkShowFirendMana, &HotkeyScheme::ShowFManaFlag, &Page::onToggled_ShowFirendMana);
  add(form.chkShowEnimiesBlood, &HotkeyScheme::ShowEBloodFlag, &Page::onToggled_ShowEnimiesBlood);
  add(form.chkKeepNoStretch, &HotkeyScheme::ViewNoDragFlag, &Page::onToggled_KeepNoStretch);
  add(form.chkDelayOptimization, &HotkeyScheme::StartJSQFlag, &Page::onToggled_DelayOptimization);
}

bool CBasicSettingWidget::getEditControlTypeByParseName(const QString& name,
                                                        brennet::EditControl& control) const {
  return brennet::tracedEditControl(name, brennet::BasicPage::Older, control);
}

bool CBasicSettingWidget::eventFilter(QObject* watched, QEvent* event) {
  return fields_.filter(watched, event) || QWidget::eventFilter(watched, event);
}

void CBasicSettingWidget::onToggled_DisableLWin(bool bChecked) {
  switches_.store(&HotkeyScheme::DisableLWinFlag, bChecked);
}

void CBasicSettingWidget::onToggled_LockMouse(bool bChecked) {
  switches_.store(&HotkeyScheme::LockMouseFlag, bChecked);
}

void CBasicSettingWidget::onToggled_ShowFriendBlood(bool bChecked) {
  switches_.store(&HotkeyScheme::ShowFBloodFlag, bChecked);
  // Mana is not shown without health. The check box notifies onToggled_ShowFirendMana.
  if (!bChecked) form_->chkShowFirendMana->setChecked(false);
}

void CBasicSettingWidget::onToggled_ShowFirendMana(bool bChecked) {
  switches_.store(&HotkeyScheme::ShowFManaFlag, bChecked);
  if (bChecked) form_->chkShowFriendBlood->setChecked(true);
}

void CBasicSettingWidget::onToggled_ShowEnimiesBlood(bool bChecked) {
  switches_.store(&HotkeyScheme::ShowEBloodFlag, bChecked);
}

void CBasicSettingWidget::onToggled_KeepNoStretch(bool bChecked) {
  switches_.store(&HotkeyScheme::ViewNoDragFlag, bChecked);
}

void CBasicSettingWidget::onToggled_DelayOptimization(bool bChecked) {
  switches_.store(&HotkeyScheme::StartJSQFlag, bChecked);
}
