#pragma once

#include <array>
#include <chrono>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "check/Findings.h"
#include "check/Slots.h"

namespace brennet::check {

// The host's calls, one beside or inside another, and what each slot cost. Holds each call against
// the rules for threads, order and the process; arguments are checked elsewhere (Arguments.h).
class HostCalls {
 public:
  // The first call of GetBrennetPtr is being made. `findings` outlives this object.
  explicit HostCalls(Findings& findings)
      : findings_(&findings), firstThread_(std::this_thread::get_id()) {}

  // A call of a slot, as long as it runs.
  class Running {
   public:
    Running(HostCalls& calls, Slot slot) : calls_(&calls), slot_(slot) { calls_->begin(slot_); }
    ~Running() { calls_->end(slot_, Clock::now() - passedOn_); }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    // The checks are done: what follows is the library's time.
    void passOn() { passedOn_ = Clock::now(); }

   private:
    using Clock = std::chrono::steady_clock;

    HostCalls* calls_;
    Slot slot_;
    Clock::time_point passedOn_ = Clock::now();
  };

  // Writes how often each slot was called and how long that took.
  void writeSummary();

 private:
  using Time = std::chrono::steady_clock::duration;
  struct Cost {
    unsigned long long calls = 0;
    Time all{}, longest{};
  };
  struct Open {
    Slot slot;
    std::thread::id thread;
  };

  void begin(Slot slot);
  void end(Slot slot, Time time);
  void checkThread(Slot slot);
  void checkOrder(Slot slot);
  void checkOpenCalls(Slot slot);
  // The call of this thread that another one would be inside of.
  [[nodiscard]] std::optional<Slot> innermostCall() const;

  Findings* findings_;
  std::thread::id firstThread_;
  // Of what is below. Nothing is reported while it is held: that may end the process.
  mutable std::mutex mutex_;
  std::vector<Open> open_;
  std::array<Cost, kSlots.size()> costs_;
};

}  // namespace brennet::check
