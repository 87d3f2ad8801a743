#pragma once

#include <QTreeWidget>

// A tree whose branches cannot be dragged, but the items in them can.
// In no namespace: style sheets know it by this name.
class CCustomTreeWidget : public QTreeWidget {
  Q_OBJECT

 public:
  using QTreeWidget::QTreeWidget;

 protected:
  void startDrag(Qt::DropActions supportedActions) override;
};
