#include "tests/support/ScopedProfile.h"

#include <cstdlib>

#include "tests/support/Environment.h"

namespace brennet::test {

ScopedProfile::ScopedProfile(const std::filesystem::path& folder) {
  const char* before = std::getenv(kProfileVariable);
  before_ = before != nullptr ? before : "";
  setVariable(kProfileVariable, folder.string());
}

ScopedProfile::~ScopedProfile() {
  setVariable(kProfileVariable, before_);
}

}  // namespace brennet::test
