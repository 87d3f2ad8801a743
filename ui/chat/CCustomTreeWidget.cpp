#include "ui/chat/CCustomTreeWidget.h"

// A drop copies the phrase: a move would take it out of the tree.
void CCustomTreeWidget::startDrag(Qt::DropActions /*supportedActions*/) {
  const QTreeWidgetItem* const item = currentItem();
  if (item == nullptr || item->parent() == nullptr) return;
  QTreeWidget::startDrag(Qt::CopyAction);
}
