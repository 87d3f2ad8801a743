#pragma once

#include <filesystem>

namespace brennet::test {

// Rights do not bind the superuser: where the tests are his, the process is somebody else's as long
// as the object lives. Ends the process where that cannot be had or taken back.
class OrdinaryUser {
 public:
  OrdinaryUser();
  // Also gives that user the folder, with all that is in it.
  explicit OrdinaryUser(const std::filesystem::path& folder);
  ~OrdinaryUser();
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
};

}  // namespace brennet::test
