#pragma once

#include "brennet/IBrennet.h"

namespace brennet::test {

// The built library, loaded as long as an object lives. The test fails where it is still in the
// process afterwards. Where it was, nothing is from then on to the next load, which comes to lie
// elsewhere: whoever still points there crashes.
class UnloadableLibrary {
 public:
  UnloadableLibrary();
  ~UnloadableLibrary();
  UnloadableLibrary(const UnloadableLibrary&) = delete;
  UnloadableLibrary& operator=(const UnloadableLibrary&) = delete;

  [[nodiscard]] IBrennet& brennet() const { return *brennet_; }

 private:
  void* module_;
  IBrennet* brennet_;
};

}  // namespace brennet::test
