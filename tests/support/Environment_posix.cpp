#include <stdlib.h>

#include "tests/support/Environment.h"

namespace brennet::test {

const char* const kProfileVariable = "HOME";

void setVariable(const char* name, const std::string& value) {
  setenv(name, value.c_str(), 1);
}

}  // namespace brennet::test
