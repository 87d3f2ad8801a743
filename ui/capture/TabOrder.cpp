#include "ui/capture/TabOrder.h"

#include <QGridLayout>
#include <QWidget>

#include <algorithm>
#include <utility>
#include <vector>

#include "ui/capture/CKeyLineEdit.h"
#include "ui/window/CPageScroller.h"

namespace brennet {
namespace {

using Controls = std::vector<QWidget*>;

void collect(QLayout& layout, Controls& controls);

void collect(QLayoutItem& item, Controls& controls) {
  if (QLayout* const layout = item.layout()) return collect(*layout, controls);
  QWidget* const widget = item.widget();
  if (widget == nullptr) return;
  if ((widget->focusPolicy() & Qt::TabFocus) != 0) controls.push_back(widget);
  const auto* const scroller = qobject_cast<const CPageScroller*>(widget);
  const QWidget* const holder = scroller == nullptr ? widget : scroller->widget();
  if (QLayout* const inside = holder->layout()) collect(*inside, controls);
}

// The items of a layout, in reading order.
std::vector<QLayoutItem*> itemsOf(QLayout& layout) {
  std::vector<std::pair<std::pair<int, int>, QLayoutItem*>> placed;
  auto* const grid = qobject_cast<QGridLayout*>(&layout);
  for (int i = 0; i < layout.count(); ++i) {
    int row = 0;
    int column = i;
    int rowSpan = 0;
    int columnSpan = 0;
    if (grid != nullptr) grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
    placed.push_back({{row, column}, layout.itemAt(i)});
  }
  std::stable_sort(placed.begin(), placed.end(),
                   [](const auto& one, const auto& other) { return one.first < other.first; });
  std::vector<QLayoutItem*> items;
  items.reserve(placed.size());
  for (const auto& [place, item] : placed) items.push_back(item);
  return items;
}

void collect(QLayout& layout, Controls& controls) {
  for (QLayoutItem* const item : itemsOf(layout)) collect(*item, controls);
}

}  // namespace

void setTabOrderOfLayouts(QWidget& window) {
  if (window.layout() == nullptr) return;
  Controls controls;
  collect(*window.layout(), controls);
  std::stable_partition(controls.begin(), controls.end(), [](const QWidget* control) {
    return qobject_cast<const CKeyLineEdit*>(control) == nullptr;
  });
  // Qt does not move a control that already follows, even across the end of the window to its
  // start; so something else is made the last one for the moment.
  QWidget last(&window);
  last.setFocusPolicy(Qt::TabFocus);
  for (std::size_t i = 1; i < controls.size(); ++i) {
    QWidget::setTabOrder(controls[i - 1], controls[i]);
  }
}

}  // namespace brennet
