#pragma once

#include <QString>

#include <vector>

class QGridLayout;
class QBoxLayout;
class QLineEdit;
class QPushButton;

// The rows of key fields that the basic pages are made of. All widgets become children of the
// widget that the layout belongs to.

namespace brennet {

// The texts of a page for its key fields.
struct KeyRowTexts {
  QString skill;      // "... %1": a hero skill, by its number
  QString item;       // "... %1": an item, by the digit of its slot
  QString quickCast;  // "... %1 ...": the quick-cast button of what %1 names; empty: no buttons
  QString castToolTip;
  QString remapSource, remapTarget;  // "... %1"
  QString groupSource, groupTarget;  // "... %1"
};

// A field for a key, as wide as most keys need.
[[nodiscard]] QLineEdit* newKeyField(const QString& objectName, const QString& accessibleName);

// Quick-cast buttons, in the order of the skills or slots; empty on pages that have none.
using CastButtons = std::vector<QPushButton*>;

// The first `count` hero skills in their places on the game's command card: fields edtSkill_n and
// their quick-cast buttons btn_skillcast_n.
CastButtons addSkillRows(QGridLayout& grid, int count, const KeyRowTexts& texts);

// The six items in their places in the inventory, each with the digit of its slot: fields
// edtGoodsKey_d and their quick-cast buttons btn_goods_cast_d.
CastButtons addItemRows(QGridLayout& grid, const KeyRowTexts& texts);

// The five custom remaps, two in a row: fields edt_skillex_L_n and edt_skillex_R_n.
void addRemapRows(QGridLayout& grid, const KeyRowTexts& texts);

// A group remap of `sources` keys: fields PREFIX_L_n and PREFIX_R_1. In a grid of its own, three
// keys line up with the columns of the remaps in another grid of the same width.
void addGroupRow(QBoxLayout& row, const QString& prefix, int sources, const KeyRowTexts& texts);
void addGroupRow(QGridLayout& grid, const QString& prefix, int sources, const KeyRowTexts& texts);

}  // namespace brennet
