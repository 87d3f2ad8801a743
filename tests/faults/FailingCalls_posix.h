#pragma once

namespace brennet::test {

// What happens to one of the calls of the system that write, rename, flush and the like. The
// program that links FailingCalls_posix.cpp and exports its symbols has it stand between a library
// that it loads and the system.
struct FailingCall {
  enum class Kind { Fails, FailsForGood, EndsBefore, EndsAfter, EndsInside };

  int number = -1;  // which call it is, from 0 on; negative: none, and none is counted
  Kind kind = Kind::Fails;
  int error = 0;  // errno
  int calls = 0;  // how many there have been
};

extern FailingCall failingCall;

}  // namespace brennet::test
