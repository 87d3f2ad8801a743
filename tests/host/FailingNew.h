#pragma once

namespace brennet::test {

// The number of calls of operator new until the one that throws std::bad_alloc, once; negative:
// none fails. Programs that link this file have their operator new replaced.
extern long allocationsUntilFailure;

}  // namespace brennet::test
