#pragma once

#include <filesystem>

namespace brennet::test {

// A profile folder for the duration of a test, so that nobody's real preference file is touched.
// Windows itself cannot move the profile; there the constructor throws, so such tests need Wine.
class ScopedProfile {
 public:
  // `folder` exists; an empty path stands for a system without a profile folder.
  explicit ScopedProfile(const std::filesystem::path& folder);
  ~ScopedProfile();
  ScopedProfile(const ScopedProfile&) = delete;
  ScopedProfile& operator=(const ScopedProfile&) = delete;

 private:
  std::filesystem::path before_;
};

}  // namespace brennet::test
