#include "ui/window/WidgetsApart.h"

#include <QApplication>
#include <QEvent>

#include <new>

#include "ui/window/EventGuard.h"

namespace brennet {
namespace {

// New widgets ask the event loop to polish them. These are polished when they are shown.
void forgetPolish(QWidget& widget) {
  QCoreApplication::removePostedEvents(&widget, QEvent::PolishRequest);
  for (QWidget* const inner : widget.findChildren<QWidget*>()) {
    QCoreApplication::removePostedEvents(inner, QEvent::PolishRequest);
  }
}

}  // namespace

WidgetsApart::StyleChangeFilter::StyleChangeFilter() {
  qApp->installEventFilter(this);
}

bool WidgetsApart::StyleChangeFilter::eventFilter(QObject* watched, QEvent* event) {
  return isActive && event->type() == QEvent::StyleChange && watched->isWidgetType() &&
         !static_cast<QWidget*>(watched)->testAttribute(Qt::WA_WState_Polished);
}

// From the call of the other constructor on, the destructor puts back what has been taken out, also
// if the rest fails.
WidgetsApart::WidgetsApart(QWidget& window, const std::vector<QWidget*>& widgets)
    : WidgetsApart(window) {
  rows_.reserve(widgets.size());
  for (QWidget* const widget : widgets) {
    forgetPolish(*widget);
    rows_.push_back({widget, widget->windowFlags()});
    widget->setParent(nullptr, widget->windowFlags());
  }
}

WidgetsApart::~WidgetsApart() {
  filter_.isActive = true;
  for (const Row& row : rows_) putBack(row);
}

// Whatever else fails, the window has to own the widget again.
void WidgetsApart::putBack(const Row& row) noexcept {
  try {
    row.widget->setParent(&window_, row.flags);
  } catch (const std::bad_alloc&) {
    if (row.widget->parent() == nullptr) static_cast<QObject*>(row.widget)->setParent(&window_);
    if (EventGuard* const guard = EventGuard::current()) guard->fail();
  }
}

}  // namespace brennet
