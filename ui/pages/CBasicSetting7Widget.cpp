#include "ui/pages/CBasicSetting7Widget.h"

#include <QCoreApplication>
#include <QHideEvent>
#include <QLineEdit>
#include <QWindow>

#include "model/RecommendedScheme.h"
#include "model/SchemeAssignment.h"
#include "model/SettingTable.h"
#include "ui/capture/RefusalText.h"
#include "ui/capture/SettingText.h"
#include "ui/capture/TabOrder.h"
#include "ui/history/SchemeMarks.h"
#include "ui/pages/BasicCapture.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/Form.h"
#include "ui/pages/KeyRows.h"
#include "ui_CHotkeySettingPage.h"

using brennet::HotkeyScheme;
using brennet::SettingId;

// A switch of the game. Those that clients know have slots; a new one needs none.
struct CBasicSetting7Widget::Option {
  const char* objectName;
  SettingId id;
  void (CBasicSetting7Widget::*slot)(bool) = nullptr;
  const char* keyField = nullptr;  // for the key that does the same in game
};

namespace {

constexpr int kOptionRows = 3;

// All texts of the page belong to its form.
QString text(const char* source) {
  return QCoreApplication::translate("CHotkeySettingPage", source);
}

brennet::KeyRowTexts rowTexts() {
  return {
      .skill = text(QT_TRANSLATE_NOOP("CHotkeySettingPage", "英雄技能 %1")),
      .item = text(QT_TRANSLATE_NOOP("CHotkeySettingPage", "物品栏 %1")),
      .quickCast = text(QT_TRANSLATE_NOOP("CHotkeySettingPage", "%1 快捷施法")),
      .castToolTip = text(QT_TRANSLATE_NOOP("CHotkeySettingPage", "快捷施法")),
      .remapSource = text(QT_TRANSLATE_NOOP("CHotkeySettingPage", "自定义改键 %1：按下的键")),
      .remapTarget = text(QT_TRANSLATE_NOOP("CHotkeySettingPage", "自定义改键 %1：发送的键")),
      .groupSource = text(QT_TRANSLATE_NOOP("CHotkeySettingPage", "组合改键：按下的键 %1")),
      .groupTarget = text(QT_TRANSLATE_NOOP("CHotkeySettingPage", "组合改键：发送的键")),
  };
}

}  // namespace

std::span<const CBasicSetting7Widget::Option> CBasicSetting7Widget::options() {
  using Page = CBasicSetting7Widget;
  // Column by column; the switches with a key are in the first one.
  static const Option kOptions[] = {
      {"chkLockMouse", SettingId::LockMouseFlag, &Page::onToggled_LockMouse, "edtWinLockMouse"},
      {"chkShowFriendBlood", SettingId::ShowFBloodFlag, &Page::onToggled_ShowFriendBlood,
       "edtShowFBlood"},
      {"chkShowEnimiesBlood", SettingId::ShowEBloodFlag, &Page::onToggled_ShowEnimiesBlood,
       "edtShowEBlood"},
      {"chkDisableLWin", SettingId::DisableLWinFlag, &Page::onToggled_DisableLWin},
      {"chkDisableLeftAlt", SettingId::DisableLeftAlt, &Page::onToggled_checkBox_DisableLeftAlt},
      {"chkDisableLeftAltShowHP", SettingId::DisableLeftAltShowHP,
       &Page::onToggled_checkBox_DisableLeftAltShowHP},
      {"chkKeepNoStretch", SettingId::ViewNoDragFlag, &Page::onToggled_KeepNoStretch},
      {"chkDelayOptimization", SettingId::StartJSQFlag, &Page::onToggled_DelayOptimization},
      {"chkHideUI", SettingId::HideUI, &Page::onToggled_HideUI},
  };
  return kOptions;
}

CBasicSetting7Widget::CBasicSetting7Widget(brennet::HotkeyConfig& config, QWidget* parent)
    : QWidget(parent),
      config_(config),
      form_(brennet::formOn<Ui::CHotkeySettingPage>(*this)),
      orrery_(std::make_unique<COrrerySettingDlg>()),
      fields_(brennet::basicCapturePage(brennet::BasicPage::Current, *this), config),
      switches_(config),
      presets_({form_->chkGroupKey1, form_->chkGroupKey2, form_->chkGroupKey3}, config) {
  buildRows();
  brennet::setTabOrderOfLayouts(*this);
  connectSwitches();
  connectButtons();
  fields_.install(*this, *this);
  // The Orrery window has no logic of its own: its keys are captured here.
  fields_.install(*orrery_, *this);
  CBasicSetting7Widget::showSettings();
}

