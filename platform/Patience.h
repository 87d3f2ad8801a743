#pragma once

#include <cstdint>
#include <system_error>

#include "platform/FileSystem.h"

namespace brennet::platform {

// How long one operation waits for other programs, in all its steps together: virus scanners and
// indexers hold a new file for a moment, and backup programs an old one. With the pauses between
// the tries that is a fifth of a second, also where pauses last longer than they were asked to: on
// Windows they may last as long again as the clock takes to tick.
class Patience {
 public:
  static constexpr int kPauses = 9;
  static constexpr std::uint64_t kMilliseconds = 200;  // of waiting; what is done between is none
  static constexpr std::uint64_t kLongestPause = 32;   // milliseconds, as a rule

  // Waits a little. Returns false, and at once, where that has been done often or long enough.
  [[nodiscard]] bool wait(FileSystem& system) {
    if (pauses_ == 0 || waited_ + kLongestPause > kMilliseconds) return false;
    --pauses_;
    const std::uint64_t start = system.clock();
    system.pause();
    waited_ += system.clock() - start;
    return true;
  }

 private:
  int pauses_ = kPauses;
  std::uint64_t waited_ = 0;
};

// The error of a file with which somebody is busy in a way that no call told of.
inline FileError busy() {
  return {Obstacle::Held, std::make_error_code(std::errc::resource_unavailable_try_again)};
}

inline bool isHeld(const FileError& error) {
  return error.obstacle == Obstacle::Held;
}

// Calls `operation`, which gives a FileError, until it succeeds, fails for good, or patience ends.
// It fails for good in a way of which `mayPass` does not think that it may pass.
template <class Operation, class Condition = bool (*)(const FileError&)>
FileError retried(FileSystem& system, Patience& patience, Operation operation,
                  Condition mayPass = isHeld) {
  while (true) {
    const FileError error = operation();
    if (!error || !mayPass(error) || !patience.wait(system)) return error;
  }
}

}  // namespace brennet::platform
