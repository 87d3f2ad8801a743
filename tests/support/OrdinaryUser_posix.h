#pragma once

#include <filesystem>

namespace brennet::test {

// Rights do not bind the superuser: if the tests run as superuser, the process becomes an ordinary
// user's as long as the object lives. Ends the process if it cannot change users or change back.
class OrdinaryUser {
 public:
  OrdinaryUser();
  // Also gives that user the folder and everything in it.
  explicit OrdinaryUser(const std::filesystem::path& folder);
  ~OrdinaryUser();
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
};

}  // namespace brennet::test
