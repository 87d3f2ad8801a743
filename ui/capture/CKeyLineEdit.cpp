#include "ui/capture/CKeyLineEdit.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>

#include <algorithm>
#include <optional>

namespace {

constexpr int kBesideText = 2;  // pixels that a line edit keeps free on each side of its text
constexpr int kAroundText = 3 * kBesideText;

// What is always shown whole: a short key with its modifiers, and the name of a long one.
constexpr const char16_t* kShown[] = {u"CTRL + Alt + W", u"\u2026 PRINT SCREEN"};

int measuredWidth(const QFont& font) {
  const QFontMetrics metrics(font);
  int width = 0;
  for (const char16_t* const shown : kShown) {
    width = std::max(width, metrics.horizontalAdvance(QString::fromUtf16(shown)));
  }
  return width;
}

}  // namespace

// The width of what is always shown, in the font that was asked for last, on a screen of that
// density. A window has a hundred fields with the same font, and each is asked several times while
// they are laid out. Fonts must not outlive the application, so the last field takes it along.
struct CKeyLineEdit::ShownWidth {
  std::optional<QFont> font;
  int dpi = 0;
  int width = 0;

  static std::shared_ptr<ShownWidth> ofAllFields() {
    static std::weak_ptr<ShownWidth> shared;
    std::shared_ptr<ShownWidth> width = shared.lock();
    if (width == nullptr) shared = width = std::make_shared<ShownWidth>();
    return width;
  }

  int of(const CKeyLineEdit& field) {
    if (font != field.font() || dpi != field.logicalDpiX()) {
      width = measuredWidth(field.font());
      font = field.font();
      dpi = field.logicalDpiX();
    }
    return width;
  }
};

CKeyLineEdit::CKeyLineEdit(QWidget* parent)
    : QLineEdit(parent), shownWidth_(ShownWidth::ofAllFields()) {
  setAccessibleDescription(tr("按键输入框：按下的键即成为此项的按键"));
}

QSize CKeyLineEdit::sizeHint() const {
  ensurePolished();
  const QSize text(shownWidth_->of(*this) + kAroundText, fontMetrics().height());
  QStyleOptionFrame option;
  initStyleOption(&option);
  return style()
      ->sizeFromContents(QStyle::CT_LineEdit, &option, text, this)
      .expandedTo(QSize(0, QLineEdit::sizeHint().height()));
}

bool CKeyLineEdit::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && shownText() != text()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
  }
  return QLineEdit::event(event);
}

// A line edit would cut through the first letter that does not fit.
void CKeyLineEdit::paintEvent(QPaintEvent* event) {
  const QString shown = shownText();
  if (shown == text()) {
    QLineEdit::paintEvent(event);
    return;
  }
  QPainter painter(this);
  QStyleOptionFrame option;
  initStyleOption(&option);
  style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
  style()->drawItemText(&painter, roomForText(), Qt::AlignRight | Qt::AlignVCenter, palette(),
                        isEnabled(), shown, QPalette::Text);
}

QRect CKeyLineEdit::roomForText() const {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect room = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  return room.adjusted(kBesideText, 0, -kBesideText, 0);
}

QString CKeyLineEdit::shownText() const {
  return fontMetrics().elidedText(text(), Qt::ElideLeft, roomForText().width());
}
