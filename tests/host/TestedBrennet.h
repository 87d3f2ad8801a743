#pragma once

#include "brennet/IBrennet.h"

namespace brennet::test {

// The interface that a program of tests is about: the one linked into it, or that of the built
// library, which it loads.
IBrennet& testedBrennet();

}  // namespace brennet::test
