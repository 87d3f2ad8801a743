#include "platform/CommandLine.h"

namespace brennet::platform {

std::vector<std::string> utf8Arguments(int argc, char** argv) {
  return argc > 0 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

Utf8Console::Utf8Console() = default;
Utf8Console::~Utf8Console() = default;

}  // namespace brennet::platform
