#pragma once

#include "platform/FileSystem.h"

namespace brennet::platform {

// Virus scanners and indexers hold a new file for a moment, and backup programs an old one; so much
// patience there is at each step. With the pauses between them that is a fifth of a second.
inline constexpr int kTries = 10;

inline bool isHeld(const FileError& error) {
  return error.obstacle == Obstacle::Held;
}

// Calls `operation`, which gives a FileError, until it succeeds or fails for good; that is, in a
// way of which `mayPass` does not think that it may pass.
template <class Operation, class Condition = bool (*)(const FileError&)>
FileError retried(FileSystem& system, Operation operation, Condition mayPass = isHeld) {
  for (int i = 1;; ++i) {
    const FileError error = operation();
    if (!error || i == kTries || !mayPass(error)) return error;
    system.pause();
  }
}

}  // namespace brennet::platform
