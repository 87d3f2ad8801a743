#pragma once

namespace brennet::test {

// What is allocated as long as this lives is no leak to the leak sanitizer. For what Qt loses when
// an exception passes through it: its windows are built without clean-up code, and the code that it
// generates loses layouts that are in no window yet.
class ToleratedLeaks {
 public:
  ToleratedLeaks();
  ~ToleratedLeaks();
  ToleratedLeaks(const ToleratedLeaks&) = delete;
  ToleratedLeaks& operator=(const ToleratedLeaks&) = delete;
};

}  // namespace brennet::test
