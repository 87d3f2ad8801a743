#pragma once

#include "brennet/IBrennet.h"

namespace brennet::test {

// The built library, loaded as long as an object lives. The test fails if the library is still in
// the process afterwards. Its place stays reserved until after the next load, which gets another
// one: whoever still points there crashes.
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
