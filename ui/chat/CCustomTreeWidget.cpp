#include "ui/chat/CCustomTreeWidget.h"

// Whoever takes a phrase gets a copy: one that was moved would be gone from the tree.
void CCustomTreeWidget::startDrag(Qt::DropActions /*supportedActions*/) {
  const QTreeWidgetItem* const item = currentItem();
  if (item == nullptr || item->parent() == nullptr) return;
  QTreeWidget::startDrag(Qt::CopyAction);
}
