#pragma once

#include <string>
#include <vector>

#include "platform/CodePages.h"

namespace brennet::platform {

// The arguments of the program without its name, in UTF-8. `argc` and `argv` are those of main;
// under Windows, where they would be in the ANSI code page, the system is asked instead.
[[nodiscard]] std::vector<std::string> utf8Arguments(int argc, char** argv);

// Has the console show what is written to it in the code page. Returns the one before; 0 where
// there is no console, or where, as elsewhere than under Windows, consoles show UTF-8 anyway.
unsigned showOnConsole(unsigned codePage);

// While it lives, a console shows what is written to it as UTF-8.
class Utf8Console {
 public:
  Utf8Console() : before_(showOnConsole(kUtf8)) {}
  ~Utf8Console() {
    if (before_ != 0) showOnConsole(before_);
  }
  Utf8Console(const Utf8Console&) = delete;
  Utf8Console& operator=(const Utf8Console&) = delete;

 private:
  unsigned before_;
};

}  // namespace brennet::platform
