#include <exception>
#include <iostream>

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "platform/CommandLine.h"

int main(int argc, char** argv) {
  using namespace brennet;
  try {
    const platform::Utf8Console console;
    const int status =
        cli::runCommandLine(platform::utf8Arguments(argc, argv), std::cout, std::cerr);
    if (std::cout.flush()) return status;
    std::cerr << "brennet: the answer could not be written\n";
  } catch (const std::exception& error) {
    std::cerr << "brennet: " << error.what() << '\n';
  }
  return cli::kNotLoadable;
}
