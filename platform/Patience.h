#pragma once

#include <cstdint>
#include <system_error>

#include "platform/FileSystem.h"

namespace brennet::platform {

// How long one operation waits for other programs, in all its steps together: virus scanners and
// indexers hold a new file for a moment, and backup programs an old one. All pauses together last
// about a fifth of a second, even where each is longer than asked for: on Windows a pause may be
// longer by one tick of the clock.
class Patience {
 public:
  static constexpr int kPauses = 9;
  static constexpr std::uint64_t kMilliseconds = 200;  // of waiting; work in between does not count
  static constexpr std::uint64_t kLongestPause = 32;   // milliseconds, usually

  // Waits a little. Returns false, without waiting, once that has been done often or long enough.
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

// The error for a file that somebody is busy with, where no call has reported that.
inline FileError busy() {
  return {Obstacle::Held, std::make_error_code(std::errc::resource_unavailable_try_again)};
}

inline bool isHeld(const FileError& error) {
  return error.obstacle == Obstacle::Held;
}

// Calls `operation`, which returns a FileError, until it succeeds, fails for good, or patience
// ends. Errors for which `mayPass` returns false are for good.
template <class Operation, class Condition = bool (*)(const FileError&)>
FileError retried(FileSystem& system, Patience& patience, Operation operation,
                  Condition mayPass = isHeld) {
  while (true) {
    const FileError error = operation();
    if (!error || !mayPass(error) || !patience.wait(system)) return error;
  }
}

}  // namespace brennet::platform
