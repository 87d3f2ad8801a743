#pragma once

#include <filesystem>
#include <string>

namespace brennet::test {

// A profile folder for the time of a test, so that nobody's real preference file is touched.
class ScopedProfile {
 public:
  explicit ScopedProfile(const std::filesystem::path& folder);
  ~ScopedProfile();
  ScopedProfile(const ScopedProfile&) = delete;
  ScopedProfile& operator=(const ScopedProfile&) = delete;

 private:
  std::string before_;
};

}  // namespace brennet::test
