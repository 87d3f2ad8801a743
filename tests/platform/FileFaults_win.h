#pragma once

#include <windows.h>

#include "tests/platform/FileFaults.h"

namespace brennet::test {

// The ways in which ReplaceFileW fails half-way, and what hinders making it good.
struct HalfwayFaults {
  DWORD replacing = 0;  // its error; ERROR_UNABLE_TO_MOVE_REPLACEMENT_2 moves the old file away
  bool movingTheNew = false;  // the temporary file cannot be moved to where the old one was
  bool moving = false;        // no file can be moved
};

extern HalfwayFaults halfwayFaults;

}  // namespace brennet::test
