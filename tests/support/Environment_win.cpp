#include <stdlib.h>

#include "tests/support/Environment.h"

namespace brennet::test {

const char* const kProfileVariable = "USERPROFILE";

void setVariable(const char* name, const std::string& value) {
  _putenv_s(name, value.c_str());
}

}  // namespace brennet::test
