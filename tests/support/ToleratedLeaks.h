#pragma once

namespace brennet::test {

// As long as this lives, the leak sanitizer ignores what is allocated. It is for what Qt loses when
// an exception passes through it: Qt's windows are built without clean-up code, and the code that
// it generates loses layouts that are in no window yet.
class ToleratedLeaks {
 public:
  ToleratedLeaks();
  ~ToleratedLeaks();
  ToleratedLeaks(const ToleratedLeaks&) = delete;
  ToleratedLeaks& operator=(const ToleratedLeaks&) = delete;
};

}  // namespace brennet::test
