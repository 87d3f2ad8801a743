#include "tests/ui/pages/PageChecks.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMetaMethod>

#include <algorithm>

#include "ui/capture/VirtualKey.h"
#include "ui/window/CPageScroller.h"

namespace brennet::test {
namespace {

void send(QObject& target, QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers,
          bool isRepeat = false) {
  QKeyEvent event(type, key, modifiers, 0, virtualKeyOfQtKey(key, false), 0, {}, isRepeat);
  QApplication::sendEvent(&target, &event);
}

bool isControl(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr;
}

// What assistive technology calls the widget.
QString spokenName(const QWidget& widget) {
  if (!widget.accessibleName().isEmpty()) return widget.accessibleName();
  const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
  return button == nullptr ? QString() : button->text();
}

// A picture has no room for its text; a label below shows it.
bool isPicture(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr &&
         widget.minimumSize() == widget.maximumSize();
}

// The width that a widget needs for its text; 0 if it has none or wraps it.
int neededWidth(const QWidget& widget) {
  const auto* const label = qobject_cast<const QLabel*>(&widget);
  const bool hasText = (label != nullptr && !label->wordWrap()) ||
                       qobject_cast<const QAbstractButton*>(&widget) != nullptr;
  return hasText ? widget.sizeHint().width() : 0;
}

// The least height that cuts nothing; for a widget that wraps its text, at its current width.
int neededHeight(const QWidget& widget) {
  return widget.hasHeightForWidth() ? widget.heightForWidth(widget.width())
                                    : widget.minimumSizeHint().height();
}

// What messages call the widget.
QString nameOf(const QWidget& widget) {
  const QString name = widget.objectName();
  return name.isEmpty() ? QLatin1String(widget.metaObject()->className()) + spokenName(widget)
                        : name;
}

QRect placeIn(const QWidget& window, const QWidget& widget) {
  return {widget.mapTo(&window, QPoint()), widget.size()};
}

// The children of a widget that have to share its room. The parts of a view with scroll bars may
// overlap, and windows are anywhere.
QWidgetList placedIn(const QWidget& parent, const QWidget& window) {
  QWidgetList placed;
  if (qobject_cast<const QAbstractScrollArea*>(&parent) != nullptr) return placed;
  for (QWidget* const child :
       parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (child->isVisibleTo(&window) && !child->isWindow()) placed += child;
  }
  return placed;
}

// Where a widget shows something; a plain one shows only its children, inside its margins.
QRect filledBy(const QWidget& widget) {
  const bool isPlain = widget.metaObject() == &QWidget::staticMetaObject;
  if (!isPlain || widget.layout() == nullptr) return widget.geometry();
  return widget.layout()->contentsRect().translated(widget.pos());
}

// Whether a page scrolls: it may be larger than its viewport.
bool isScrolled(const QWidget& widget) {
  const QWidget* const viewport = widget.parentWidget();
  return viewport != nullptr &&
         qobject_cast<const CPageScroller*>(viewport->parentWidget()) != nullptr;
}

void expectNoOverlap(const QWidget& parent, const QWidget& window) {
  const QWidgetList placed = placedIn(parent, window);
  for (int i = 0; i < placed.size(); ++i) {
    for (int j = 0; j < i; ++j) {
      EXPECT_FALSE(filledBy(*placed[i]).intersects(filledBy(*placed[j])))
          << qPrintable(nameOf(*placed[i])) << " and " << qPrintable(nameOf(*placed[j]))
          << " overlap";
    }
  }
}

}  // namespace

QStringList methodNames(const QMetaObject& type) {
  QStringList names;
  for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
    names += QString::fromLatin1(type.method(i).name());
  }
  return names;
}

void pressKey(QObject& target, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  send(target, QEvent::KeyPress, key, modifiers);
}

void holdKey(QObject& target, Qt::Key key) {
  send(target, QEvent::KeyPress, key, Qt::NoModifier, true);
}

void releaseKey(QObject& target, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  send(target, QEvent::KeyRelease, key, modifiers);
}

QStringList tabOrder(QWidget& window) {
  QStringList names;
  for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
    const bool isReached = (at->focusPolicy() & Qt::TabFocus) != 0 && at->isVisibleTo(&window);
    if (isReached && window.isAncestorOf(at)) names += at->objectName();
  }
  return names;
}

void expectKeyFieldsLast(const QStringList& order) {
  const auto isOther = [](const QString& name) { return !name.startsWith(QLatin1String("edt")); };
  EXPECT_TRUE(std::is_partitioned(order.begin(), order.end(), isOther))
      << qPrintable(order.join(QLatin1Char(' ')));
}

void expectAccessible(const QWidget& page) {
  const auto labels = page.findChildren<QLabel*>();
  for (const QWidget* const widget : page.findChildren<QWidget*>()) {
    if (!isControl(*widget) || !widget->isVisibleTo(&page)) continue;
    if (widget->objectName().startsWith(QLatin1String("qt_"))) continue;
    EXPECT_FALSE(spokenName(*widget).isEmpty()) << qPrintable(widget->objectName());
  }
  for (const QLabel* const label : labels) {
    for (const QLineEdit* const field : page.findChildren<QLineEdit*>()) {
      if (!label->isVisibleTo(&page) || !field->isVisibleTo(&page)) continue;
      const QRect one = placeIn(page, *label);
      const QRect other = placeIn(page, *field);
      const int gap = other.left() - one.right();
      const bool isBefore = gap > 0 && gap < 20 && one.center().y() >= other.top() &&
                            one.center().y() <= other.bottom();
      if (isBefore) {
        EXPECT_EQ(label->buddy(), field) << qPrintable(label->text());
      }
    }
  }
}

void expectNothingIsCut(QWidget& window) {
  expectNoOverlap(window, window);
  const auto widgets = window.findChildren<QWidget*>();
  for (const QWidget* const widget : widgets) {
    if (!widget->isVisibleTo(&window)) continue;
    expectNoOverlap(*widget, window);
    // A table gives its headers the room that they need.
    if (qobject_cast<const QAbstractScrollArea*>(widget->parentWidget()) != nullptr) continue;
    if (!isPicture(*widget)) {
      EXPECT_LE(neededWidth(*widget), widget->width()) << qPrintable(nameOf(*widget));
      EXPECT_GE(widget->height(), neededHeight(*widget)) << qPrintable(nameOf(*widget));
    }
    if (widget->parentWidget() == nullptr || widget->isWindow() || isScrolled(*widget)) continue;
    EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
        << qPrintable(nameOf(*widget)) << " stands out of its parent";
  }
}

}  // namespace brennet::test
