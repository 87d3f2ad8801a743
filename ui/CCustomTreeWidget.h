#pragma once

#include <QTreeWidget>

namespace brennet {

// A tree whose branches cannot be dragged, but the items in them can.
class CCustomTreeWidget : public QTreeWidget {
  Q_OBJECT

 public:
  using QTreeWidget::QTreeWidget;

 protected:
  void startDrag(Qt::DropActions supportedActions) override;
};

}  // namespace brennet
