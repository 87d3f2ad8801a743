#include "ui/chat/PhraseDelegate.h"

#include <algorithm>

namespace brennet {

QSize PhraseDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QSize hint = QStyledItemDelegate::sizeHint(option, index);
  const QString text = index.data(Qt::DisplayRole).toString();
  const int lines = text.count(QLatin1Char('\n')) + 1;
  return {hint.width(), std::max(hint.height(), lines * option.fontMetrics.height())};
}

void PhraseDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  // Views leave this out when they ask for a size, and style sheets look for it.
  option->state.setFlag(QStyle::State_Children, index.model()->hasChildren(index));
}

}  // namespace brennet
