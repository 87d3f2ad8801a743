#include "ui/pages/CDotA7BasicSetting.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <iterator>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "ui/capture/Dota7FieldText.h"
#include "ui/capture/KeyMessages.h"
#include "ui/capture/TabOrder.h"
#include "ui/history/Dota7Marks.h"
#include "ui/pages/Form.h"
#include "ui/pages/KeyRows.h"
#include "ui/window/Text.h"
#include "ui_CDotA7BasicSetting.h"

using brennet::Dota7Cast;

namespace {

constexpr int kUnitColumns = 3;

// The labels of the keys for items: two in a row, as in the inventory.
constexpr const char* kItemLabels[] = {
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "1-"),    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "2-"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "3-"),    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "4-"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "5-"),    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "6-"),
    QT_TRANSLATE_NOOP("CDotA7BasicSetting", "回程-"),
};
static_assert(std::size(kItemLabels) == brennet::kDota7ItemKeys);
constexpr int kItemColumns = 2;

QString text(const char* source) {
  return QCoreApplication::translate("CDotA7BasicSetting", source);
}

QLineEdit* newField(const brennet::Dota7KeyField& row) {
  return brennet::newKeyField(brennet::toQString(row.objectName), brennet::dota7FieldText(row));
}

// A field with the label before it.
void addRow(QGridLayout& grid, int row, int column, const QString& labelText,
            const brennet::Dota7KeyField& key) {
  QLineEdit* const field = newField(key);
  auto* const label = new QLabel(labelText);
  label->setBuddy(field);
  grid.addWidget(label, row, 2 * column);
  grid.addWidget(field, row, 2 * column + 1);
}

// Six abilities after the button of their cast mode.
void addSkills(QGridLayout& grid, int row, Dota7Cast cast) {
  int column = 1;
  for (const brennet::Dota7KeyField& key : brennet::dota7SkillKeys(cast)) {
    grid.addWidget(newField(key), row, column);
    ++column;
  }
}

}  // namespace

CDotA7BasicSetting::CDotA7BasicSetting(brennet::Dota7KeyInfoManager& manager, QWidget* parent,
                                       brennet::HotkeyConfig* config)
    : QWidget(parent),
      manager_(manager),
      form_(brennet::formOn<Ui::CDotA7BasicSetting>(*this)),
      fields_(manager, config, [this](const QString& why) { brennet::tellKeyIsUsed(this, why); }) {
  buildRows();
  connectButtons();
  fields_.install(*this, *this);
  manager.settings().setCast(Dota7Cast::Normal);
  CDotA7BasicSetting::showSettings();
}

CDotA7BasicSetting::~CDotA7BasicSetting() = default;

void CDotA7BasicSetting::buildRows() {
  constexpr int kUnitLines = (brennet::kDota7UnitKeys + kUnitColumns - 1) / kUnitColumns;
  int number = 0;
  for (const brennet::Dota7KeyField& key : brennet::dota7UnitKeys()) {
    addRow(*form_->layUnits, number % kUnitLines, number / kUnitLines, brennet::dota7FieldText(key),
           key);
    ++number;
  }
  number = 0;
  for (const brennet::Dota7KeyField& key : brennet::dota7ItemKeys()) {
    addRow(*form_->layItems, number / kItemColumns, number % kItemColumns,
           text(kItemLabels[number]), key);
    ++number;
  }
  addSkills(*form_->laySkills, 0, Dota7Cast::Normal);
  addSkills(*form_->laySkills, 1, Dota7Cast::Quick);
  brennet::setTabOrderOfLayouts(*this);
}

void CDotA7BasicSetting::connectButtons() {
  using Page = CDotA7BasicSetting;
  const auto onClick = [this](QAbstractButton* button, void (Page::*slot)()) {
    connect(button, &QAbstractButton::clicked, this, slot);
  };
  onClick(form_->chatHotkeyBtn, &Page::onClickedDota7HotKeySettingBtn);
  onClick(form_->chk_SLegacyKeys, &Page::onClickedSLegacyKeys);
  onClick(form_->chk_SCtrlLearnAbility, &Page::onClickedSCtrlLearnAbility);
  onClick(form_->chk_LegacyOnlyQuickCast, &Page::onClickedLegacyOnlyQuickCast);
  onClick(form_->chk_SDoubleClickHero, &Page::onClickedSDoubleClickHero);
  onClick(form_->chk_Normal, &Page::onClickedNormal);
  onClick(form_->chk_QuickUse, &Page::onClickedQuickUse);
}

void CDotA7BasicSetting::mark(const brennet::Dota7Marks& marks) {
  marks.addKeys(fields_);
  for (const brennet::Dota7Switch& row : brennet::dota7Switches()) {
    marks.add(*findChild<QAbstractButton*>(brennet::toQString(row.objectName)), row);
  }
  // The fields show the keys of another mode then.
  for (QAbstractButton* const button : {form_->chk_Normal, form_->chk_QuickUse}) {
    connect(button, &QAbstractButton::clicked, this, [marks] { marks.refresh(); });
  }
}

void CDotA7BasicSetting::showSettings() {
  manager_.refresh();
  showValues();
}

void CDotA7BasicSetting::clearSettings() {
  manager_.settings().reset();
  showSettings();
}

void CDotA7BasicSetting::showValues() {
  const brennet::Dota7Settings& settings = manager_.settings();
  for (const brennet::Dota7Switch& row : brennet::dota7Switches()) {
    auto* const box = findChild<QAbstractButton*>(brennet::toQString(row.objectName));
    box->setChecked(settings.isOn(row));
  }
  const bool isQuick = settings.cast() == Dota7Cast::Quick;
  form_->chk_Normal->setChecked(!isQuick);
  form_->chk_QuickUse->setChecked(isQuick);
  fields_.refresh();
}

// From now on the fields with two pairs of values show and edit the pair of this mode.
void CDotA7BasicSetting::setCast(Dota7Cast cast) {
  manager_.settings().setCast(cast);
  fields_.refresh();
}

void CDotA7BasicSetting::store(const QAbstractButton& box) {
  const auto* const row = brennet::findDota7Switch(brennet::viewOf(box.objectName()));
  manager_.settings().setOn(*row, box.isChecked());
}

bool CDotA7BasicSetting::eventFilter(QObject* watched, QEvent* event) {
  return fields_.filter(watched, event) || QWidget::eventFilter(watched, event);
}

void CDotA7BasicSetting::onClickedDota7HotKeySettingBtn() {
  emit showDota7HotKeySettingDlg();
}

void CDotA7BasicSetting::onClickedSLegacyKeys() {
  store(*form_->chk_SLegacyKeys);
}

void CDotA7BasicSetting::onClickedSCtrlLearnAbility() {
  store(*form_->chk_SCtrlLearnAbility);
}

void CDotA7BasicSetting::onClickedLegacyOnlyQuickCast() {
  store(*form_->chk_LegacyOnlyQuickCast);
}

void CDotA7BasicSetting::onClickedSDoubleClickHero() {
  store(*form_->chk_SDoubleClickHero);
}

// Switching one mode off switches the other one on.
void CDotA7BasicSetting::onClickedNormal() {
  const bool isNormal = form_->chk_Normal->isChecked();
  form_->chk_QuickUse->setChecked(!isNormal);
  setCast(isNormal ? Dota7Cast::Normal : Dota7Cast::Quick);
}

void CDotA7BasicSetting::onClickedQuickUse() {
  const bool isQuick = form_->chk_QuickUse->isChecked();
  form_->chk_Normal->setChecked(!isQuick);
  setCast(isQuick ? Dota7Cast::Quick : Dota7Cast::Normal);
}