// The Orrery window sends its events here until it is gone, so it goes first.
CBasicSetting7Widget::~CBasicSetting7Widget() {
  orrery_.reset();
}

void CBasicSetting7Widget::buildRows() {
  const brennet::KeyRowTexts texts = rowTexts();
  skillMarks_ = brennet::addSkillRows(*form_->laySkills, brennet::kHeroSkills, texts);
  itemMarks_ = brennet::addItemRows(*form_->layItems, texts);
  brennet::addRemapRows(*form_->layRemaps, texts);
  // Both rows edit the same combination keys; the one with three sources is for the player.
  brennet::addGroupRow(*form_->layGroupRemap, QStringLiteral("edt_skillex_GROUP"), 2, texts);
  form_->wgtGroupRemap->hide();
  brennet::addGroupRow(*form_->layGroupRemap2, QStringLiteral("edt_skillex_GROUP_2"), 3, texts);
  int number = 0;
  for (const Option& option : options()) addOption(*form_->layCommonOptions, number++, option);
}

void CBasicSetting7Widget::addOption(QGridLayout& grid, int number, const Option& option) {
  const int row = number % kOptionRows;
  const int column = 2 * (number / kOptionRows);
  const auto field = std::get<brennet::SwitchSetting>(brennet::setting(option.id).kind).field;
  auto* const box = new QCheckBox(brennet::settingText({option.id}));
  box->setObjectName(QLatin1String(option.objectName));
  grid.addWidget(box, row, column);
  switches_.add(*box, field);
  if (option.slot != nullptr) {
    connect(box, &QCheckBox::toggled, this, option.slot);
  } else {
    connect(box, &QCheckBox::toggled, this,
            [this, field](bool isOn) { switches_.store(field, isOn); });
  }
  if (option.keyField == nullptr) return;
  auto* const keyField = brennet::newKeyField(
      QLatin1String(option.keyField),
      text(QT_TRANSLATE_NOOP("CHotkeySettingPage", "%1：按键")).arg(box->text()));
  keyField->setAccessibleDescription(
      text(QT_TRANSLATE_NOOP("CHotkeySettingPage", "在游戏中切换此项的按键")));
  grid.addWidget(keyField, row, column + 1);
}

void CBasicSetting7Widget::connectSwitches() {
  using Page = CBasicSetting7Widget;
  switches_.add(*form_->chkSkillHero, &HotkeyScheme::SkillHeroOnly);
  switches_.add(*form_->chkKeyModifyHero, &HotkeyScheme::CombokeyHeroOnly);
  switches_.add(orrery_->manaBox(), &HotkeyScheme::ShowFManaFlag);
  connect(form_->chkSkillHero, &QCheckBox::toggled, this, &Page::onToggled_checkBox_Skill_Hero);
  connect(form_->chkKeyModifyHero, &QCheckBox::toggled, this,
          &Page::onToggled_checkBox_KeyModify_Hero);
  connect(orrery_.get(), &COrrerySettingDlg::chkShowFriendsMana, this,
          &Page::onToggled_ShowFirendMana);
  connect(form_->chkGroupKey1, &QCheckBox::toggled, this, &Page::onToggled_GroupKey1);
  connect(form_->chkGroupKey2, &QCheckBox::toggled, this, &Page::onToggled_GroupKey2);
  connect(form_->chkGroupKey3, &QCheckBox::toggled, this, &Page::onToggled_GroupKey3);
}

void CBasicSetting7Widget::connectButtons() {
  using Page = CBasicSetting7Widget;
  const auto onClick = [this](QPushButton* button, void (Page::*slot)()) {
    connect(button, &QPushButton::clicked, this, slot);
  };
  onClick(form_->btn_SetAll_AutoCast, &Page::onClickedHeroSKillAutocastSetAll);
  onClick(form_->btn_SetAll_NormalCast, &Page::onClickedHeroSkillAutocastClearAll);
  onClick(form_->btnOrrerySetting, &Page::onClickedOrrerySettingBtn);
  onClick(form_->btnTalkSetting, &Page::onClickedTalkSettingBtn);
  onClick(form_->btnDota7Setting, &Page::onClickedDota7SettingBtn);
  for (std::size_t i = 0; i < brennet::kHeroSkills; ++i) {
    onClick(skillMarks_[i], &Page::onClickedHeroSkillAutocastButton);
  }
  for (std::size_t i = 0; i < brennet::kItemSlots; ++i) {
    onClick(itemMarks_[i], &Page::onClickedItemAutocastButton);
  }
}

