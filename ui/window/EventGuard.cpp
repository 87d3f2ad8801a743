#include "ui/window/EventGuard.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QChildEvent>
#include <QComboBox>
#include <QEventLoop>
#include <QWidget>
#include <QWindow>

namespace brennet {
namespace {

EventGuard* innermostGuard = nullptr;
EndedByFailure* innermostLoop = nullptr;

// Whether the widget has filtered the events of its own parts since it was made.
bool filtersItsParts(const QObject& widget) {
  return qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr;
}

}  // namespace

EventGuard::EventGuard(QWidget& window) : outer_(innermostGuard) {
  watch(window);
  innermostGuard = this;
}

EventGuard::~EventGuard() {
  EventGuard** place = &innermostGuard;
  while (*place != this) place = &(*place)->outer_;
  *place = outer_;
}

bool EventGuard::watches(const QObject& object) const {
  const auto found = watched_.find(&object);
  return found != watched_.end() && !found->second.isNull();
}

EventGuard* EventGuard::current() {
  return innermostGuard;
}

void EventGuard::guardToo(QWidget& window) {
  if (innermostGuard != nullptr) innermostGuard->watch(window);
}

void EventGuard::fail() noexcept {
  hasFailed_ = true;
  for (EndedByFailure* ended = innermostLoop; ended != nullptr; ended = ended->outer_) {
    ended->loop_.exit();
  }
}

// Once only: a second installation would put the filter in front of later ones.
// NOLINTNEXTLINE(misc-no-recursion): as deep as widgets are nested
void EventGuard::watch(QObject& object) {
  QPointer<QObject>& known = watched_[&object];
  if (!known.isNull()) return;
  object.installEventFilter(this);
  known = &object;
  if (filtersItsParts(object)) return;
  for (QObject* const child : object.children()) watch(*child);
}

// The native window of a widget, which gets the input first.
void EventGuard::watchNative(QObject& object) {
  if (!object.isWidgetType()) return;
  QWindow* const native = static_cast<QWidget&>(object).windowHandle();
  if (native != nullptr) watch(*native);
}

bool EventGuard::eventFilter(QObject* watched, QEvent* event) {
  // Delivering it deletes the receiver; destructors throw nothing.
  if (event->type() == QEvent::DeferredDelete) return false;
  try {
    deliver(*watched, *event);
  } catch (const std::exception&) {
    fail();
  }
  return true;
}

void EventGuard::deliver(QObject& receiver, QEvent& event) {
  if (event.type() == QEvent::ChildAdded) {
    watch(*static_cast<QChildEvent&>(event).child());
  }
  const QPointer<QObject> alive(&receiver);
  // Qt takes a filtered event for accepted, so an unwanted one must be marked as ignored.
  if (!receiver.event(&event)) event.ignore();
  if (event.type() == QEvent::WinIdChange && !alive.isNull()) watchNative(receiver);
}

EndedByFailure::EndedByFailure(QEventLoop& loop) : loop_(loop), outer_(innermostLoop) {
  innermostLoop = this;
}

EndedByFailure::~EndedByFailure() {
  innermostLoop = outer_;
}

}  // namespace brennet
