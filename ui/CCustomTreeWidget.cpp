#include "ui/CCustomTreeWidget.h"

void CCustomTreeWidget::startDrag(Qt::DropActions supportedActions) {
  const QTreeWidgetItem* const item = currentItem();
  if (item == nullptr || item->parent() == nullptr) return;
  QTreeWidget::startDrag(supportedActions);
}
