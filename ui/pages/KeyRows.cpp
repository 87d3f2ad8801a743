#include "ui/pages/KeyRows.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "model/CardPositions.h"
#include "ui/capture/CKeyLineEdit.h"
#include "ui/capture/RefusalText.h"
#include "ui/window/CPictureButton.h"

namespace brennet {
namespace {

constexpr int kRemaps = 5;
constexpr int kNumpad0 = 0x60;

// Puts the quick-cast button of `what` into a cell and into `buttons`, on pages that have them.
void addCastButton(QGridLayout& grid, CardPosition cell, const QString& objectName,
                   const QString& what, const KeyRowTexts& texts, CastButtons& buttons) {
  if (texts.quickCast.isEmpty()) return;
  auto* const button = new CPictureButton;
  button->setObjectName(objectName);
  button->setCheckable(true);
  button->setAutoDefault(false);
  button->setAccessibleName(texts.quickCast.arg(what));
  button->setToolTip(texts.castToolTip);
  grid.addWidget(button, cell.row, cell.column);
  buttons.push_back(button);
}

QLabel* newLabel(const QString& text, QLineEdit* field) {
  auto* const label = new QLabel(text);
  label->setAlignment(Qt::AlignCenter);
  label->setBuddy(field);
  return label;
}

// Of remaps, two in a row: number, key, arrow, key; and a gap.
constexpr int kInARow = 2;
constexpr int kColumnsOfOne = 5;
constexpr int kGapColumn = kColumnsOfOne - 1;

// The signs between the keys that are pressed, and before the one that is sent.
QString plus() {
  return QStringLiteral("+");
}
QString arrow() {
  return QStringLiteral(u"\u2192");
}

// The same columns in all grids of one width on a page: the keys get the remaining room.
void setRemapColumns(QGridLayout& grid) {
  QLabel widest(arrow());
  for (int column = 0; column < kInARow * kColumnsOfOne - 1; ++column) {
    const int inOne = column % kColumnsOfOne;
    const bool isKey = inOne == 1 || inOne == 3;
    grid.setColumnStretch(column, isKey ? 1 : 0);
    if (!isKey) grid.setColumnMinimumWidth(column, widest.sizeHint().width());
  }
  grid.setColumnMinimumWidth(kGapColumn, 2 * grid.horizontalSpacing());
}

// The keys of a group remap, with the signs between them.
QWidgetList newGroup(const QString& prefix, int sources, const KeyRowTexts& texts) {
  QWidgetList widgets;
  for (int number = 1; number <= sources; ++number) {
    auto* const source = newKeyField(QStringLiteral("%1_L_%2").arg(prefix).arg(number),
                                     texts.groupSource.arg(number));
    if (number > 1) widgets += newLabel(plus(), source);
    widgets += source;
  }
  auto* const target = newKeyField(prefix + QStringLiteral("_R_1"), texts.groupTarget);
  return widgets << newLabel(arrow(), target) << target;
}

}  // namespace

QLineEdit* newKeyField(const QString& objectName, const QString& accessibleName) {
  auto* const field = new CKeyLineEdit;
  field->setObjectName(objectName);
  field->setAccessibleName(accessibleName);
  return field;
}

CastButtons addSkillRows(QGridLayout& grid, int count, const KeyRowTexts& texts) {
  CastButtons buttons;
  for (int number = 1; number <= count; ++number) {
    const auto [row, column] = kCommandCard[static_cast<std::size_t>(number - 1)];
    const QString what = texts.skill.arg(number);
    const KeySlot slot{SettingId::HeroSkillKey, static_cast<std::uint8_t>(number - 1)};
    auto* const field = newKeyField(QStringLiteral("edtSkill_%1").arg(number), placeText(slot));
    grid.addWidget(field, row, 2 * column);
    addCastButton(grid, {row, 2 * column + 1}, QStringLiteral("btn_skillcast_%1").arg(number), what,
                  texts, buttons);
  }
  return buttons;
}

CastButtons addItemRows(QGridLayout& grid, const KeyRowTexts& texts) {
  CastButtons buttons;
  for (std::size_t slot = 0; slot < kInventory.size(); ++slot) {
    const auto [row, column] = kInventory[slot];
    const QString digit = QString::number(kItemSlotCodes[slot] - kNumpad0);
    const QString what = texts.item.arg(digit);
    auto* const field = newKeyField(QStringLiteral("edtGoodsKey_") + digit, what);
    grid.addWidget(newLabel(digit, field), row, 3 * column);
    grid.addWidget(field, row, 3 * column + 1);
    addCastButton(grid, {row, 3 * column + 2}, QStringLiteral("btn_goods_cast_") + digit, what,
                  texts, buttons);
  }
  return buttons;
}

void addRemapRows(QGridLayout& grid, const KeyRowTexts& texts) {
  for (int i = 0; i < kRemaps; ++i) {
    const int number = i + 1;
    const int row = i / kInARow;
    const int column = kColumnsOfOne * (i % kInARow);
    auto* const source =
        newKeyField(QStringLiteral("edt_skillex_L_%1").arg(number), texts.remapSource.arg(number));
    auto* const target =
        newKeyField(QStringLiteral("edt_skillex_R_%1").arg(number), texts.remapTarget.arg(number));
    grid.addWidget(newLabel(QString::number(number), source), row, column);
    grid.addWidget(source, row, column + 1);
    grid.addWidget(newLabel(arrow(), target), row, column + 2);
    grid.addWidget(target, row, column + 3);
  }
  setRemapColumns(grid);
}

void addGroupRow(QBoxLayout& row, const QString& prefix, int sources, const KeyRowTexts& texts) {
  for (QWidget* const widget : newGroup(prefix, sources, texts)) row.addWidget(widget);
}

void addGroupRow(QGridLayout& grid, const QString& prefix, int sources, const KeyRowTexts& texts) {
  int column = 1;  // there is no number before the first key
  for (QWidget* const widget : newGroup(prefix, sources, texts)) {
    if (column == kGapColumn) ++column;
    grid.addWidget(widget, 0, column++);
  }
  setRemapColumns(grid);
  // An empty column has no spacing after it.
  grid.setColumnMinimumWidth(0, grid.columnMinimumWidth(0) + grid.horizontalSpacing());
}

}  // namespace brennet
