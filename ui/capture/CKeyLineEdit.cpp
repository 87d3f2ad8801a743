#include "ui/capture/CKeyLineEdit.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>

namespace {

constexpr int kAroundText = 6;  // as a line edit keeps free beside its text

}  // namespace

QSize CKeyLineEdit::sizeHint() const {
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

bool CKeyLineEdit::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && !showsWholeText()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
  }
  return QLineEdit::event(event);
}

bool CKeyLineEdit::showsWholeText() const {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect room = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  return fontMetrics().horizontalAdvance(text()) + kAroundText <= room.width();
}
