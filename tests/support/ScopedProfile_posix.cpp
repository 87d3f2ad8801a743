#include <cstdlib>

#include "tests/support/ScopedProfile.h"

namespace brennet::test {

ScopedProfile::ScopedProfile(const std::filesystem::path& folder) {
  const char* before = std::getenv("HOME");
  before_ = before != nullptr ? before : "";
  setenv("HOME", folder.c_str(), 1);
}

ScopedProfile::~ScopedProfile() {
  setenv("HOME", before_.c_str(), 1);
}

}  // namespace brennet::test
