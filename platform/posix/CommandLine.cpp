#include "platform/CommandLine.h"

namespace brennet::platform {

std::vector<std::string> utf8Arguments(int argc, char** argv) {
  return argc > 0 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

unsigned showOnConsole(unsigned /*codePage*/) {
  return 0;
}

}  // namespace brennet::platform
