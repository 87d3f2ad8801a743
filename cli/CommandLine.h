#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace brennet::cli {

// Does what the arguments of the program (UTF-8, without its name) ask for. Answers go to `out`,
// messages to `err`. Returns the exit status. Throws std::bad_alloc.
int runCommandLine(std::vector<std::string> arguments, std::ostream& out, std::ostream& err);

}  // namespace brennet::cli
