#pragma once

namespace brennet::test {

// Which of the system calls under platform/Files.h fail. In a program that links
// FileFaults_<system>.cpp, that file stands between those calls and the system.
struct FileFaults {
  int callsUntilFailure = -1;  // how many calls still work before one fails; negative: none fails
  bool newFiles = false;       // the folder takes no new file
  bool replacing = false;      // no file can replace another
  bool flushing = false;       // what is written cannot be brought to the disk...
  bool closing = false;        // ...or fails to get there on closing; the error is kDeviceError

  bool diskFull = false;  // no file gets more room, and no write is finished

  // Counts a call. Returns whether it is the one that fails.
  bool failsNow() { return callsUntilFailure >= 0 && callsUntilFailure-- == 0; }
};

extern FileFaults faults;
extern const int kDeviceError;

}  // namespace brennet::test
