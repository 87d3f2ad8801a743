#include "ui/window/WidgetsApart.h"

#include <QApplication>
#include <QEvent>

namespace brennet {
namespace {

// Keeps from widgets that another style has come while nothing in them depends on the old one: they
// would work out at once how they look in the new one.
class StyleChangeFilter : public QObject {
 public:
  StyleChangeFilter() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    return event->type() == QEvent::StyleChange && watched->isWidgetType() &&
           !static_cast<QWidget*>(watched)->testAttribute(Qt::WA_WState_Polished);
  }
};

// New widgets ask the event loop to polish them. These are polished when they are shown.
void forgetPolish(QWidget& widget) {
  QCoreApplication::removePostedEvents(&widget, QEvent::PolishRequest);
  for (QWidget* const inner : widget.findChildren<QWidget*>()) {
    QCoreApplication::removePostedEvents(inner, QEvent::PolishRequest);
  }
}

}  // namespace

WidgetsApart::WidgetsApart(QWidget& window, const std::vector<QWidget*>& widgets)
    : window_(window) {
  rows_.reserve(widgets.size());
  for (QWidget* const widget : widgets) {
    rows_.push_back({widget, widget->windowFlags()});
    widget->setParent(nullptr, widget->windowFlags());
    forgetPolish(*widget);
  }
}

WidgetsApart::~WidgetsApart() {
  const StyleChangeFilter filter;
  for (const Row& row : rows_) row.widget->setParent(&window_, row.flags);
}

}  // namespace brennet
