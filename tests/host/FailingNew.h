#pragma once

// Programs that link FailingNew.cpp have their operator new replaced.

namespace brennet::test {

// Whose allocations fail: all, or only those of the component and its tests, not those of other
// libraries. On Windows those have an operator new of their own in any case.
enum class Whose { All, Ours };

// Whether only one allocation fails, or all that follow as well.
enum class Lasts { Once, ForEver };

// Counts the calls of operator new as long as it lives. After `number` calls that succeed, the next
// one throws std::bad_alloc. Only one object at a time may exist.
class FailingAllocation {
 public:
  FailingAllocation(long number, Lasts lasts, Whose whose = Whose::All);
  ~FailingAllocation();
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;

  // The number of calls so far, including those that failed.
  [[nodiscard]] long calls() const { return calls_; }
  [[nodiscard]] bool hasFailed() const { return calls_ > number_; }

  // For operator new.
  [[nodiscard]] static bool failsNow(const void* caller);

 private:
  friend class WithoutFailures;

  long number_;
  Lasts lasts_;
  Whose whose_;
  long calls_ = 0;
  bool isSuspended_ = false;
};

// As long as this lives, nothing is counted and nothing fails.
class WithoutFailures {
 public:
  WithoutFailures();
  ~WithoutFailures();
  WithoutFailures(const WithoutFailures&) = delete;
  WithoutFailures& operator=(const WithoutFailures&) = delete;

 private:
  bool wasSuspended_ = false;
};

// The number of allocations that `act` makes when none fails.
template <class Act>
long allocationsOf(Act act, Whose whose = Whose::All) {
  constexpr long kNever = 2'000'000'000;
  const FailingAllocation counter(kNever, Lasts::Once, whose);
  act();
  return counter.calls();
}

// Whether the return address `caller` is in this program's code, or in the C++ library's on behalf
// of that.
[[nodiscard]] bool isOurs(const void* caller);

}  // namespace brennet::test
