#pragma once

#include "tests/faults/FaultyFileSystem.h"

namespace brennet::test {

// A file system in memory, with faults, that the functions of platform/Files.h use as long as it
// exists. There is one at a time.
class StandIn {
 public:
  StandIn();
  ~StandIn();
  StandIn(const StandIn&) = delete;
  StandIn& operator=(const StandIn&) = delete;

  ModelFileSystem model;
  FaultyFileSystem faulty{model};
};

// What a fault is called in a message: "call 7 (write)".
std::string described(const StandIn& standIn, int call);

}  // namespace brennet::test