// If the file names a scheme that does not exist, nothing entered here would be kept.
void CBasicSetting7Widget::enableEdits() {
  const bool hasScheme = config_.editableScheme() != nullptr;
  for (QGroupBox* const group : findChildren<QGroupBox*>()) group->setEnabled(hasScheme);
  orrery_->setEditable(hasScheme);
  form_->btnTalkSetting->setEnabled(hasScheme);
}

void CBasicSetting7Widget::showSettings() {
  enableEdits();
  fields_.refresh();
  switches_.refresh();
  presets_.refresh();
  refreshMarks();
}

// A click stores a mark; checking a button from here does not.
void CBasicSetting7Widget::refreshMarks() {
  const HotkeyScheme& scheme = config_.scheme();
  for (std::size_t i = 0; i < brennet::kHeroSkills; ++i) {
    skillMarks_[i]->setChecked(scheme.HeroSkillAutocast[i].value_or(false));
  }
  for (std::size_t i = 0; i < brennet::kItemSlots; ++i) {
    itemMarks_[i]->setChecked(scheme.ItemAutocast[i].value_or(false));
  }
}

void CBasicSetting7Widget::clearSettings() {
  if (HotkeyScheme* const scheme = config_.editableScheme()) {
    brennet::resetScheme(*scheme);
    // A reset of a scheme spares these; but a player who clears the page sees them, and means them
    // too.
    scheme->HeroSkillAutocast = {};
    scheme->ItemAutocast = {};
    scheme->DisableLeftAlt = 0;
    scheme->DisableLeftAltShowHP = 0;
  }
  showSettings();
}

void CBasicSetting7Widget::useRecommended() {
  if (HotkeyScheme* const scheme = config_.editableScheme()) brennet::recommend(*scheme);
  showSettings();
}

void CBasicSetting7Widget::setDota7Offered(bool offered) {
  form_->btnDota7Setting->setVisible(offered);
  form_->lblDota7Setting->setVisible(offered);
}

void CBasicSetting7Widget::leadTo(brennet::KeySlot slot) {
  if (slot.setting == brennet::SettingId::NumComboKeyIndex) {
    presets_.leadToChosen();
    return;
  }
  const bool isInOrrery = brennet::windowOf(slot) == brennet::KeyWindow::Orrery;
  if (isInOrrery && !orrery_->isVisible()) onClickedOrrerySettingBtn();
  fields_.leadTo(slot);
}

void CBasicSetting7Widget::mark(const brennet::SchemeMarks& marks) {
  marks.addKeys(fields_);
  switches_.mark(marks);
  presets_.mark(marks);
  for (std::size_t i = 0; i < skillMarks_.size(); ++i) {
    marks.add(*skillMarks_[i], {SettingId::HeroSkillKey, static_cast<std::uint8_t>(i), true});
  }
  for (std::size_t i = 0; i < itemMarks_.size(); ++i) {
    marks.add(*itemMarks_[i], {SettingId::ItemKey, static_cast<std::uint8_t>(i), true});
  }
}

bool CBasicSetting7Widget::getEditControlTypeByParseName(const QString& name,
                                                         brennet::EditControl& control) const {
  return brennet::tracedEditControl(name, brennet::BasicPage::Current, control);
}

bool CBasicSetting7Widget::eventFilter(QObject* watched, QEvent* event) {
  return fields_.filter(watched, event) || QWidget::eventFilter(watched, event);
}

// What the Orrery window edits belongs to the page: it is hidden with it, unless that is minimized.
void CBasicSetting7Widget::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!event->spontaneous()) orrery_->hide();
}

void CBasicSetting7Widget::onToggled_DisableLWin(bool bChecked) {
  switches_.store(&HotkeyScheme::DisableLWinFlag, bChecked);
}

void CBasicSetting7Widget::onToggled_LockMouse(bool bChecked) {
  switches_.store(&HotkeyScheme::LockMouseFlag, bChecked);
}

void CBasicSetting7Widget::onToggled_ShowFriendBlood(bool bChecked) {
  switches_.store(&HotkeyScheme::ShowFBloodFlag, bChecked);
  // Mana is not shown without health. The check box notifies onToggled_ShowFirendMana.
  if (!bChecked) orrery_->manaBox().setChecked(false);
}

