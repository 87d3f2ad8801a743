#pragma once

#include <QWidget>

#include <vector>

namespace brennet {

// Takes hidden children out of their window as long as it lives, and puts them back in their order,
// behind all others. A window that is shown for the first time, or gets a style sheet, lets the
// style work on all that is in it, shown or not; for pages of a hundred widgets that nobody sees,
// this takes as long as for those that are seen. Children that were never polished are not polished
// either when they come back.
class WidgetsApart {
 public:
  // All are hidden children of `window`. Throws std::bad_alloc, and then has put them back.
  WidgetsApart(QWidget& window, const std::vector<QWidget*>& widgets);
  // If memory runs out, the current EventGuard is told; the children are in the window all the
  // same.
  ~WidgetsApart();
  WidgetsApart(const WidgetsApart&) = delete;
  WidgetsApart& operator=(const WidgetsApart&) = delete;

 private:
  struct Row {
    QWidget* widget;
    Qt::WindowFlags flags;  // without a parent, any widget would count as a window
  };

  // Keeps from widgets that another style has come while nothing in them depends on the old one:
  // they would work out at once how they look in the new one.
  class StyleChangeFilter : public QObject {
   public:
    StyleChangeFilter();
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool isActive = false;
  };

  explicit WidgetsApart(QWidget& window) : window_(window) {}

  void putBack(const Row& row) noexcept;

  QWidget& window_;
  std::vector<Row> rows_;
  StyleChangeFilter filter_;
};

}  // namespace brennet
