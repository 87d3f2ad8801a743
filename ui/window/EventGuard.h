#pragma once

#include <QObject>
#include <QPointer>

#include <exception>
#include <unordered_map>

class QEventLoop;
class QWidget;

namespace brennet {

// Keeps exceptions out of Qt, whose event loop does not tolerate them, and out of the system's
// window procedures, which need not let them through. Whatever an event of a guarded window throws
// ends there: it is recorded as a failure, and the modal runs end. All on the GUI thread.
//
// The guard delivers the events itself, so it has to be the last event filter of the receiver,
// which is the one that was installed first. A widget that is put into a guarded window is guarded
// from then on, so install event filters on it only after that.
class EventGuard final : public QObject {
 public:
  // Guards the window and everything in it, on which no event filters may be installed yet.
  explicit EventGuard(QWidget& window);
  ~EventGuard() override;
  EventGuard(const EventGuard&) = delete;
  EventGuard& operator=(const EventGuard&) = delete;

  // Whether anything has failed since the guard was made.
  [[nodiscard]] bool hasFailed() const { return hasFailed_; }

  // Whether this guard delivers the events of the object.
  [[nodiscard]] bool watches(const QObject& object) const;

  // The newest guard that still exists; null if there is none.
  [[nodiscard]] static EventGuard* current();

  // Lets the current guard, if there is one, guard a window without a parent in the same way.
  static void guardToo(QWidget& window);

  // Records that something has failed, and ends the guarded event loops.
  void fail() noexcept;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void watch(QObject& object);
  void watchNative(QObject& object);
  void deliver(QObject& receiver, QEvent& event);

  // By address; if another object has the address by now, the pointer is null.
  std::unordered_map<const QObject*, QPointer<QObject>> watched_;
  EventGuard* outer_;
  bool hasFailed_ = false;
};

// Ends a loop when something fails during the lifetime of this object.
class EndedByFailure {
 public:
  explicit EndedByFailure(QEventLoop& loop);
  ~EndedByFailure();
  EndedByFailure(const EndedByFailure&) = delete;
  EndedByFailure& operator=(const EndedByFailure&) = delete;

 private:
  friend class EventGuard;
  QEventLoop& loop_;
  EndedByFailure* outer_;
};

// Runs `act` where Qt calls past the guard: in event filters, and for signals of objects that are
// not widgets. If it throws, the current guard records that, and the result is false, 0 or null.
// Without a guard the exception is passed on.
template <class Act>
auto guarded(Act act) -> decltype(act()) {
  EventGuard* const guard = EventGuard::current();
  if (guard == nullptr) return act();
  try {
    return act();
  } catch (const std::exception&) {
    guard->fail();
    return decltype(act())();
  }
}

}  // namespace brennet
