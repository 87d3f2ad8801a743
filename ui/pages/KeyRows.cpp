#include "ui/pages/KeyRows.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "model/CardPositions.h"
#include "ui/CKeyLineEdit.h"

namespace brennet {
namespace {

constexpr int kRemaps = 5;
constexpr int kNumpad0 = 0x60;

// Puts the quick-cast button of `what` into a cell and into `buttons`, on pages that have them.
void addCastButton(QGridLayout& grid, CardPosition cell, const QString& objectName,
                   const QString& what, const KeyRowTexts& texts, CastButtons& buttons) {
  if (texts.quickCast.isEmpty()) return;
  auto* const button = new QPushButton;
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

// What stands between the keys that are pressed, and before the one that is sent.
QString plus() {
  return QStringLiteral("+");
}
QString arrow() {
  return QStringLiteral(u"\u2192");
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
    grid.addWidget(newKeyField(QStringLiteral("edtSkill_%1").arg(number), what), row, 2 * column);
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
  constexpr int kInARow = 2;
  constexpr int kColumnsOfOne = 5;  // four widgets, and a gap
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
  grid.setColumnMinimumWidth(kColumnsOfOne - 1, 2 * grid.horizontalSpacing());
}

void addGroupRow(QBoxLayout& row, const QString& prefix, int sources, const KeyRowTexts& texts) {
  for (int number = 1; number <= sources; ++number) {
    auto* const source = newKeyField(QStringLiteral("%1_L_%2").arg(prefix).arg(number),
                                     texts.groupSource.arg(number));
    if (number > 1) row.addWidget(newLabel(plus(), source));
    row.addWidget(source);
  }
  auto* const target = newKeyField(prefix + QStringLiteral("_R_1"), texts.groupTarget);
  row.addWidget(newLabel(arrow(), target));
  row.addWidget(target);
}

}  // namespace brennet
