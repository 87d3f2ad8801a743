#include "ui/window/CPageScroller.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

#include <utility>

#include "ui/window/EventGuard.h"

namespace {

constexpr int kBeside = 12;  // pixels of the surroundings, to show that there is more

}  // namespace

CPageScroller::CPageScroller(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  viewport()->setAutoFillBackground(false);
  focus_ = connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) {
    brennet::guarded([&] { showFocus(now); });
  });
}

// The widgets inside are destroyed later, and may still have the focus: that must not be followed
// any more.
CPageScroller::~CPageScroller() {
  disconnect(focus_);
}

void CPageScroller::setLimit(QSize limit) {
  if (limit_ == limit) return;
  limit_ = limit;
  updateGeometry();
}

QSize CPageScroller::sizeHint() const {
  if (widget() == nullptr) return {};
  QSize size = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
  // A bar takes room in the other direction, which may then need a bar too.
  bool isTall = false;
  bool isWide = false;
  for (int bars = 0; bars < 2; ++bars) {
    if (size.height() > limit_.height() && !std::exchange(isTall, true)) {
      size.rwidth() += verticalScrollBar()->sizeHint().width();
    }
    if (size.width() > limit_.width() && !std::exchange(isWide, true)) {
      size.rheight() += horizontalScrollBar()->sizeHint().height();
    }
  }
  return size.boundedTo(limit_);
}

bool CPageScroller::event(QEvent* event) {
  if (event->type() == QEvent::StyleChange) updateGeometry();  // the bars may have another width
  return QScrollArea::event(event);
}

// The page asks for another size. Qt tells only its viewport.
bool CPageScroller::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) {
    brennet::guarded([this] { updateGeometry(); });
  }
  return QScrollArea::eventFilter(watched, event);
}

// A click scrolls nothing: its target must not move away before the button is released.
void CPageScroller::showFocus(QWidget* focus) {
  if (focus == nullptr || !isAncestorOf(focus)) return;
  if (QGuiApplication::mouseButtons() != Qt::NoButton) return;
  // The whole widget: Qt would show only the cursor of a field.
  const QRect place(focus->mapTo(widget(), QPoint()), focus->size());
  ensureVisible(place.center().x(), place.center().y(), place.width() / 2 + kBeside,
                place.height() / 2 + kBeside);
}
