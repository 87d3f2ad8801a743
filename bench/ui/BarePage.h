#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <vector>

namespace brennet::bench {

// What a page is made of, and nothing of what it does: the kinds of its widgets, their names, texts
// and style sheets, and how they are laid out. Bare pages are made from it, to be measured beside
// the page.
class PageRecipe {
 public:
  explicit PageRecipe(const QWidget& page);

  // A new page of plain widgets.
  [[nodiscard]] QWidget* make(QWidget* parent) const;

 private:
  enum class Kind {
    Plain,
    Label,
    LineEdit,
    CheckBox,
    RadioButton,
    PushButton,
    GroupBox,
    Tree,
    Table
  };
  enum class Arrangement { None, Grid, Row, Column };

  struct Part {
    Kind kind = Kind::Plain;
    QString name;
    QString text;
    QString styleSheet;
    QStringList items;  // of trees and tables
    bool isHidden = false;
    bool isLayout = false;  // a layout in a layout, and no widget
    bool isSpace = false;
    Arrangement arrangement = Arrangement::None;
    int row = 0, column = 0, rowSpan = 1, columnSpan = 1;
    std::vector<Part> parts;
  };

  static Part partOf(const QWidget& widget);
  static void addParts(const QLayout& layout, Part& part);
  static QWidget* newWidget(const Part& part, QWidget* parent);
  static QLayout* newLayout(const Part& part);
  static void fill(QLayout& layout, const Part& part, QWidget& widget);
  static void place(QLayout& layout, const Part& part, QWidget* widget, QLayout* inner);

  Part page_;
};

}  // namespace brennet::bench
