#pragma once

#include <functional>

namespace brennet::test {

// Called once, before the system is next asked what an open file is: somebody else's doing, between
// two calls.
extern std::function<void()> beforeStatus;

}  // namespace brennet::test
