#pragma once

#include <string>
#include <vector>

namespace brennet::platform {

// The arguments of the program without its name, in UTF-8. `argc` and `argv` are those of main;
// under Windows, where they would be in the ANSI code page, the system is asked instead.
[[nodiscard]] std::vector<std::string> utf8Arguments(int argc, char** argv);

// While it lives, a console shows what is written to it as UTF-8. Elsewhere than under Windows
// consoles do so anyway.
class Utf8Console {
 public:
  Utf8Console();
  ~Utf8Console();
  Utf8Console(const Utf8Console&) = delete;
  Utf8Console& operator=(const Utf8Console&) = delete;

 private:
  unsigned before_ = 0;  // the code page of the console; 0 if there is none
};

}  // namespace brennet::platform
