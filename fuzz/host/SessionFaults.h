#pragma once

#include <cstddef>
#include <optional>

namespace brennet::fuzz {

// What goes wrong during one call of the host. Whoever can make more go wrong, such as a stand-in
// for the calls of the file system, adds a member here and a word to the script.
struct Faults {
  std::optional<std::size_t> failingAllocation;  // the n-th from now on, counted from 0
  bool allFollowing = false;                     // and every one behind it
  std::optional<std::size_t> room;  // files take this many bytes and no more, as on a full disk
};

// Lets things go wrong as long as it lives. One at a time.
class FaultsInForce {
 public:
  explicit FaultsInForce(const Faults& faults);
  ~FaultsInForce();
  FaultsInForce(const FaultsInForce&) = delete;
  FaultsInForce& operator=(const FaultsInForce&) = delete;
};

}  // namespace brennet::fuzz
