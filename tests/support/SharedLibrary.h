#pragma once

namespace brennet::test {

// The function `name` of the shared library `file`; null if either does not exist. The library
// stays loaded until the process ends, as in a host, which keeps the interface object.
void* functionOf(const char* file, const char* name);

}  // namespace brennet::test
