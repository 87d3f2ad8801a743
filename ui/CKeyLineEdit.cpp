#include "ui/CKeyLineEdit.h"

#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionFrame>

QSize CKeyLineEdit::sizeHint() const {
  constexpr int kAroundText = 6;  // as a line edit keeps free beside its text
  ensurePolished();
  const QFontMetrics metrics(font());
  const QSize text(metrics.horizontalAdvance(QStringLiteral("CTRL + Alt + W")) + kAroundText,
                   metrics.height());
  QStyleOptionFrame option;
  initStyleOption(&option);
  return style()
      ->sizeFromContents(QStyle::CT_LineEdit, &option, text, this)
      .expandedTo(QSize(0, QLineEdit::sizeHint().height()));
}
