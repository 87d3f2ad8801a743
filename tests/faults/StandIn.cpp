#include "tests/faults/StandIn.h"

#include <cstdlib>

namespace brennet {
namespace {

platform::FileSystem* current = nullptr;

}  // namespace

// The functions of Files.h use this one in these programs.
platform::FileSystem& platform::fileSystem() {
  if (current == nullptr) std::abort();
  return *current;
}

namespace test {

StandIn::StandIn() {
  current = &faulty;
}

StandIn::~StandIn() {
  current = nullptr;
}

std::string described(const StandIn& standIn, int call) {
  return "call " + std::to_string(call) + " (" + standIn.faulty.faulty() + ")";
}

}  // namespace test
}  // namespace brennet
