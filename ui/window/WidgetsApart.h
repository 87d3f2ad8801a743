#pragma once

#include <QWidget>

#include <vector>

namespace brennet {

// Takes hidden children out of their window as long as it lives, and puts them back in their order.
// A window that is shown for the first time, or gets a style sheet, lets the style work on all that
// is in it, shown or not; for pages of a hundred widgets that nobody sees, this takes as long as
// for those that are seen. Children that were never polished are not polished either when they come
// back.
class WidgetsApart {
 public:
  // All are hidden children of `window`, the last ones that it has.
  WidgetsApart(QWidget& window, const std::vector<QWidget*>& widgets);
  ~WidgetsApart();
  WidgetsApart(const WidgetsApart&) = delete;
  WidgetsApart& operator=(const WidgetsApart&) = delete;

 private:
  struct Row {
    QWidget* widget;
    Qt::WindowFlags flags;  // without a parent, any widget would count as a window
  };

  QWidget& window_;
  std::vector<Row> rows_;
};

}  // namespace brennet
