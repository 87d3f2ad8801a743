#include "bench/ui/BarePage.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTableView>
#include <QTableWidget>
#include <QTreeWidget>

namespace brennet::bench {
namespace {

QStringList textsOf(const QTreeWidget& tree) {
  QStringList texts;
  for (int i = 0; i < tree.topLevelItemCount(); ++i) {
    const QTreeWidgetItem& branch = *tree.topLevelItem(i);
    for (int j = 0; j < branch.childCount(); ++j) texts += branch.child(j)->text(0);
  }
  return texts;
}

QStringList textsOf(const QAbstractItemModel& table) {
  QStringList texts;
  for (int row = 0; row < table.rowCount(); ++row) {
    for (int column = 0; column < table.columnCount(); ++column) {
      texts += table.index(row, column).data().toString();
    }
  }
  return texts;
}

QTreeWidget* newTree(const QStringList& texts, QWidget* parent) {
  auto* const tree = new QTreeWidget(parent);
  tree->setHeaderHidden(true);
  auto* const branch = new QTreeWidgetItem(tree);
  for (const QString& text : texts) new QTreeWidgetItem(branch, QStringList(text));
  tree->expandAll();
  return tree;
}

QTableWidget* newTable(const QStringList& texts, QWidget* parent) {
  constexpr int kColumns = 2;
  auto* const table = new QTableWidget(texts.size() / kColumns, kColumns, parent);
  for (int i = 0; i < texts.size(); ++i) {
    table->setItem(i / kColumns, i % kColumns, new QTableWidgetItem(texts[i]));
  }
  return table;
}

}  // namespace

PageRecipe::PageRecipe(const QWidget& page) : page_(partOf(page)) {}

QWidget* PageRecipe::make(QWidget* parent) const {
  return newWidget(page_, parent);
}

PageRecipe::Part PageRecipe::partOf(const QWidget& widget) {
  Part part;
  part.name = widget.objectName();
  part.styleSheet = widget.styleSheet();
  part.isHidden = widget.isHidden() && !widget.isWindow();
  if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
    part.kind = Kind::Label;
    part.text = label->text();
  } else if (const auto* const field = qobject_cast<const QLineEdit*>(&widget)) {
    part.kind = Kind::LineEdit;
    part.text = field->text();
  } else if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
    part.kind = qobject_cast<const QCheckBox*>(button) != nullptr      ? Kind::CheckBox
                : qobject_cast<const QRadioButton*>(button) != nullptr ? Kind::RadioButton
                                                                       : Kind::PushButton;
    part.text = button->text();
  } else if (const auto* const group = qobject_cast<const QGroupBox*>(&widget)) {
    part.kind = Kind::GroupBox;
    part.text = group->title();
  } else if (const auto* const tree = qobject_cast<const QTreeWidget*>(&widget)) {
    part.kind = Kind::Tree;
    part.items = textsOf(*tree);
  } else if (const auto* const table = qobject_cast<const QTableView*>(&widget)) {
    part.kind = Kind::Table;
    part.items = textsOf(*table->model());
  }
  if (const auto* const area = qobject_cast<const QScrollArea*>(&widget)) {
    part.arrangement = Arrangement::Column;  // what it holds, without bars
    part.parts.push_back(partOf(*area->widget()));
    return part;
  }
  const bool isView = part.kind == Kind::Tree || part.kind == Kind::Table;
  if (widget.layout() != nullptr && !isView) addParts(*widget.layout(), part);
  return part;
}

void PageRecipe::addParts(const QLayout& layout, Part& part) {
  const auto* const grid = qobject_cast<const QGridLayout*>(&layout);
  const auto* const box = qobject_cast<const QBoxLayout*>(&layout);
  const bool isRow = box != nullptr && box->direction() == QBoxLayout::LeftToRight;
  part.arrangement = grid != nullptr ? Arrangement::Grid
                     : isRow         ? Arrangement::Row
                                     : Arrangement::Column;
  for (int i = 0; i < layout.count(); ++i) {
    QLayoutItem& item = *layout.itemAt(i);
    Part inner;
    if (item.widget() != nullptr) inner = partOf(*item.widget());
    if (item.layout() != nullptr) {
      inner.isLayout = true;
      addParts(*item.layout(), inner);
    }
    inner.isSpace = item.spacerItem() != nullptr;
    if (grid != nullptr) {
      grid->getItemPosition(i, &inner.row, &inner.column, &inner.rowSpan, &inner.columnSpan);
    }
    part.parts.push_back(std::move(inner));
  }
}

QWidget* PageRecipe::newWidget(const Part& part, QWidget* parent) {
  QWidget* widget = nullptr;
  switch (part.kind) {
    case Kind::Plain:
      widget = new QWidget(parent);
      break;
    case Kind::Label:
      widget = new QLabel(part.text, parent);
      break;
    case Kind::LineEdit:
      widget = new QLineEdit(part.text, parent);
      break;
    case Kind::CheckBox:
      widget = new QCheckBox(part.text, parent);
      break;
    case Kind::RadioButton:
      widget = new QRadioButton(part.text, parent);
      break;
    case Kind::PushButton:
      widget = new QPushButton(part.text, parent);
      break;
    case Kind::GroupBox:
      widget = new QGroupBox(part.text, parent);
      break;
    case Kind::Tree:
      widget = newTree(part.items, parent);
      break;
    case Kind::Table:
      widget = newTable(part.items, parent);
      break;
  }
  widget->setObjectName(part.name);
  if (!part.styleSheet.isEmpty()) widget->setStyleSheet(part.styleSheet);
  if (part.arrangement != Arrangement::None) {
    QLayout* const layout = newLayout(part);
    widget->setLayout(layout);
    fill(*layout, part, *widget);
  }
  if (part.isHidden) widget->hide();
  return widget;
}

QLayout* PageRecipe::newLayout(const Part& part) {
  if (part.arrangement == Arrangement::Grid) return new QGridLayout;
  if (part.arrangement == Arrangement::Row) return new QHBoxLayout;
  return new QVBoxLayout;
}

// Inner layouts are placed before they are filled, so that what is in them finds its parent.
void PageRecipe::fill(QLayout& layout, const Part& part, QWidget& widget) {
  for (const Part& inner : part.parts) {
    if (inner.isSpace) {
      layout.addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Expanding));
    } else if (inner.isLayout) {
      QLayout* const innerLayout = newLayout(inner);
      place(layout, inner, nullptr, innerLayout);
      fill(*innerLayout, inner, widget);
    } else {
      place(layout, inner, newWidget(inner, &widget), nullptr);
    }
  }
}

void PageRecipe::place(QLayout& layout, const Part& part, QWidget* widget, QLayout* inner) {
  if (auto* const grid = qobject_cast<QGridLayout*>(&layout)) {
    if (widget != nullptr) {
      grid->addWidget(widget, part.row, part.column, part.rowSpan, part.columnSpan);
    } else {
      grid->addLayout(inner, part.row, part.column, part.rowSpan, part.columnSpan);
    }
  } else if (auto* const box = qobject_cast<QBoxLayout*>(&layout)) {
    if (widget != nullptr) {
      box->addWidget(widget);
    } else {
      box->addLayout(inner);
    }
  }
}

}  // namespace brennet::bench
