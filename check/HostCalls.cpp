#include "check/HostCalls.h"

#include <QApplication>
#include <QThread>
#include <algorithm>
#include <cstdio>

#include "check/FloatingPoint.h"

namespace brennet::check {
namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

std::string costText(const SlotFacts& slot, unsigned long long calls, Milliseconds all,
                     Milliseconds longest) {
  char text[120];
  std::snprintf(text, sizeof(text), "  %-19s calls %8llu, all %10.3f ms, longest %10.3f ms",
                slot.name, calls, all.count(), longest.count());
  return text;
}

}  // namespace

void HostCalls::begin(Slot slot) {
  checkThread(slot);
  checkOrder(slot);
  if (const std::string fault = floatingPointFault(); !fault.empty()) {
    findings_->report(Rule::FloatingPoint, slot, fault);
  }
  checkOpenCalls(slot);
  const std::scoped_lock lock(mutex_);
  open_.push_back({slot, std::this_thread::get_id()});
}

void HostCalls::end(Slot slot, Time time) {
  const std::scoped_lock lock(mutex_);
  Cost& cost = costs_[indexOf(slot)];
  ++cost.calls;
  cost.all += time;
  cost.longest = std::max(cost.longest, time);
  const auto own = std::find_if(open_.rbegin(), open_.rend(), [&](const Open& call) {
    return call.slot == slot && call.thread == std::this_thread::get_id();
  });
  open_.erase(std::next(own).base());
}

// The GUI thread is that of the application object; without one, the thread of the first call.
void HostCalls::checkThread(Slot slot) {
  const QCoreApplication* const application = QCoreApplication::instance();
  const bool isRight = application != nullptr ? application->thread() == QThread::currentThread()
                                              : std::this_thread::get_id() == firstThread_;
  if (!isRight) findings_->report(Rule::Thread, slot);
}

void HostCalls::checkOrder(Slot slot) {
  const auto wasCalled = [this](Slot earlier) {
    const std::scoped_lock lock(mutex_);
    return costs_[indexOf(earlier)].calls != 0;
  };
  const bool isLoaded = wasCalled(Slot::LoadSettings);
  if (slot == Slot::SetEnabled || slot == Slot::ApplyHotkeyBlock) {
    if (!isLoaded) findings_->report(Rule::SaveBeforeLoad, slot);
  }
  if (slot != Slot::ShowSettingsDialog) return;
  if (!isLoaded) findings_->report(Rule::DialogBeforeLoad, slot);
  if (!wasCalled(Slot::SetDataFolder)) findings_->report(Rule::DialogBeforeDataFolder, slot);
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
    findings_->report(Rule::NoApplication, slot);
  }
}

// Calls on other threads are not inside this one, whatever else is wrong with them.
std::optional<Slot> HostCalls::innermostCall() const {
  const std::scoped_lock lock(mutex_);
  const auto call = std::find_if(open_.rbegin(), open_.rend(), [](const Open& open) {
    return open.thread == std::this_thread::get_id();
  });
  if (call == open_.rend()) return {};
  return call->slot;
}

void HostCalls::checkOpenCalls(Slot slot) {
  const std::optional<Slot> outer = innermostCall();
  if (!outer) return;
  if (*outer != Slot::ShowSettingsDialog) {
    findings_->report(Rule::Reentry, slot, kSlots[indexOf(*outer)].name);
  } else if (slot == Slot::ShowSettingsDialog || slot == Slot::ApplyHotkeyBlock) {
    findings_->report(Rule::DialogOpen, slot);
  }
}

void HostCalls::writeSummary() {
  const std::scoped_lock lock(mutex_);
  const unsigned long long count = findings_->count();
  findings_->write("summary: " + std::to_string(count) + (count == 1 ? " finding" : " findings"));
  for (std::size_t i = 0; i < kSlots.size(); ++i) {
    const Cost& cost = costs_[i];
    if (cost.calls != 0) {
      findings_->write(costText(kSlots[i], cost.calls, cost.all, cost.longest));
    }
  }
}

}  // namespace brennet::check