void CBasicSetting7Widget::onToggled_ShowFirendMana(bool bChecked) {
  switches_.store(&HotkeyScheme::ShowFManaFlag, bChecked);
  if (bChecked) findChild<QCheckBox*>(QStringLiteral("chkShowFriendBlood"))->setChecked(true);
}

void CBasicSetting7Widget::onToggled_ShowEnimiesBlood(bool bChecked) {
  switches_.store(&HotkeyScheme::ShowEBloodFlag, bChecked);
}

void CBasicSetting7Widget::onToggled_KeepNoStretch(bool bChecked) {
  switches_.store(&HotkeyScheme::ViewNoDragFlag, bChecked);
}

void CBasicSetting7Widget::onToggled_DelayOptimization(bool bChecked) {
  switches_.store(&HotkeyScheme::StartJSQFlag, bChecked);
}

void CBasicSetting7Widget::onToggled_GroupKey1(bool bChecked) {
  fields_.outline(presets_.toggled(0, bChecked));
}

void CBasicSetting7Widget::onToggled_GroupKey2(bool bChecked) {
  fields_.outline(presets_.toggled(1, bChecked));
}

void CBasicSetting7Widget::onToggled_GroupKey3(bool bChecked) {
  fields_.outline(presets_.toggled(2, bChecked));
}

void CBasicSetting7Widget::onToggled_HideUI(bool bChecked) {
  switches_.store(&HotkeyScheme::HideUI, bChecked);
}

void CBasicSetting7Widget::onToggled_checkBox_Skill_Hero(bool bChecked) {
  switches_.store(&HotkeyScheme::SkillHeroOnly, bChecked);
}

void CBasicSetting7Widget::onToggled_checkBox_KeyModify_Hero(bool bChecked) {
  switches_.store(&HotkeyScheme::CombokeyHeroOnly, bChecked);
}

void CBasicSetting7Widget::onToggled_checkBox_DisableLeftAlt(bool bChecked) {
  switches_.store(&HotkeyScheme::DisableLeftAlt, bChecked);
}

void CBasicSetting7Widget::onToggled_checkBox_DisableLeftAltShowHP(bool bChecked) {
  switches_.store(&HotkeyScheme::DisableLeftAltShowHP, bChecked);
}

void CBasicSetting7Widget::onClickedHotKeySettingBtn() {
  emit showHotKeySettingDlg();
}

void CBasicSetting7Widget::onClickedDota7SettingBtn() {
  emit showDota7SettingDlg();
}

// The quick-chat window is one of the hotkey windows, and is opened by their signal.
void CBasicSetting7Widget::onClickedTalkSettingBtn() {
  emit showHotKeySettingDlg();
}

void CBasicSetting7Widget::onClickedOrrerySettingBtn() {
  if (orrery_->isVisible()) {
    orrery_->hide();
    return;
  }
  const QWidget* const native = nativeParentWidget();
  if (QWindow* const owner = native == nullptr ? nullptr : native->windowHandle()) {
    orrery_->setWindowFlags(orrery_->windowFlags() | Qt::Tool);
    orrery_->winId();  // makes the native window, which can be given an owner
    orrery_->windowHandle()->setTransientParent(owner);
  }
  orrery_->show();
}

void CBasicSetting7Widget::onClickedHeroSkillAutocastButton() {
  for (int i = 0; i < brennet::kHeroSkills; ++i) {
    config_.SetHeroSkillAutocast(i, skillMarks_[static_cast<std::size_t>(i)]->isChecked());
  }
}

void CBasicSetting7Widget::onClickedHeroSKillAutocastSetAll() {
  setSkillMarks(true);
}

void CBasicSetting7Widget::onClickedHeroSkillAutocastClearAll() {
  setSkillMarks(false);
}

void CBasicSetting7Widget::setSkillMarks(bool on) {
  for (std::size_t i = 0; i < brennet::kHeroSkills; ++i) skillMarks_[i]->setChecked(on);
  onClickedHeroSkillAutocastButton();
}

void CBasicSetting7Widget::onClickedItemAutocastButton() {
  for (std::size_t i = 0; i < brennet::kItemSlots; ++i) {
    config_.SetItemAutocast(brennet::kItemSlotCodes[i], itemMarks_[i]->isChecked());
  }
}
