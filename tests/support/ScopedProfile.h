#pragma once

#include <filesystem>

namespace brennet::test {

// A profile folder for the time of a test, so that nobody's real preference file is touched.
// Under Windows itself the profile cannot be moved; there the constructor throws, and only Wine can
// run such tests.
class ScopedProfile {
 public:
  // `folder` exists; an empty one stands for a system that knows of no profile.
  explicit ScopedProfile(const std::filesystem::path& folder);
  ~ScopedProfile();
  ScopedProfile(const ScopedProfile&) = delete;
  ScopedProfile& operator=(const ScopedProfile&) = delete;

 private:
  std::filesystem::path before_;
};

}  // namespace brennet::test
