#pragma once

#include <memory>

#include "brennet/IBrennet.h"

namespace brennet::test {

// The interface that a program of tests is about, as after its first load of nothing: an object of
// the test's own where the code is linked into the program, else the one of the built library,
// which the program loads.
std::shared_ptr<IBrennet> testedBrennet();

}  // namespace brennet::test
