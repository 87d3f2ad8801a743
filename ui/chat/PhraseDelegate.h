#pragma once

#include <QStyledItemDelegate>

namespace brennet {

// Makes rows as high as the style sheet wants, but never lower than their text, which may have
// several lines. Branches and leaves may differ.
class PhraseDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace brennet
