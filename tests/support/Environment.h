#pragma once

#include <string>

namespace brennet::test {

// The variable from which the system, or Wine in its place, takes the user's profile folder.
extern const char* const kProfileVariable;

void setVariable(const char* name, const std::string& value);

}  // namespace brennet::test
