#pragma once

#include <memory>

#include "brennet/IBrennet.h"

namespace brennet::test {

// The interface that a test program is about, without the settings of earlier tests: a new object
// where the code is linked into the program, else that of the built library, which the program
// loads.
std::shared_ptr<IBrennet> testedBrennet();

}  // namespace brennet::test
