#pragma once

#include <functional>

namespace brennet::test {

// Called once, before the next query about an open file: what somebody else does between two calls.
extern std::function<void()> beforeStatus;

// What the file system cannot do.
struct Lacking {
  bool refusal = false;  // a move cannot refuse a name that is taken
  bool links = false;    // no file can have two names
  bool removal = false;  // the next removal fails, once
};
extern Lacking lacking;

// The error of reading or removing an attribute of a file, such as its access list; 0: none.
extern int attributeError;

}  // namespace brennet::test
