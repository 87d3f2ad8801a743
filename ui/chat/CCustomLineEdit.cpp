#include "ui/chat/CCustomLineEdit.h"

#include <QDataStream>
#include <QDragEnterEvent>
#include <QMap>
#include <QMimeData>
#include <QVariant>

namespace {

// What item views drag: for each item its row, its column and its data by role.
QString itemFormat() {
  return QStringLiteral("application/x-qabstractitemmodeldatalist");
}

}  // namespace

void CCustomLineEdit::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasFormat(itemFormat())) {
    event->acceptProposedAction();
  } else {
    event->ignore();
  }
}

void CCustomLineEdit::dropEvent(QDropEvent* event) {
  if (!event->mimeData()->hasFormat(itemFormat())) return;
  const QByteArray bytes = event->mimeData()->data(itemFormat());
  QDataStream items(bytes);
  while (!items.atEnd()) {
    int row = 0;
    int column = 0;
    QMap<int, QVariant> roles;
    items >> row >> column >> roles;
    // Other programs drag in this format too, and their data may end in the middle of an item.
    if (items.status() != QDataStream::Ok) return;
    setText(roles.value(Qt::DisplayRole).toString());
  }
}
