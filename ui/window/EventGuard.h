#pragma once

#include <QObject>
#include <QPointer>

#include <exception>
#include <unordered_map>

class QEventLoop;
class QWidget;

namespace brennet {

// Keeps exceptions out of Qt, which cannot have them in its event loop, and out of the system's
// window procedures, which need not let them through. Whatever an event of a guarded window throws
// ends there: it is taken down as a failure, and the modal runs end. All on the GUI thread.
//
// The guard delivers the events itself, so it has to be the last event filter of the receiver,
// which is the one that was installed first. Whatever comes into a guarded window is guarded from
// then on: event filters are installed on it when it is there, not before.
class EventGuard final : public QObject {
 public:
  // Guards the window and what is in it. No event filters are installed there yet.
  explicit EventGuard(QWidget& window);
  ~EventGuard() override;
  EventGuard(const EventGuard&) = delete;
  EventGuard& operator=(const EventGuard&) = delete;

  // Whether anything has failed since the guard was made.
  [[nodiscard]] bool hasFailed() const { return hasFailed_; }

  // Whether events of the object end here.
  [[nodiscard]] bool watches(const QObject& object) const;

  // The guard that was made last and is still there; null: there is none.
  [[nodiscard]] static EventGuard* current();

  // Has the current guard, if there is one, guard a window without a parent in the same way.
  static void guardToo(QWidget& window);

  // Takes down that something has failed, and ends the guarded event loops.
  void fail() noexcept;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void watch(QObject& object);
  void watchNative(QObject& object);
  void deliver(QObject& receiver, QEvent& event);

  // By address; where another object has the address by now, the pointer is null.
  std::unordered_map<const QObject*, QPointer<QObject>> watched_;
  EventGuard* outer_;
  bool hasFailed_ = false;
};

// Ends a loop when something fails, as long as this lives.
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

// Does `act`, which Qt calls past the guard: in event filters, and for signals of what is no
// window. Where it throws, the current guard takes that down, and the result is false, 0 or null.
// Without a guard the exception goes on.
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
