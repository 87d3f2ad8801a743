#pragma once

namespace brennet::test {

// The function `name` of the shared library `file`; null when one of them is not there. The library
// stays loaded to the end of the process, as in a host, which keeps the interface object.
void* functionOf(const char* file, const char* name);

}  // namespace brennet::test
