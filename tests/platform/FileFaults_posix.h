#pragma once

#include <functional>

namespace brennet::test {

// Called once, before the system is next asked what an open file is: somebody else's doing, between
// two calls.
extern std::function<void()> beforeStatus;

// What the file system cannot do.
struct Lacking {
  bool refusal = false;  // no move refuses a name that is taken
  bool links = false;    // no file has two names
  bool removal = false;  // the next removal fails, once
};
extern Lacking lacking;

// What asking for an attribute of a file, such as its access list, and taking one away fail with;
// 0: nothing.
extern int attributeError;

}  // namespace brennet::test
