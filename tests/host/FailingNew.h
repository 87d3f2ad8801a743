#pragma once

// Programs that link FailingNew.cpp have their operator new replaced.

namespace brennet::test {

// Whose allocations fail: those of the component and of its tests, or also those of other
// libraries. On Windows these have an operator new of their own in any case.
enum class Whose { All, Ours };

// Whether one allocation fails, or each from it on.
enum class Lasts { Once, ForEver };

// Counts the calls of operator new as long as it lives, and has the one throw std::bad_alloc that
// `number` others precede. There is one of these at a time.
class FailingAllocation {
 public:
  FailingAllocation(long number, Lasts lasts, Whose whose = Whose::All);
  ~FailingAllocation();
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;

  // The number of calls up to now; those that failed are among them.
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

// Nothing is counted and nothing fails as long as this lives.
class WithoutFailures {
 public:
  WithoutFailures();
  ~WithoutFailures();
  WithoutFailures(const WithoutFailures&) = delete;
  WithoutFailures& operator=(const WithoutFailures&) = delete;

 private:
  bool wasSuspended_ = false;
};

// The number of allocations of `act`, of which none fails.
template <class Act>
long allocationsOf(Act act, Whose whose = Whose::All) {
  constexpr long kNever = 2'000'000'000;
  const FailingAllocation counter(kNever, Lasts::Once, whose);
  act();
  return counter.calls();
}

// Whether code of this program, or of the C++ library on its behalf, called from `caller`.
[[nodiscard]] bool isOurs(const void* caller);

}  // namespace brennet::test
