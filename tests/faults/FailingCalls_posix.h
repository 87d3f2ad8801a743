#pragma once

namespace brennet::test {

// What happens to one of the system calls that open, write, rename, flush and the like. A program
// that links FailingCalls_posix.cpp and exports its symbols stands between the system and the
// libraries that it loads.
struct FailingCall {
  enum class Kind { Fails, FailsForGood, EndsBefore, EndsAfter, EndsInside };

  int number = -1;  // which call it is, from 0 on; negative: none, and calls are not counted
  Kind kind = Kind::Fails;
  int error = 0;  // errno
  int calls = 0;  // how many there have been
};

extern FailingCall failingCall;

}  // namespace brennet::test
